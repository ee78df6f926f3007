# SPDX-License-Identifier: MIT
# Writes the manual page out of what the program itself tells, so that no option is described twice. To be set:
# PROGRAM, PAGE, VERSION.
execute_process(COMMAND ${PROGRAM} --help OUTPUT_VARIABLE help RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "${PROGRAM} --help failed: ${failed}")
endif()
string(REPLACE "\\" "\\e" help "${help}")
string(REPLACE "-" "\\-" help "${help}")
# The program's own name, with what stands beside it in its column.
string(REGEX REPLACE "\n  run ([^\n]*)   ( [^ \n])" "\n  tarvik \\1\\2" help "${help}")
string(REPLACE "\n  run " "\n  tarvik " help "${help}")
string(REGEX REPLACE "\n([.'])" "\n\\\\&\\1" help "${help}")
file(WRITE ${PAGE} ".TH TARVIK 1 \"\" \"Seaplan ${VERSION}\" \"User Commands\"
.SH NAME
tarvik \\- plan sea voyages on a chart of the world
.SH SYNOPSIS
.B tarvik
[options]
.br
.B tarvik plan
PORT PORT [PORT...] [options]
.SH DESCRIPTION
.nf
${help}.fi
")
