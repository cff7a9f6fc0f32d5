#include "SystemCalls.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// The functions below stand in front of those of the C library for everything in the process.

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace
{
using Kind = SystemFault::Kind;

SystemFault theFault;
bool isOn = false;
int theCalls = 0;

bool isDue(Kind kind)
{
    return isOn && theFault.kind == kind && theCalls == theFault.n;
}

/// Counts a call; true, with errno, when it is to fail.
bool fails()
{
    if (!isOn)
    {
        return false;
    }
    ++theCalls;
    if (isDue(Kind::Kill))
    {
        _exit(SystemFault::killed);
    }
    if (isDue(Kind::Fail) || (theFault.kind == Kind::FailOnwards && theCalls >= theFault.n))
    {
        errno = theFault.error;
        return true;
    }
    return false;
}

template <typename Function>
Function next(char const* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}
} // namespace

SystemFaultScope::SystemFaultScope(SystemFault const& fault)
{
    theFault = fault;
    theCalls = 0;
    isOn = true;
}

SystemFaultScope::~SystemFaultScope()
{
    isOn = false;
}

int SystemFaultScope::calls()
{
    return theCalls;
}

EXPORTED int open(char const* file, int flags, ...)
{
    static auto const real = next<int (*)(char const*, int, ...)>("open");
    va_list rest;
    va_start(rest, flags);
    mode_t const rights = flags & O_CREAT ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return fails() ? -1 : real(file, flags, rights);
}

EXPORTED int mkstemp(char* pattern)
{
    static auto const real = next<decltype(&mkstemp)>("mkstemp");
    return fails() ? -1 : real(pattern);
}

EXPORTED ssize_t write(int descriptor, void const* bytes, size_t size)
{
    static auto const real = next<decltype(&write)>("write");
    if (fails())
    {
        return -1;
    }
    bool const isLast = isDue(Kind::KillInWrite);
    ssize_t const written = real(descriptor, bytes, isLast || isDue(Kind::ShortWrite) ? size / 2 : size);
    if (isLast)
    {
        _exit(SystemFault::killed);
    }
    return written;
}

EXPORTED ssize_t read(int descriptor, void* bytes, size_t size)
{
    static auto const real = next<decltype(&read)>("read");
    return fails() ? -1 : real(descriptor, bytes, size);
}

EXPORTED int fsync(int descriptor)
{
    static auto const real = next<decltype(&fsync)>("fsync");
    return fails() ? -1 : isOn ? 0 : real(descriptor);
}

EXPORTED int close(int descriptor)
{
    static auto const real = next<decltype(&close)>("close");
    // The system closes it, whatever it answers.
    bool const isFailing = fails();
    int const error = errno;
    int const result = real(descriptor);
    errno = isFailing ? error : errno;
    return isFailing ? -1 : result;
}

EXPORTED int fchmod(int descriptor, mode_t rights) noexcept
{
    static auto const real = next<decltype(&fchmod)>("fchmod");
    return fails() ? -1 : real(descriptor, rights);
}

EXPORTED int rename(char const* from, char const* to) noexcept
{
    static auto const real = next<decltype(&rename)>("rename");
    return fails() ? -1 : real(from, to);
}

EXPORTED int renameat2(int fromFolder, char const* from, int toFolder, char const* to, unsigned flags) noexcept
{
    static auto const real = next<decltype(&renameat2)>("renameat2");
    return fails() ? -1 : real(fromFolder, from, toFolder, to, flags);
}

EXPORTED int unlink(char const* file) noexcept
{
    static auto const real = next<decltype(&unlink)>("unlink");
    return fails() ? -1 : real(file);
}

EXPORTED int mkdir(char const* folder, mode_t rights) noexcept
{
    static auto const real = next<decltype(&mkdir)>("mkdir");
    return fails() ? -1 : real(folder, rights);
}

EXPORTED int access(char const* file, int rights) noexcept
{
    static auto const real = next<decltype(&access)>("access");
    return fails() ? -1 : real(file, rights);
}

EXPORTED int stat(char const* file, struct stat* status) noexcept
{
    static auto const real = next<int (*)(char const*, struct stat*)>("stat");
    return fails() ? -1 : real(file, status);
}

EXPORTED char* realpath(char const* file, char* resolved) noexcept
{
    static auto const real = next<decltype(&realpath)>("realpath");
    return fails() ? nullptr : real(file, resolved);
}
