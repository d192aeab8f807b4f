# The simulated processes for aarch64, on a machine of another kind. PENDIX_SYSROOT is what scripts/device-sysroot
# prints.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES PENDIX_SYSROOT)
set(CMAKE_SYSROOT ${PENDIX_SYSROOT})
set(CMAKE_FIND_ROOT_PATH ${PENDIX_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${PENDIX_SYSROOT})
set(ENV{PKG_CONFIG_LIBDIR}
    ${PENDIX_SYSROOT}/usr/lib/aarch64-linux-gnu/pkgconfig:${PENDIX_SYSROOT}/usr/lib/pkgconfig:${PENDIX_SYSROOT}/usr/share/pkgconfig)

foreach(language C CXX OBJCXX)
    set(CMAKE_${language}_COMPILER_TARGET aarch64-linux-gnu)
endforeach()
foreach(kind EXE MODULE SHARED)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT -fuse-ld=lld)
endforeach()
