# The packages that the simulator and its tests stand on.

find_package(PkgConfig REQUIRED)
pkg_check_modules(CAIRO REQUIRED IMPORTED_TARGET cairo)
pkg_check_modules(PANGO REQUIRED IMPORTED_TARGET pangocairo pangoft2 fontconfig)
pkg_check_modules(RSVG REQUIRED IMPORTED_TARGET librsvg-2.0)
pkg_check_modules(ZLIB REQUIRED IMPORTED_TARGET zlib)
find_package(nlohmann_json REQUIRED)
if(CMAKE_CROSSCOMPILING)
    # The programs around the simulated processes are this machine's and are not built: their libraries are only named.
    foreach(library PkgConfig::LUA CLI11::CLI11 Boost::headers Threads::Threads)
        add_library(${library} INTERFACE IMPORTED)
    endforeach()
    return()
endif()
pkg_check_modules(LUA REQUIRED IMPORTED_TARGET lua5.4-c++)
find_package(CLI11 REQUIRED)
find_package(Boost 1.81 REQUIRED)
find_package(Threads REQUIRED)
find_package(benchmark REQUIRED)
find_package(GTest REQUIRED CONFIG)
include(GoogleTest)
# The tests compare the simulator's property lists with it.
pkg_check_modules(PLIST REQUIRED IMPORTED_TARGET libplist-2.0)
