// SPDX-License-Identifier: MIT
// A library that calls one of these functions finds the executable's before the
// C library's.
#include "PathCalls.h"

#include <atomic>
#include <dirent.h>
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::atomic<int> calls;

// Counts the call and finds the function that it was meant for; its type is
// that of the one that replaces it.
template <typename Function>
Function* next(Function*, const char* name)
{
    ++calls;
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] int stat(const char* path, struct stat* result) noexcept
{
    return next(&stat, "stat")(path, result);
}

[[gnu::visibility("default")]] int lstat(const char* path, struct stat* result) noexcept
{
    return next(&lstat, "lstat")(path, result);
}

[[gnu::visibility("default")]] int access(const char* path, int mode) noexcept
{
    return next(&access, "access")(path, mode);
}

[[gnu::visibility("default")]] DIR* opendir(const char* path)
{
    return next(&opendir, "opendir")(path);
}

[[gnu::visibility("default")]] ssize_t readlink(const char* path, char* text,
                                                std::size_t size) noexcept
{
    return next(&readlink, "readlink")(path, text, size);
}

} // extern "C"

int PathCalls::total()
{
    return calls;
}
