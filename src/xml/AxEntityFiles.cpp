#include "AxEntityFiles.h"

#include "AxEnvXMLReader.h"

#include <boost/make_shared.hpp>
#include <map>
#include <string>
#include <sys/stat.h>
#include <tuple>

namespace
{
/// What tells one content of a file from another: size, inode, time of the last change.
using Version = std::tuple<off_t, ino_t, time_t, long>;

struct Parsed
{
    Version version;
    boost::weak_ptr<AxEnvironment> tree;
    boost::shared_ptr<AxObjectIndex> objects;
};

Version versionOf(std::FILE* file)
{
    struct stat status
    {
    };
    fstat(fileno(file), &status);
    return {status.st_size, status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}
} // namespace

AxEntityFiles::Tree AxEntityFiles::tree(std::FILE* file, AxFilename const& name)
{
    static std::map<std::string, Parsed> parsed;
    static std::size_t most = 0; // entries that are not worth looking through again

    Version const version = versionOf(file);
    std::string const path = name.native();
    auto const known = parsed.find(path);
    if (known != parsed.end() && known->second.version == version)
    {
        if (AxEnvironmentPtr const shared = known->second.tree.lock())
        {
            return {shared, known->second.objects};
        }
    }
    if (parsed.size() > most)
    {
        std::erase_if(parsed, [](auto const& entry) { return entry.second.tree.expired(); });
        most = 2 * parsed.size() + 16;
    }
    Tree read;
    read.environment = AxEnvXMLReader::readOpenFile(file, name);
    if (read.environment)
    {
        read.objects = boost::make_shared<AxObjectIndex>();
        parsed[path] = {version, read.environment, read.objects};
    }
    return read;
}
