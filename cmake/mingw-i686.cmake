# SPDX-License-Identifier: MIT
# Cross compiler for 32-bit Windows.
set(KAVLIX_ARCH i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)

# Positions are computed in doubles, each step rounded as such: the old floating-point unit would keep more digits.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
