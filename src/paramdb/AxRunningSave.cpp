#include "AxRunningSave.h"

#include "AxGuarded.h"
#include "AxParameterDbFiles.h"
#include "AxStreams.h"
#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"

#include <algorithm>
#include <boost/algorithm/string/case_conv.hpp>
#include <cstring>
#include <filesystem>

namespace
{
AxRunningSave* theCurrent = nullptr;
} // namespace

AxRunningSave::AxRunningSave(AxSxpParameterDb& db, AxFilename const& file)
    : myDb(db),
      myFormerVersion(db.versionNumber()),
      myDirectory(axDirectoryOf(file)),
      myFilenames(db.dependentParameterFileToCopyPairs())
{
    axBindDatabaseDirectory(myDatabaseVariables, myDirectory);
    theCurrent = this;
}

AxRunningSave::~AxRunningSave()
{
    theCurrent = nullptr;
    if (myIsFinished)
    {
        return;
    }
    myFilenames.takeBack();
    // What follows may be a host's, and may throw again.
    auto const guarded = [](auto const& step)
    {
        axGuarded("save-failed", AxFilename::nullFilename(), false,
                  [&step]
                  {
                      step();
                      return true;
                  });
    };
    guarded([this] { myDb.setVersionNumber(myFormerVersion); });
    for (AxListItem const* item = myDb.parameterList().first(); item != nullptr; item = item->next())
    {
        auto* const entry = dynamic_cast<AxSxpParameterDbEntry*>(static_cast<AxZedParameterDbEntry*>(item->data()));
        auto const former = myFormerNames.find(entry);
        if (former != myFormerNames.end())
        {
            guarded([&] { entry->setFilename(former->second); });
        }
    }
    if (!myMadeDirectory.isNull())
    {
        // Stays when it holds anything.
        std::error_code ignored;
        std::filesystem::remove(myMadeDirectory.native(), ignored);
    }
}

AxRunningSave* AxRunningSave::current()
{
    return theCurrent;
}

void AxRunningSave::startDirectory(AxFilename const& directory)
{
    std::error_code error; // Boost's function ends the process when memory runs out
    bool const isNew = std::filesystem::create_directories(directory.native(), error);
    AxInfo("Creating parameter file directory %s\n", directory.native().c_str());
    if (error)
    {
        AxDiagnostics::report(axFault("cannot-create", directory, error.message()));
        return;
    }
    if (isNew)
    {
        myMadeDirectory = directory;
        return;
    }
    for (AxListItem const* item = myDb.parameterList().first(); item != nullptr; item = item->next())
    {
        auto const* const entry =
            dynamic_cast<AxSxpParameterDbEntry const*>(static_cast<AxZedParameterDbEntry const*>(item->data()));
        AxFilename const found =
            entry != nullptr && entry->parameters() == nullptr ? entry->foundFilename() : AxFilename();
        if (!found.isNull() && std::filesystem::equivalent(std::filesystem::absolute(found.native()).parent_path(),
                                                           std::filesystem::path(directory.native()), error))
        {
            unusedName(found.stripPath());
        }
    }
}

AxFilename AxRunningSave::unusedName(AxFilename const& file)
{
    std::string const& text = file.string().string();
    std::size_t const point = std::min(text.rfind('.'), text.size());
    std::string name = text;
    int& copy = myNextCopies.try_emplace(boost::algorithm::to_lower_copy(text), 2).first->second;
    for (; !myNames.insert(boost::algorithm::to_lower_copy(name)).second; ++copy)
    {
        name = text.substr(0, point) + '-' + std::to_string(copy) + text.substr(point);
    }
    return AxFilename(name);
}

void AxRunningSave::rename(AxSxpParameterDbEntry& entry, AxFilename const& file)
{
    myFormerNames.emplace(&entry, entry.filename());
    entry.setFilename(file);
}

bool AxRunningSave::isHopeless(AxFilename const& file)
{
    if (!myHasFailed || myIsProbed)
    {
        return false;
    }
    myIsProbed = true;
    int ignored = 0;
    return !AxFileTransaction().stage(file, "", ignored);
}

bool AxRunningSave::finish(AxFilename const& file)
{
    int error = 0;
    myIsFinished = myFiles.commit(error);
    if (!myIsFinished)
    {
        AxDiagnostics::report(axFault("cannot-write", file, std::strerror(error)));
    }
    return myIsFinished;
}
