# SPDX-License-Identifier: MIT
# Used by this build and installed with the package.

# A plug-in's library shows its six exports (tarvik/core/Exports.h) and nothing else, and does not link without one of
# them, as when one is misspelt.
function(tarvik_plugin_exports target)
  set(script ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/plugin.map)
  target_link_options(${target} PRIVATE LINKER:--version-script=${script})
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
  file(STRINGS ${script} lines REGEX "^ +[A-Za-z]+;$")
  foreach(line IN LISTS lines)
    string(REGEX MATCH "[A-Za-z]+" name "${line}")
    target_link_options(${target} PRIVATE LINKER:--require-defined=${name})
  endforeach()
endfunction()
