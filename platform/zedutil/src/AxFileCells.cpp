#include "AxFileCells.h"

#include "AxDiagnostic.h"
#include "AxReadWholeFile.h"
#include "AxlFunctions.h"

#include <cerrno>
#include <ctime>
#include <map>
#include <sys/stat.h>
#include <utility>

namespace
{
constexpr std::int64_t theSecond = 1'000'000'000;

std::int64_t nanoseconds(timespec const& time)
{
    return std::int64_t{time.tv_sec} * theSecond + time.tv_nsec;
}

struct KeptFile
{
    AxFileIdentity identity;
    AxlObjPtr cells;
};

/// Bounded by bytes of text; when it is full all of it goes, which costs one more reading of each file.
struct Cache
{
    static constexpr std::int64_t most = std::int64_t{64} << 20;

    std::map<std::pair<dev_t, ino_t>, KeptFile> files;
    std::int64_t size = 0;
};

Cache& cache()
{
    static auto* const kept = new Cache; // cells may be given back after static objects are gone
    return *kept;
}

/// Two writes within one tick of the clock leave the same time stamp, so a young file is not worth keeping.
bool isSettled(AxFileIdentity const& identity)
{
    constexpr std::int64_t young = theSecond / 10;
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return nanoseconds(now) - identity.modified > young;
}

void keep(AxFileIdentity const& identity, AxlObjPtr const& cells)
{
    if (identity.size > Cache::most / 4)
    {
        return;
    }
    if (cache().size + identity.size > Cache::most)
    {
        axForgetFileCells();
    }
    cache().files.insert_or_assign({identity.device, identity.inode}, KeptFile{identity, cells});
    cache().size += identity.size;
}

void reportTrailingText(AxlInputStream& stream)
{
    AxDiagnostic fault;
    if (axTextFollows(stream, fault.line, fault.column))
    {
        fault.severity = AxSeverity::Warning;
        fault.code = "text-after-end";
        fault.text = "text after the end of the expression is ignored";
        AxDiagnostics::report(std::move(fault));
    }
}
} // namespace

bool AxFileIdentity::look(AxFilename const& file)
{
    struct stat status
    {
    };
    if (stat(file.native().c_str(), &status) != 0)
    {
        return false;
    }
    if (!S_ISREG(status.st_mode))
    {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return false;
    }
    device = status.st_dev;
    inode = status.st_ino;
    size = status.st_size;
    modified = nanoseconds(status.st_mtim);
    changed = nanoseconds(status.st_ctim);
    return true;
}

bool axReadFileCells(AxFilename const& file, AxFileIdentity const& identity, AxlReadResult& read)
{
    auto const known = cache().files.find({identity.device, identity.inode});
    if (known != cache().files.end() && known->second.identity == identity)
    {
        read = {known->second.cells};
        return true;
    }
    std::string text;
    int error = 0;
    if (!axReadWholeFile(file, text, error))
    {
        errno = error;
        return false;
    }
    AxlInputStream stream(std::move(text));
    AxlReadOptions options;
    options.closeOpenLists = true;
    read = AxcRead(stream, AxlEnv(), options);
    reportTrailingText(stream);
    if (!read.unclosed && isSettled(identity))
    {
        keep(identity, read.expr);
    }
    return true;
}

void axForgetFileCells()
{
    cache().files.clear();
    cache().size = 0;
}

void axReportParseFailure(std::string const& file, AxDiagnostic fault)
{
    AxDiagnostics::reportStated(std::move(fault), "AxReaderWriterFile::getSelf failed while parsing " + file + '\n');
}
