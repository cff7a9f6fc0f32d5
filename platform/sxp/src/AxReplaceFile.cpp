#include "AxReplaceFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// The file that a link stands for; the name itself when there is nothing yet.
std::string resolved(std::string const& path)
{
    std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
    return real != nullptr ? std::string(real.get()) : path;
}

bool writeAll(int descriptor, std::string_view text)
{
    while (!text.empty())
    {
        ssize_t count = write(descriptor, text.data(), text.size());
        if (count >= 0)
        {
            text.remove_prefix(static_cast<std::size_t>(count));
        }
        else if (errno != EINTR)
        {
            return false;
        }
    }
    return true;
}

/// Rights of the old file, or those that a new file gets.
mode_t rightsFor(std::string const& path)
{
    struct stat status
    {
    };
    if (stat(path.c_str(), &status) == 0)
    {
        return status.st_mode & 07777;
    }
    mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// Answers 0 or an errno value.
int replace(std::string const& path, std::string_view text)
{
    std::string beside = path + ".XXXXXX";
    int descriptor = mkstemp(beside.data());
    if (descriptor < 0)
    {
        return errno;
    }
    int error = 0;
    if (!writeAll(descriptor, text) || fchmod(descriptor, rightsFor(path)) != 0 || fsync(descriptor) != 0)
    {
        error = errno;
    }
    if (close(descriptor) != 0 && error == 0)
    {
        error = errno;
    }
    if (error == 0 && std::rename(beside.c_str(), path.c_str()) != 0)
    {
        error = errno;
    }
    if (error != 0)
    {
        unlink(beside.c_str());
    }
    return error;
}
} // namespace

bool axReplaceFile(AxFilename const& file, std::string_view text, int& error)
{
    try
    {
        error = replace(resolved(file.native()), text);
    }
    catch (std::exception const&)
    {
        error = ENOMEM;
    }
    return error == 0;
}
