#include "AxSxpParameterDbWriter.h"

#include "AxGuarded.h"
#include "AxParameterDbFiles.h"
#include "AxReadWholeFile.h"
#include "AxReaderWriterFile.h"
#include "AxRemoteConfigurationList.h"
#include "AxReplaceFile.h"
#include "AxRunningSave.h"
#include "AxRwVariableBindings.h"
#include "AxStreams.h"
#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"
#include "AxSxpParameterDbFileData.h"
#include "AxZedObjectParameters.h"

#include <cstring>
#include <filesystem>
#include <memory>

namespace
{
constexpr int theSavedVersion = 101;

/// The callback that `write` sets for the whole process, as long as it runs.
class CallbackScope
{
public:
    CallbackScope(AxReaderWriter::PrePutSelfCallback callback, void* writer)
    {
        AxReaderWriter::setPrePutSelfCallback(callback, writer);
    }
    CallbackScope(CallbackScope const&) = delete;
    CallbackScope& operator=(CallbackScope const&) = delete;
    ~CallbackScope() { AxReaderWriter::setPrePutSelfCallback(nullptr, nullptr); }
};

/// The wall of a file that is written by itself; what fails within a save is told where that ends.
template <class Step>
bool writeGuarded(AxFilename const& file, Step const& step)
{
    return AxRunningSave::current() ? step() : axGuarded("save-failed", file, false, step);
}

bool cannotWrite(AxFilename const& file, int error)
{
    AxDiagnostics::reportStated(axFault("cannot-write", file, std::strerror(error)),
                                axFormat("Could not open parameter file %s for writing\n", file.native().c_str()));
    return false;
}

bool copyFile(AxFilename const& from, AxFilename const& to, AxFileTransaction& files)
{
    std::string text;
    int error = 0;
    std::error_code ignored;
    if (AxFilename const directory = to.directory(); !directory.isNull())
    {
        std::filesystem::create_directories(directory.native(), ignored);
    }
    return axReadWholeFile(from, text, error) && files.stage(to, text, error);
}

void copyDependentFiles(AxSxpParameterDb::CopyPairs const& pairs, AxFileTransaction& files)
{
    if (pairs.empty())
    {
        return;
    }
    AxInfo << "There are parameter files to copy" << AxEndl;
    for (auto const& [fromText, toText] : pairs)
    {
        AxFilename const from(fromText);
        AxFilename const to(toText);
        AxInfo << "From: " << from << " To: " << to << AxEndl;
        std::error_code error;
        if (!std::filesystem::equivalent(from.native(), to.native(), error) && !copyFile(from, to, files))
        {
            AxWarn << "Error copying " << from << " to " << to << AxEndl;
        }
    }
}

/// How the new file names the file of an entry that keeps it: as before, but one that was found below the data root by
/// its place below the database, so that both can be moved together.
AxFilename keptName(AxSxpParameterDbEntry const& entry, AxRunningSave const* save)
{
    AxFilename const& name = entry.filename();
    for (AxFilename const& directory : {entry.databaseDirectory(), save ? save->directory() : AxFilename()})
    {
        AxFilename const place =
            entry.isFromDataRoot() && !directory.isNull() ? axPlaceBelow(directory, name) : AxFilename();
        AxFilename const target = save && !place.isNull() ? save->directory().combine(place) : AxFilename();
        if (!target.isNull() && (target.exists() || save->files().stages(target)))
        {
            return place;
        }
    }
    return name;
}

/// Says when the record of an entry that was not loaded will not be found, or not be read alike, from the new file.
void reportIfLost(AxSxpParameterDbEntry const& entry, AxRunningSave& save)
{
    AxFilename const name = entry.filename();
    if (name.isNull())
    {
        return;
    }
    if (entry.version() < theSavedVersion)
    {
        AxDiagnostics::report(axFault("older-version", name,
                                      "the record was not loaded; its names, of version " +
                                          std::to_string(entry.version()) + ", will be read as of version 101",
                                      AxSeverity::Warning));
        return;
    }
    std::vector<AxFilename> directories = entry.searchPaths();
    if (!entry.path().isNull())
    {
        directories.push_back(entry.path());
    }
    directories.push_back(save.directory());
    AxFilename found;
    AxFilePtr const open(AxReaderWriterFile::loadHighestPriorityFile(name, directories, found, true));
    if (!open && !save.files().stages(save.directory().combine(name)))
    {
        AxDiagnostics::report(axFault("dangling-name", name,
                                      "the record was not loaded and its file is not found from the saved database",
                                      AxSeverity::Warning));
    }
}

void addUnreadItems(AxSxpParameterDbFileData const* unread, AxSxpParameterDbFileData& data)
{
    if (unread)
    {
        for (auto const& [after, text] : unread->keptItems())
        {
            data.keepItem(after, text);
        }
        for (std::string const& text : unread->entryList().unreadElements())
        {
            data.entryList().keepUnread(text);
        }
    }
}
} // namespace

AxSxpParameterDbWriter::~AxSxpParameterDbWriter() = default;

AxSxpParameterDbFileData* AxSxpParameterDbWriter::createParameterDbFileData()
{
    return new AxSxpParameterDbFileData;
}

void AxSxpParameterDbWriter::prePutSelfCb(AxReaderWriter* rw, std::string& out, void* context)
{
    static_cast<AxSxpParameterDbWriter*>(context)->processPrePutSelfCb(rw, out);
}

void AxSxpParameterDbWriter::processPrePutSelfCb(AxReaderWriter*, std::string&) {}

void AxSxpParameterDbWriter::preWrite(AxSxpParameterDbFileData const&, AxFilename const&, std::string&) {}

void AxSxpParameterDbWriter::postWrite(AxSxpParameterDbFileData const&, AxFilename const&, std::string&) {}

AxFilename AxSxpParameterDbWriter::getPath(AxFilename const& file)
{
    return axPathOf(file);
}

AxFilename AxSxpParameterDbWriter::generateOpeDirectory(AxFilename const& fileDir, AxFilename const& parameterDir)
{
    return fileDir.combine(parameterDir);
}

AxFilename AxSxpParameterDbWriter::generateFilename(AxString const& recordName, AxObjectType const& type)
{
    // A separator in a record's name must not lead out of the parameter directory.
    std::string name = recordName.string();
    for (char& byte : name)
    {
        if (AxFilename::isSeparator(byte))
        {
            byte = '_';
        }
    }
    return AxFilename(axFormat("%s_%d_%d_%d_%ld_%d_%d_%d_%d%s", name.c_str(), type.superType(), type.kind(),
                               type.domain(), static_cast<long>(type.country()), type.category(), type.subcategory(),
                               type.specific(), type.extra(), AxSxpParameterDb::opeFilenameExtension().c_str()));
}

bool AxSxpParameterDbWriter::write(AxSxpParameterDb* db, AxFilename const& file, AxFilename const& parameterDir)
{
    if (!db || AxRunningSave::current())
    {
        AxDiagnostics::report(axFault(
            "save-running", file, db ? "a save is running already; one at a time" : "there is no database to save"));
        return false;
    }
    return axGuarded("save-failed", file, false, [&] { return writeFiles(*db, file, parameterDir); });
}

bool AxSxpParameterDbWriter::writeFiles(AxSxpParameterDb& db, AxFilename const& file, AxFilename const& parameterDir)
{
    CallbackScope const callback(&prePutSelfCb, this);
    AxRunningSave save(db, file);
    db.setVersionNumber(theSavedVersion);
    AxFilename const dir = getPath(file);
    save.startDirectory(generateOpeDirectory(dir, parameterDir));
    copyDependentFiles(db.dependentParameterFileToCopyPairs(), save.files());
    std::unique_ptr<AxSxpParameterDbFileData> const data(createParameterDbFileData());
    data->setVersion(theSavedVersion);
    AxSavedVariables const& variables = save.collectVariables(data->variableBindings());
    AxList const& list = db.parameterList();
    std::uint32_t const changes = list.changeCount();
    AxListItem const* item = list.first();
    for (; item; item = item->next())
    {
        auto* const entry = dynamic_cast<AxSxpParameterDbEntry*>(static_cast<AxZedParameterDbEntry*>(item->data()));
        if (!entry)
        {
            AxWarn("Entry in parameter database is NULL or not a AxSxpParameterDbFileEntry\n");
        }
        else if (!entry->temporary())
        {
            AxZedParameterDbEntry::Use const use(*entry); // a hook may remove it
            writeEntry(data.get(), entry, parameterDir, dir);
        }
        if (save.isHopeless(file))
        {
            // One line for the place, not one for each record.
            break;
        }
        if (list.changeCount() != changes)
        {
            AxDiagnostics::report(
                axFault("list-changed", file, "entries came or went during the save; nothing is written"));
            return false;
        }
    }
    addUnreadItems(db.unreadItems(), *data);
    std::unique_ptr<AxRemoteConfigurationList> configurations;
    if (db.remoteConfigurationList() && db.remoteConfigurationListCreatorFcn())
    {
        configurations.reset(db.remoteConfigurationListCreatorFcn()("remote-configurations", data->registry()));
        if (!configurations)
        {
            AxDiagnostics::report(axFault("save-failed", file, "the remote configurations cannot be written"));
            return false;
        }
        *configurations = *db.remoteConfigurationList();
        for (AxRemoteConfiguration* configuration : *configurations)
        {
            if (auto const& read = configuration->variableBindings())
            {
                variables.writeOut(*configuration, *read);
            }
        }
        data->setRemoteConfigurationList(configurations.get());
    }
    bool const isComplete = item == nullptr;
    bool const isWritten = writeTopLevelParameterDbFile(*data, file) && isComplete && save.finish(file);
    data->setRemoteConfigurationList(nullptr);
    if (!isWritten)
    {
        AxWarn("Can't write top-level parameter database file %s\n", file.native().c_str());
    }
    else if (variables.isDataRootLeftOut())
    {
        bool const isAnyRead = db.dataRoots() == AxSxpParameterDb::DataRoots::Read;
        AxDiagnostics::report(axFault("data-root-dropped", file,
                                      std::string("\"data-root\" is left out, ") +
                                          (isAnyRead ? "records of entity files are written as parameter files"
                                                     : "its entity files hold what was removed or replaced"),
                                      AxSeverity::Info));
    }
    return isWritten;
}

void AxSxpParameterDbWriter::writeEntry(AxSxpParameterDbFileData* data, AxSxpParameterDbEntry* entry,
                                        AxFilename const& parameterDir, AxFilename const& fileDir)
{
    AxZedObjectParameters* const record = entry->parameters();
    AxRunningSave* const save = AxRunningSave::current();
    AxFilename const before = entry->filename();
    std::size_t const namesBefore = save ? save->filenames().count() : 0;
    if (record)
    {
        prepareRecord(*entry, generateOpeDirectory(fileDir, parameterDir));
        AxObjectSurroundings once;
        (save ? save->surroundings() : once).keepWith(*record, true);
        AxFilename const name = generateFilename(record->AxReaderWriter::name().string(), record->objectType());
        if (save)
        {
            save->rename(*entry, parameterDir.combine(save->unusedName(name)));
        }
        else
        {
            entry->setFilename(parameterDir.combine(name));
        }
    }
    AxSxpParameterDbFileEntry* const fileEntry = data->addEntry(
        entry->objectType(), record ? entry->filename() : keptName(*entry, save), record != nullptr, record);
    if (AxSxpParameterDbFileEntry const* const asRead = entry->fileEntry())
    {
        fileEntry->assign(*asRead);
        if (!(fileEntry->objectType() == entry->objectType()))
        {
            fileEntry->setObjectType(entry->objectType());
        }
        if (!(fileEntry->filename() == entry->filename()))
        {
            fileEntry->setFilename(entry->filename());
        }
        if (save)
        {
            fileEntry->settleFilename({&data->variableBindings(), &save->databaseVariables()});
        }
    }
    if (!record)
    {
        if (save)
        {
            reportIfLost(*entry, *save);
        }
    }
    else if (!writeParameterFile(fileDir.combine(entry->filename()), record) && !before.isNull())
    {
        entry->setFilename(before);
        fileEntry->setFilename(before);
        if (save)
        {
            save->filenames().takeBack(namesBefore);
        }
    }
}

bool AxSxpParameterDbWriter::prepareRecord(AxSxpParameterDbEntry const& entry, AxFilename const& directory)
{
    AxRunningSave* const save = AxRunningSave::current();
    if (!save || !save->variables() || !entry.parameters())
    {
        return false;
    }
    std::size_t const before = save->filenames().count();
    save->filenames().settle(entry, directory);
    return save->variables()->takeAlong(entry) || save->filenames().count() != before;
}

bool AxSxpParameterDbWriter::writeText(AxFilename const& file, std::string const& text)
{
    int error = 0;
    if (AxRunningSave* const save = AxRunningSave::current())
    {
        if (save->files().stage(file, text, error))
        {
            return true;
        }
        save->noteFailure();
        return cannotWrite(file, error);
    }
    return axReplaceFile(file, text, error) || cannotWrite(file, error);
}

bool AxSxpParameterDbWriter::writeParameterFile(AxFilename const& file, AxZedObjectParameters* record) const
{
    if (!record)
    {
        AxWarn("AxSxpParameterDbWriter::writeParameterFile() : NULL AxZedObjectParameters object specified\n");
        return false;
    }
    auto const write = [&]
    {
        std::string text;
        record->putSelf(text, 0, true, file);
        text += '\n';
        if (!writeText(file, text))
        {
            return false;
        }
        AxInfo("Writing parameter file %s\n", file.native().c_str());
        return true;
    };
    return writeGuarded(file, write);
}

bool AxSxpParameterDbWriter::writeTopLevelParameterDbFile(AxSxpParameterDbFileData const& data,
                                                          AxFilename const& file) const
{
    // The steps around the text are no part of the writing of the data, which is not changed by them.
    auto& self = const_cast<AxSxpParameterDbWriter&>(*this);
    std::string text;
    self.preWrite(data, file, text);
    const_cast<AxSxpParameterDbFileData&>(data).putSelf(text, 0, false, file);
    text += '\n';
    self.postWrite(data, file, text);
    if (!writeText(file, text))
    {
        return false;
    }
    AxInfo("Writing parameter database file %s\n", file.native().c_str());
    return true;
}
