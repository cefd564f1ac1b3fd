// The program has one thread. The C++ library of GCC 13 and later takes care of further ones with calls that
// Windows XP lacks, and brings them along with whatever else is used of it. What is defined here is not taken
// from it.

extern "C" {

// Around the making of a static variable within a function; the first byte says that it is made.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
int __cxa_guard_acquire(const char* made) {
    return *made == 0 ? 1 : 0;
}

// NOLINTNEXTLINE(bugprone-reserved-identifier)
void __cxa_guard_release(char* made) {
    *made = 1;
}

// NOLINTNEXTLINE(bugprone-reserved-identifier)
void __cxa_guard_abort(const char*) {}

#ifndef _WIN64
// Named by functions that nothing calls: the comparison of two threads, and the attempt at a lock.
static int __stdcall nothing(const void*) {
    return 0;
}

extern int(__stdcall* const getThreadId)(const void*) __asm__("__imp__GetThreadId@4");
int(__stdcall* const getThreadId)(const void*) = nothing;
extern int(__stdcall* const tryEnterCriticalSection)(const void*) __asm__("__imp__TryEnterCriticalSection@4");
int(__stdcall* const tryEnterCriticalSection)(const void*) = nothing;
#endif
}
