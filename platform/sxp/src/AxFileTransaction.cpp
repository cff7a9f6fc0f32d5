#include "AxFileTransaction.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <iterator>
#include <memory>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// The file that a link stands for, else the name itself, with what is known of it. Answers 0 or an errno value.
int resolve(std::string const& path, std::string& target, struct stat& status)
{
    std::unique_ptr<char, decltype(&std::free)> const real(::realpath(path.c_str(), nullptr), &std::free);
    int const error = real != nullptr ? 0 : errno;
    target = real != nullptr ? std::string(real.get()) : path;
    return error == 0 && ::stat(target.c_str(), &status) != 0 ? errno : error;
}

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
        if (written == 0)
        {
            errno = EIO;
        }
        if (written == 0 || (written < 0 && errno != EINTR))
        {
            return false;
        }
        text.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return true;
}

mode_t rightsOfNewFile()
{
    mode_t const mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// Answers 0 or an errno value; `temporary` is a pattern as mkstemp takes it, then the file written, if any.
int writeTemporary(std::string& temporary, std::string_view text, mode_t rights)
{
    int const descriptor = ::mkstemp(temporary.data());
    if (descriptor < 0)
    {
        return errno;
    }
    bool const isWritten = ::fchmod(descriptor, rights) == 0 && writeAll(descriptor, text) && ::fsync(descriptor) == 0;
    int error = isWritten ? 0 : errno;
    if (::close(descriptor) != 0 && isWritten)
    {
        error = errno;
    }
    if (error != 0)
    {
        ::unlink(temporary.c_str());
    }
    return error;
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
    removeTemporaries();
}

void AxFileTransaction::removeTemporaries()
{
    for (Staged const& file : myStaged)
    {
        ::unlink(file.temporary.c_str());
    }
    myStaged.clear();
}

bool AxFileTransaction::stage(AxFilename const& file, std::string_view text, int& error)
{
    std::string target;
    struct stat before = {};
    error = resolve(file.native(), target, before);
    bool const isThere = error == 0;
    if (error == ENOENT)
    {
        error = 0;
    }
    else if (isThere)
    {
        error = S_ISDIR(before.st_mode) ? EISDIR : ::access(target.c_str(), W_OK) != 0 ? errno : 0;
    }
    if (error != 0)
    {
        return false;
    }
    // What needs memory comes first: without it nothing may be left beside the target.
    std::string temporary = directoryOf(target) + "/.zedobjparam-XXXXXX";
    auto const [name, isFirst] = myTargets.insert(file.native());
    myStaged.push_back({std::move(temporary), std::move(target), isThere ? Way::Exchange : Way::New});
    error = writeTemporary(myStaged.back().temporary, text, isThere ? before.st_mode & 07777 : rightsOfNewFile());
    if (error != 0)
    {
        myStaged.pop_back();
        if (isFirst)
        {
            myTargets.erase(name);
        }
    }
    return error == 0;
}

bool AxFileTransaction::replace(Staged& file)
{
    char const* const from = file.temporary.c_str();
    char const* const to = file.target.c_str();
    if (file.way == Way::Exchange)
    {
        if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_EXCHANGE) == 0)
        {
            return true;
        }
        if (errno != EINVAL && errno != ENOSYS && errno != ENOENT)
        {
            return false;
        }
        file.way = errno == ENOENT ? Way::New : Way::Over;
    }
    return ::rename(from, to) == 0;
}

void AxFileTransaction::takeBack(Staged const& file)
{
    if (file.way == Way::Exchange)
    {
        ::renameat2(AT_FDCWD, file.temporary.c_str(), AT_FDCWD, file.target.c_str(), RENAME_EXCHANGE);
    }
    else if (file.way == Way::New)
    {
        ::rename(file.target.c_str(), file.temporary.c_str());
    }
}

bool AxFileTransaction::commit(int& error)
{
    std::set<std::string> directories;
    for (Staged const& file : myStaged)
    {
        directories.insert(directoryOf(file.target));
    }
    if (!myStaged.empty() && myStaged.back().way == Way::Exchange)
    {
        // Nothing comes after the last one that could fail.
        myStaged.back().way = Way::Over;
    }
    auto const failed = std::find_if_not(myStaged.begin(), myStaged.end(), replace);
    bool const areAllReplaced = failed == myStaged.end();
    if (!areAllReplaced)
    {
        error = errno;
        std::for_each(std::make_reverse_iterator(failed), myStaged.rend(), takeBack);
    }
    for (std::string const& directory : directories)
    {
        flushDirectory(directory);
    }
    removeTemporaries();
    return areAllReplaced;
}

bool AxFileTransaction::stages(AxFilename const& file) const
{
    return myTargets.contains(file.native());
}
