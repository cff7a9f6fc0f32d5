#include "AxReaderWriterFile.h"

#include "AxDiagnostic.h"
#include "AxFileCells.h"
#include "AxReplaceFile.h"

#include <algorithm>
#include <boost/filesystem/directory.hpp>
#include <boost/filesystem/operations.hpp>
#include <cerrno>
#include <exception>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace filesystem = boost::filesystem;

namespace
{
void report(char const* code, std::string text)
{
    AxDiagnostic fault;
    fault.severity = AxSeverity::Warning;
    fault.code = code;
    fault.text = std::move(text);
    AxDiagnostics::report(std::move(fault));
}

void reportUnreadable(std::string const& directory, std::string const& reason)
{
    report("unreadable-directory", "cannot read the directory " + directory + ": " + reason);
}

/// The names below `directory`, relative to it; links to directories are not followed, those to nothing are told.
std::vector<std::string> filesBelow(std::string const& root, std::string const& ending)
{
    std::vector<std::string> found;
    std::vector<std::string> pending{std::string()};
    while (!pending.empty())
    {
        std::string const prefix = std::move(pending.back());
        pending.pop_back();
        filesystem::path const directory = filesystem::path(root) / prefix;
        boost::system::error_code error;
        filesystem::directory_iterator entry(directory, error);
        for (; !error && entry != filesystem::directory_iterator(); entry.increment(error))
        {
            boost::system::error_code ignored;
            std::string const name = prefix + entry->path().filename().string();
            if (entry->symlink_status(ignored).type() == filesystem::directory_file)
            {
                pending.push_back(name + '/');
            }
            else if (name.ends_with(ending))
            {
                filesystem::file_type const type = entry->status(ignored).type();
                if (type == filesystem::regular_file)
                {
                    found.push_back(name);
                }
                else if (type == filesystem::file_not_found)
                {
                    report("missing-file", "cannot read " + entry->path().string() + ": the link leads nowhere");
                }
            }
        }
        if (error)
        {
            reportUnreadable(directory.string(), error.message());
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

/// Opens without waiting for anybody at the other end of a pipe; null, with errno, unless it is a regular file.
std::FILE* openRegular(AxFilename const& file)
{
    int const descriptor = open(file.native().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
    {
        return nullptr;
    }
    struct stat status
    {
    };
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
    {
        if (std::FILE* const opened = fdopen(descriptor, "r"))
        {
            return opened;
        }
    }
    close(descriptor);
    errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    return nullptr;
}
} // namespace

std::vector<AxFilename> AxReaderWriterFile::findFilesByExtension(AxFilename const& directory, AxString const& extension)
{
    std::vector<AxFilename> found;
    try
    {
        bool const hasPoint = extension.string().starts_with('.');
        std::string const root = directory.isNull() ? std::string(".") : directory.native();
        for (std::string const& name : filesBelow(root, (hasPoint ? "" : ".") + extension.string()))
        {
            found.push_back(directory.combine(AxFilename(name)));
        }
    }
    catch (std::exception const& error)
    {
        reportUnreadable(directory.native(), error.what());
    }
    return found;
}

std::FILE* AxReaderWriterFile::loadHighestPriorityFile(AxFilename const& file,
                                                       std::vector<AxFilename> const& searchPaths, AxFilename& found,
                                                       bool alsoAsGiven)
{
    if (file.isNull())
    {
        errno = ENOENT;
        return nullptr;
    }
    std::vector<AxFilename> names;
    if (file.isRelative())
    {
        for (AxFilename const& directory : searchPaths)
        {
            names.push_back(directory.combine(file));
        }
    }
    if (alsoAsGiven || !file.isRelative())
    {
        names.push_back(file);
    }
    int mostTelling = ENOENT;
    for (AxFilename const& name : names)
    {
        if (std::FILE* const opened = openRegular(name))
        {
            found = name;
            return opened;
        }
        if (mostTelling == ENOENT && errno != ENOTDIR)
        {
            mostTelling = errno;
        }
    }
    errno = mostTelling;
    return nullptr;
}

bool AxReaderWriterFile::writeWholeFile(AxFilename const& file, std::string const& text)
{
    int error = 0;
    bool const isWritten = axReplaceFile(file, text, error);
    axForgetFileCells();
    errno = error;
    return isWritten;
}

void AxReaderWriterFile::clearFileCache()
{
    axForgetFileCells();
}
