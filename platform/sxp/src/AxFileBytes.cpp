#include "AxFileBytes.h"

#include <cerrno>
#include <cstddef>
#include <exception>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "AxLimits.h"
#include "AxReadWholeFile.h"

namespace
{
constexpr std::size_t theFirstSize = 16 * 1024;

/// Reads with `readSome(to, size)`, which answers bytes read, 0 at the end, below 0 on failure; where `fills`, less
/// than asked for only at the end. `expected` is a hint. Answers 0 or an errno value.
template <typename ReadSome>
int readAll(std::string& out, std::size_t expected, bool fills, ReadSome readSome)
{
    std::size_t size = 0;
    // One byte more than expected, so that the end of the file is seen without growing.
    out.resize((expected != 0 ? expected : theFirstSize) + 1);
    for (;;)
    {
        std::ptrdiff_t count = readSome(out.data() + size, out.size() - size);
        if (count < 0)
        {
            return errno != 0 ? errno : EIO;
        }
        size += static_cast<std::size_t>(count);
        if (size > axLimits.fileSize)
        {
            return EFBIG;
        }
        if (count == 0 || (fills && size < out.size()))
        {
            out.resize(size);
            return 0;
        }
        if (size == out.size())
        {
            out.resize(2 * size);
        }
    }
}

std::size_t expectedSize(struct stat const& status)
{
    return S_ISREG(status.st_mode) && status.st_size > 0 ? static_cast<std::size_t>(status.st_size) : 0;
}

int readDescriptor(int descriptor, std::string& out)
{
    struct stat status
    {
    };
    if (fstat(descriptor, &status) != 0)
    {
        return errno;
    }
    if (!S_ISREG(status.st_mode))
    {
        return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    }
    if (expectedSize(status) > axLimits.fileSize)
    {
        return EFBIG;
    }
    return readAll(out, expectedSize(status), false,
                   [descriptor](char* to, std::size_t size)
                   {
                       ssize_t count = 0;
                       do
                       {
                           count = read(descriptor, to, size);
                       } while (count < 0 && errno == EINTR);
                       return static_cast<std::ptrdiff_t>(count);
                   });
}
} // namespace

bool axReadRest(std::FILE* file, std::string& out)
{
    out.clear();
    if (file == nullptr)
    {
        return false;
    }
    struct stat status
    {
    };
    int descriptor = fileno(file);
    // A stream in memory has no descriptor and is read all the same.
    bool known = descriptor >= 0 && fstat(descriptor, &status) == 0;
    if (known && (S_ISDIR(status.st_mode) || expectedSize(status) > axLimits.fileSize))
    {
        return false;
    }
    int error = readAll(out, known ? expectedSize(status) : 0, true,
                        [file](char* to, std::size_t size)
                        {
                            errno = 0;
                            std::size_t count = std::fread(to, 1, size, file);
                            return count < size && std::ferror(file) != 0 ? std::ptrdiff_t(-1)
                                                                          : static_cast<std::ptrdiff_t>(count);
                        });
    if (error != 0)
    {
        out.clear();
    }
    return error == 0;
}

bool axReadWholeFile(AxFilename const& file, std::string& out, int& error)
{
    out.clear();
    // Without waiting: opening a pipe that nobody writes to would stop here for ever.
    int descriptor = open(file.native().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
    {
        error = errno;
        return false;
    }
    try
    {
        error = readDescriptor(descriptor, out);
    }
    catch (std::exception const&)
    {
        error = ENOMEM;
    }
    close(descriptor);
    if (error != 0)
    {
        out.clear();
    }
    return error == 0;
}
