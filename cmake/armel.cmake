# Cross build for the instrument's processor: Debian 12 armel (ARMv5TE, no
# floating-point unit, every float computed in software).
#
#   cmake -S . -B build-armel/build -DCMAKE_TOOLCHAIN_FILE=cmake/armel.cmake \
#         -DKRM_SYSROOT=<armel root tree>
#
# The compiler is Debian's crossbuild-essential-armel; libraries and headers
# of Qt come from an extracted armel root (scripts/device-image makes it).
# The Qt tools that run during the build (moc, rcc, uic, lconvert, lrelease)
# are the host's: Debian's armel packages would name armel programs.
# Programs built here run on the development machine through qemu-arm with
# an ARM946 core, which has no VFP (Debian's arm926 model has one).

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv5te)

set(KRM_SYSROOT "" CACHE PATH "armel root tree with the Qt 6 development packages")
if(NOT KRM_SYSROOT)
    message(FATAL_ERROR "KRM_SYSROOT is not set: run scripts/device-image")
endif()
# try_compile projects run this file again without the cache.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KRM_SYSROOT)

set(CMAKE_SYSROOT ${KRM_SYSROOT})
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabi)
set(CMAKE_C_COMPILER arm-linux-gnueabi-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabi-g++)

# ARMv5TE with software floating point, as the instrument's CPU. Large-file
# offsets: without them readdir fails with EOVERFLOW under the emulator on a
# 64-bit host, whose directory cookies do not fit 32 bits. -Wno-psabi: GCC's
# notes that an ABI changed in GCC 7.1 say nothing about this code.
set(CMAKE_C_FLAGS_INIT "-march=armv5te -marm -mfloat-abi=soft -D_FILE_OFFSET_BITS=64 -Wno-psabi")
set(CMAKE_CXX_FLAGS_INIT "-march=armv5te -marm -mfloat-abi=soft -D_FILE_OFFSET_BITS=64 -Wno-psabi")

set(CMAKE_FIND_ROOT_PATH ${KRM_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt's *Tools packages are looked up here, on the host.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/qemu-arm;-cpu;arm946;-L;${KRM_SYSROOT})
set(Qt6LinguistTools_DIR ${QT_HOST_PATH_CMAKE_DIR}/Qt6LinguistTools CACHE PATH "host lconvert and lrelease")
