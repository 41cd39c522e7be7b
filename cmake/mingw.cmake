# SPDX-License-Identifier: MIT
# What the cross compilers for KAVLIX_ARCH have in common. The variant with POSIX threads, since exceptions cross DLL
# borders.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${KAVLIX_ARCH})
set(CMAKE_CXX_COMPILER ${KAVLIX_ARCH}-w64-mingw32-g++-posix)
set(CMAKE_C_COMPILER ${KAVLIX_ARCH}-w64-mingw32-gcc-posix)
set(CMAKE_RC_COMPILER ${KAVLIX_ARCH}-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${KAVLIX_ARCH}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/KavlixConfig.cmake)
    # The installed copy of this file: find_package(Kavlix) finds the package that the file belongs to.
    set(Kavlix_DIR ${CMAKE_CURRENT_LIST_DIR} CACHE PATH "The folder of KavlixConfig.cmake")
else()
    set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine-exec)
endif()
