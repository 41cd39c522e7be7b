// This program has a main of its own, so of the shared test kit it takes the object counter alone.
#include "tests/support/GdiCounter.cpp"
