# How every unit is compiled: C++20, the platform's messages with manual reference counting, every warning an error.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

foreach(language C CXX OBJCXX)
    set(CMAKE_${language}_FLAGS_DEV "-O1 -g1 -fno-omit-frame-pointer")
    # Debian's valgrind reads this version of the debugger's tables.
    set(CMAKE_${language}_FLAGS_RELEASE "-O2 -g1 -gdwarf-4 -DNDEBUG")
endforeach()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

option(PENDIX_SANITIZE "Address, undefined-behaviour and leak sanitizers" OFF)
option(PENDIX_COVERAGE "Source-based coverage" OFF)

# gcc's runtime headers (<objc/objc.h> and friends); after everything else, for gcc's own stddef.h must not win.
execute_process(
    COMMAND gcc -print-file-name=include
    OUTPUT_VARIABLE gcc_include
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
if(CMAKE_CROSSCOMPILING)
    file(GLOB gcc_include ${CMAKE_SYSROOT}/usr/lib/gcc/*/*/include)
endif()

if(CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
    # Calculates what the other processors do: a product is rounded before it is added, and characters have a sign.
    add_compile_options(-ffp-contract=off -fsigned-char)
endif()

add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE -Wall -Wextra -Werror)

add_library(objective_cxx INTERFACE)
target_compile_options(
    objective_cxx
    INTERFACE
        "$<$<COMPILE_LANGUAGE:OBJCXX>:-fblocks;-fobjc-runtime=gcc;-fconstant-string-class=NSConstantString>"
        "$<$<COMPILE_LANGUAGE:OBJCXX>:-Wundeclared-selector;-Wstrict-selector-match;-Wobjc-missing-property-synthesis>"
        "$<$<COMPILE_LANGUAGE:OBJCXX>:SHELL:-idirafter ${gcc_include}>")
target_include_directories(objective_cxx INTERFACE ${CMAKE_SOURCE_DIR}/Platform ${CMAKE_SOURCE_DIR}/Simulator/Runtime/Shim)
target_include_directories(objective_cxx SYSTEM INTERFACE ${CMAKE_SYSROOT}/usr/include/GNUstep)
target_link_libraries(objective_cxx INTERFACE warnings gnustep-base objc)

if(PENDIX_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize=function -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(PENDIX_COVERAGE)
    # Counters that lie in the profile's file from the start: a process that is killed leaves them, too.
    set(coverage_flags -fprofile-instr-generate -fcoverage-mapping "SHELL:-mllvm -runtime-counter-relocation")
endif()
