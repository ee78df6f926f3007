# SPDX-License-Identifier: MIT
# Where things lie below an installed prefix, said once for the build, the programs that look for them and the package.
include(GNUInstallDirs)
set(SEAPLAN_PLUGIN_DIR ${CMAKE_INSTALL_LIBDIR}/tarvik/plugins)
# Client and server look there from the folder of their program, in the build tree too.
set(SEAPLAN_SHARE_DIR share/seaplan)
set(SEAPLAN_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/tarvik)

# The way from the folder of the programs to another folder of the prefix.
function(seaplan_from_program variable folder)
  file(RELATIVE_PATH way /${CMAKE_INSTALL_BINDIR} /${folder})
  set(${variable} ${way} PARENT_SCOPE)
endfunction()

# Installs a program or library into `folder` of the prefix; it finds the shared libraries wherever the prefix stands.
function(seaplan_install target folder component)
  file(RELATIVE_PATH libraries /${folder} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
  install(TARGETS ${target}
    RUNTIME DESTINATION ${folder} COMPONENT ${component} LIBRARY DESTINATION ${folder} COMPONENT ${component})
endfunction()
