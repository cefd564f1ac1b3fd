#pragma once

// The one place that takes in the system's headers, with the macros undone that would rename our own words.
#include <windows.h>

#undef MessageBox
#undef small
