#include "AxFileTransaction.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
std::string directoryOf(std::string const& file)
{
    std::size_t const slash = file.rfind('/');
    return slash == std::string::npos ? "." : slash == 0 ? "/" : file.substr(0, slash);
}

bool writeAll(int descriptor, std::string_view text)
{
    while (!text.empty())
    {
        ssize_t const written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR)
        {
            return false;
        }
        text.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return true;
}

void flushDirectory(std::string const& directory)
{
    int const descriptor = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0)
    {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}
} // namespace

AxFileTransaction::~AxFileTransaction()
{
    for (Staged const& file : myStaged)
    {
        ::unlink(file.temporary.c_str());
    }
}

bool AxFileTransaction::stage(AxFilename const& file, std::string_view text, int& error)
{
    std::string const target = file.native();
    std::string const directory = directoryOf(target);
    struct stat before = {};
    bool const isThere = ::stat(target.c_str(), &before) == 0;
    if (isThere && (S_ISDIR(before.st_mode) || ::access(target.c_str(), W_OK) != 0))
    {
        error = S_ISDIR(before.st_mode) ? EISDIR : errno;
        return false;
    }
    std::string temporary = directory + "/.zedobjparam-XXXXXX";
    int const descriptor = ::mkstemp(temporary.data());
    if (descriptor < 0)
    {
        error = errno;
        return false;
    }
    mode_t const mask = ::umask(0);
    ::umask(mask);
    bool isWritten = ::fchmod(descriptor, isThere ? before.st_mode & 07777 : 0666 & ~mask) == 0 &&
                     writeAll(descriptor, text) && ::fsync(descriptor) == 0;
    error = errno;
    if (::close(descriptor) != 0 && isWritten)
    {
        error = errno;
        isWritten = false;
    }
    if (!isWritten)
    {
        ::unlink(temporary.c_str());
        return false;
    }
    myStaged.push_back({std::move(temporary), target});
    myTargets.insert(target);
    return true;
}

bool AxFileTransaction::commit(int& error)
{
    std::set<std::string> directories;
    auto file = myStaged.begin();
    for (; file != myStaged.end() && ::rename(file->temporary.c_str(), file->target.c_str()) == 0; ++file)
    {
        directories.insert(directoryOf(file->target));
    }
    error = errno;
    bool const areAllRenamed = file == myStaged.end();
    myStaged.erase(myStaged.begin(), file);
    for (std::string const& directory : directories)
    {
        flushDirectory(directory);
    }
    return areAllRenamed;
}

bool AxFileTransaction::stages(AxFilename const& file) const
{
    return myTargets.contains(file.native());
}
