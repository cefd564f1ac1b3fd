#pragma once

// The C++ library of GCC 13 and later needs its thread types, but declares them only for Windows Vista and
// later. Included before anything else, so that all the rest is compiled for Windows XP.
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0600
#include <bits/gthr.h>
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0501
