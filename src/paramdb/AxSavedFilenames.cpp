#include "AxSavedFilenames.h"

#include "AxParameterDbFiles.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxSxpParameterDbEntry.h"
#include "AxZedObjectParameters.h"

#include <algorithm>
#include <filesystem>

namespace
{
/// The file members of a record with relative names; not those in files that it names, which have names of their own.
void collect(AxReaderWriter& rw, std::vector<AxReaderWriterFile*>& files)
{
    if (auto* const file = dynamic_cast<AxReaderWriterFile*>(&rw))
    {
        if (!file->filename().isNull() && file->filename().isRelative() && !file->isVariableReference())
        {
            files.push_back(file);
        }
        return;
    }
    AxReaderWriterRegistry const* const members = rw.registryIfAny();
    for (std::size_t i = 0; members && i < members->size(); ++i)
    {
        if (AxRegistryEntry const entry = members->entry(i); !entry.content)
        {
            collect(*entry.member, files);
        }
    }
    if (auto* const list = dynamic_cast<AxRwList*>(&rw))
    {
        for (AxListItem const* item = list->first(); item; item = item->next())
        {
            collect(*AxRwList::element(item), files);
        }
    }
}

// By the standard library: Boost's comparison of paths ends the process when memory runs out.
std::filesystem::path canonical(AxFilename const& file)
{
    std::error_code ignored;
    return std::filesystem::weakly_canonical(std::filesystem::absolute(file.native(), ignored), ignored);
}

/// The file that the member names; empty when there is none.
std::filesystem::path foundFile(AxReaderWriterFile const& member, std::vector<AxFilename> const& directories)
{
    AxFilename found = member.foundFilename();
    if (found.isNull())
    {
        AxFilePtr const open(AxReaderWriterFile::loadHighestPriorityFile(member.filename(), directories, found, true));
        found = open ? found : AxFilename();
    }
    return found.isNull() ? std::filesystem::path() : canonical(found);
}
} // namespace

void AxSavedFilenames::settle(AxSxpParameterDbEntry const& entry, AxFilename const& directory)
{
    std::vector<AxReaderWriterFile*> members;
    collect(*entry.parameters(), members);
    AxFilename const source = members.empty() ? AxFilename() : entry.foundFilename();
    if (source.isNull())
    {
        return;
    }
    std::vector<AxFilename> const& paths = entry.searchPaths();
    std::vector<AxFilename> directories{source.directory()};
    directories.insert(directories.end(), paths.begin(), paths.end());
    if (!entry.path().isNull())
    {
        directories.push_back(entry.path());
    }
    for (AxReaderWriterFile* const member : members)
    {
        std::filesystem::path place = foundFile(*member, directories);
        if (place.empty())
        {
            continue;
        }
        if (auto const copy = myCopies.find(AxString(place.string())); copy != myCopies.end())
        {
            place = canonical(AxFilename(copy->second));
        }
        AxFilename const beside = directory.combine(member->filename());
        auto const isPlace = [&](AxFilename const& path)
        { return canonical(path.combine(member->filename())) == place; };
        if (canonical(beside) == place || (!beside.exists() && std::any_of(paths.begin(), paths.end(), isPlace)))
        {
            continue;
        }
        std::filesystem::path const name = place.lexically_relative(canonical(directory));
        myFormer.push_back({member, member->filename()});
        member->nameAnew(AxFilename((name.empty() ? place : name).generic_string()));
    }
}

void AxSavedFilenames::takeBack(std::size_t kept)
{
    for (; myFormer.size() > kept; myFormer.pop_back())
    {
        myFormer.back().member->nameAnew(myFormer.back().name);
    }
}
