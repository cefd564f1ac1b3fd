// Force-included into GoogleTest's own sources in the Windows builds: its death tests need threads, and no
// test here is to die.
#include "gtest/internal/gtest-port.h"

#undef GTEST_HAS_DEATH_TEST
