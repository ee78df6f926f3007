# SPDX-License-Identifier: MIT
# Used by this build and installed with the package.

# A plug-in's library does not link without its six exports (tarvik/core/Exports.h), as when one is misspelt.
function(tarvik_require_exports target)
  foreach(name IN ITEMS PluginInfo CheckEnvironment Load InitPlugin SuiteLoaded UnLoad)
    target_link_options(${target} PRIVATE LINKER:--require-defined=${name})
  endforeach()
endfunction()
