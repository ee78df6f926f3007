# SPDX-License-Identifier: MIT
# Fetches the packages of package-lock.json into TARGET. Run as a script with NPM, SOURCE and TARGET set.
if(NOT NPM OR NPM MATCHES "NOTFOUND")
  message(FATAL_ERROR " npm is missing, it fetches the land and the ports: install the package npm, configure and build again.")
endif()
file(MAKE_DIRECTORY ${TARGET})
file(COPY ${SOURCE}/package.json ${SOURCE}/package-lock.json DESTINATION ${TARGET})
execute_process(COMMAND ${NPM} ci --no-audit --no-fund --ignore-scripts --loglevel=error
  WORKING_DIRECTORY ${TARGET} RESULT_VARIABLE code OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(NOT code EQUAL 0)
  file(WRITE ${TARGET}/npm-failed.txt "${said}")
  message(FATAL_ERROR " npm could not fetch the land and the ports (${TARGET}/npm-failed.txt says why): check the network connection and build again.")
endif()
file(WRITE ${TARGET}/fetched "")
