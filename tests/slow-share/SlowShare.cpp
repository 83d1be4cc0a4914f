// SPDX-License-Identifier: MIT
// Makes a folder as slow as one on a share far away, and tells who asks what of
// it: a library for LD_PRELOAD on Linux. It is controlled by the environment:
//
//   VY_SLOW_SHARE      the folder, absolute and without links; without it nothing happens
//   VY_SLOW_SHARE_MS   by how many milliseconds each call that concerns the folder
//                      or something below it takes longer; 0 when not given
//   VY_SLOW_SHARE_LOG  a file that gets a line for each such call, at its beginning:
//                      "main stat /share/a.dwg", or with a thread's number for
//                      "main". In each process, the thread it began with is "main".
//
// Reading a folder counts once for as many entries as the system is asked for at
// a time (32 KiB of them), as "getdents". What the C library calls on its own
// behalf is not seen, but realpath() and opendir() are.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <stdarg.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

constexpr int MostFiles = 65536;
constexpr long FolderBlock = 32768;

std::atomic<bool> isOfShare[MostFiles];   ///< by file descriptor
std::atomic<long> folderBytes[MostFiles]; ///< read of a folder since the last "getdents"

struct Settings
{
    const char* folder = getenv("VY_SLOW_SHARE");
    const long milliseconds = number(getenv("VY_SLOW_SHARE_MS"));
    const int log = openLog(getenv("VY_SLOW_SHARE_LOG"));

    static long number(const char* text) { return text ? strtol(text, nullptr, 10) : 0; }
    static int openLog(const char* path)
    {
        const int flags = O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC;
        return path ? static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, 0644)) : -1;
    }
};

const Settings& settings()
{
    static const Settings instance;
    return instance;
}

// Qt also writes "//share/a.dwg" for "/share/a.dwg".
bool isBelow(const char* path)
{
    const char* share = settings().folder;
    if (!share)
        return false;
    while (*share && *path == *share) {
        while (path[0] == '/' && path[1] == '/')
            ++path;
        ++path;
        ++share;
    }
    return *share == '\0' && (*path == '/' || *path == '\0');
}

bool isShared(int file)
{
    return file >= 0 && file < MostFiles && isOfShare[file];
}

bool isShared(int folder, const char* path)
{
    if (!path || !settings().folder)
        return false;
    if (path[0] == '/')
        return isBelow(path);
    if (folder != AT_FDCWD)
        return isShared(folder);
    char current[PATH_MAX];
    return syscall(SYS_getcwd, current, sizeof current) > 0 && isBelow(current);
}

void writeLog(const char* call, const char* path)
{
    char line[PATH_MAX + 64];
    const long thread = syscall(SYS_gettid);
    const int length = thread == getpid()
                           ? snprintf(line, sizeof line, "main %s %s\n", call, path)
                           : snprintf(line, sizeof line, "%ld %s %s\n", thread, call, path);
    syscall(SYS_write, settings().log, line, static_cast<std::size_t>(length));
}

// What the distance costs.
void travel(const char* call, const char* path)
{
    const int error = errno;
    if (settings().log >= 0)
        writeLog(call, path);
    timespec rest{settings().milliseconds / 1000, settings().milliseconds % 1000 * 1000000};
    while (settings().milliseconds > 0 && nanosleep(&rest, &rest) != 0 && errno == EINTR) {
    }
    errno = error;
}

void travelTo(int folder, const char* path, const char* call)
{
    if (isShared(folder, path))
        travel(call, path);
}

void travelTo(int file, const char* call)
{
    if (!isShared(file))
        return;
    char link[64];
    char path[PATH_MAX] = "";
    snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    syscall(SYS_readlink, link, path, sizeof path - 1);
    travel(call, path);
}

int opened(int file, bool ofShare)
{
    if (file >= 0 && file < MostFiles) {
        isOfShare[file] = ofShare;
        folderBytes[file] = FolderBlock; // the first entry asks for the first block
    }
    return file;
}

template <typename Entry>
Entry* entered(DIR* folder, Entry* entry)
{
    const int file = dirfd(folder);
    if (!entry || !isShared(file))
        return entry;
    if (folderBytes[file] >= FolderBlock) {
        folderBytes[file] = 0;
        travelTo(file, "getdents");
    }
    folderBytes[file] += entry->d_reclen;
    return entry;
}

template <typename Function>
Function next(Function, const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

// The C library's own function of this name.
#define NEXT(name)                                                                                 \
    (*[] {                                                                                         \
        static const auto found = next(&::name, #name);                                            \
        return found;                                                                              \
    }())

extern "C" {

#define BY_PATH(result, name, call, parameters, folder, path, arguments)                           \
    result name parameters                                                                         \
    {                                                                                              \
        travelTo(folder, path, call);                                                              \
        return NEXT(name) arguments;                                                               \
    }
#define BY_FILE(result, name, call, parameters, file, arguments)                                   \
    result name parameters                                                                         \
    {                                                                                              \
        travelTo(file, call);                                                                      \
        return NEXT(name) arguments;                                                               \
    }

BY_PATH(int, stat, "stat", (const char* p, struct stat* s) noexcept, AT_FDCWD, p, (p, s))
BY_PATH(int, stat64, "stat", (const char* p, struct stat64* s) noexcept, AT_FDCWD, p, (p, s))
BY_PATH(int, lstat, "lstat", (const char* p, struct stat* s) noexcept, AT_FDCWD, p, (p, s))
BY_PATH(int, lstat64, "lstat", (const char* p, struct stat64* s) noexcept, AT_FDCWD, p, (p, s))
BY_PATH(int, fstatat, "fstatat", (int d, const char* p, struct stat* s, int f) noexcept, d, p,
        (d, p, s, f))
BY_PATH(int, fstatat64, "fstatat", (int d, const char* p, struct stat64* s, int f) noexcept, d, p,
        (d, p, s, f))
BY_PATH(int, statx, "statx", (int d, const char* p, int f, unsigned m, struct statx* s) noexcept, d,
        p, (d, p, f, m, s))
BY_PATH(int, statfs, "statfs", (const char* p, struct statfs* s) noexcept, AT_FDCWD, p, (p, s))
BY_PATH(int, statfs64, "statfs", (const char* p, struct statfs64* s) noexcept, AT_FDCWD, p, (p, s))
BY_PATH(int, access, "access", (const char* p, int m) noexcept, AT_FDCWD, p, (p, m))
BY_PATH(int, faccessat, "access", (int d, const char* p, int m, int f) noexcept, d, p, (d, p, m, f))
BY_PATH(int, euidaccess, "access", (const char* p, int m) noexcept, AT_FDCWD, p, (p, m))
BY_PATH(int, eaccess, "access", (const char* p, int m) noexcept, AT_FDCWD, p, (p, m))
BY_PATH(ssize_t, readlink, "readlink", (const char* p, char* b, size_t n) noexcept, AT_FDCWD, p,
        (p, b, n))
BY_PATH(ssize_t, readlinkat, "readlink", (int d, const char* p, char* b, size_t n) noexcept, d, p,
        (d, p, b, n))
BY_PATH(char*, realpath, "realpath", (const char* p, char* b) noexcept, AT_FDCWD, p, (p, b))
BY_PATH(ssize_t, getxattr, "getxattr", (const char* p, const char* k, void* b, size_t n) noexcept,
        AT_FDCWD, p, (p, k, b, n))
BY_PATH(ssize_t, lgetxattr, "getxattr", (const char* p, const char* k, void* b, size_t n) noexcept,
        AT_FDCWD, p, (p, k, b, n))
BY_PATH(FILE*, fopen, "open", (const char* p, const char* m), AT_FDCWD, p, (p, m))
BY_PATH(FILE*, fopen64, "open", (const char* p, const char* m), AT_FDCWD, p, (p, m))
BY_PATH(int, inotify_add_watch, "inotify_add_watch", (int w, const char* p, uint32_t m) noexcept,
        AT_FDCWD, p, (w, p, m))

BY_FILE(int, fstat, "fstat", (int f, struct stat* s) noexcept, f, (f, s))
BY_FILE(int, fstat64, "fstat", (int f, struct stat64* s) noexcept, f, (f, s))
BY_FILE(ssize_t, read, "read", (int f, void* b, size_t n), f, (f, b, n))
BY_FILE(ssize_t, pread, "pread", (int f, void* b, size_t n, off_t o), f, (f, b, n, o))
BY_FILE(ssize_t, pread64, "pread", (int f, void* b, size_t n, off64_t o), f, (f, b, n, o))

#define OPEN(name)                                                                                 \
    int name(const char* path, int flags, ...)                                                     \
    {                                                                                              \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(rest, mode_t) : 0;              \
        va_end(rest);                                                                              \
        travelTo(AT_FDCWD, path, "open");                                                          \
        return opened(NEXT(name)(path, flags, mode), isShared(AT_FDCWD, path));                    \
    }
#define OPENAT(name)                                                                               \
    int name(int folder, const char* path, int flags, ...)                                         \
    {                                                                                              \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(rest, mode_t) : 0;              \
        va_end(rest);                                                                              \
        travelTo(folder, path, "open");                                                            \
        return opened(NEXT(name)(folder, path, flags, mode), isShared(folder, path));              \
    }
OPEN(open)
OPEN(open64)
OPENAT(openat)
OPENAT(openat64)

DIR* opendir(const char* path)
{
    travelTo(AT_FDCWD, path, "opendir");
    DIR* const folder = NEXT(opendir)(path);
    if (folder)
        opened(dirfd(folder), isShared(AT_FDCWD, path));
    return folder;
}

struct dirent* readdir(DIR* folder)
{
    return entered(folder, NEXT(readdir)(folder));
}

struct dirent64* readdir64(DIR* folder)
{
    return entered(folder, NEXT(readdir64)(folder));
}

// A number that is used again may be another kind of file's, a socket's.
int close(int file)
{
    opened(file, false);
    return NEXT(close)(file);
}

int closedir(DIR* folder)
{
    opened(dirfd(folder), false);
    return NEXT(closedir)(folder);
}

} // extern "C"
