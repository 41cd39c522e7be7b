# SPDX-License-Identifier: MIT
# Cross compiler for 64-bit Windows.
set(KAVLIX_ARCH x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
