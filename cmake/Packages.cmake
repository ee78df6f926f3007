# SPDX-License-Identifier: MIT
find_package(Threads REQUIRED)
find_package(GTest REQUIRED)
find_package(fmt REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(ICU REQUIRED COMPONENTS i18n uc data)
find_package(PkgConfig REQUIRED)
pkg_check_modules(geographiclib REQUIRED IMPORTED_TARGET geographiclib)
pkg_check_modules(sqlite3 REQUIRED IMPORTED_TARGET sqlite3)
pkg_check_modules(pqxx REQUIRED IMPORTED_TARGET libpqxx libpq)

# Needs the functions of Targets.cmake and the test library.
include(${CMAKE_CURRENT_LIST_DIR}/Precompiled.cmake)
