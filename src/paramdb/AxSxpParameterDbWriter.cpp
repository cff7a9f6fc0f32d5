#include "AxSxpParameterDbWriter.h"

#include "AxFileTransaction.h"
#include "AxParameterDbFiles.h"
#include "AxReaderWriterFile.h"
#include "AxRemoteConfigurationList.h"
#include "AxRwVariableBindings.h"
#include "AxStreams.h"
#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"
#include "AxSxpParameterDbFileData.h"
#include "AxZedObjectParameters.h"

#include <boost/filesystem/operations.hpp>
#include <cstring>
#include <memory>

namespace fs = boost::filesystem;

namespace
{
constexpr int theSavedVersion = 101;

/// What `write` sets for the whole process, as long as it runs.
class RunningSave
{
public:
    RunningSave(AxReaderWriter::PrePutSelfCallback callback, void* writer)
    {
        AxFileTransaction::setCurrent(&myFiles);
        AxReaderWriter::setPrePutSelfCallback(callback, writer);
    }
    RunningSave(RunningSave const&) = delete;
    RunningSave& operator=(RunningSave const&) = delete;
    ~RunningSave()
    {
        AxReaderWriter::setPrePutSelfCallback(nullptr, nullptr);
        AxFileTransaction::setCurrent(nullptr);
    }
    AxFileTransaction& files() { return myFiles; }

private:
    AxFileTransaction myFiles;
};

bool cannotWrite(AxFilename const& file, int error)
{
    AxDiagnostics::reportStated(axFault("cannot-write", file, std::strerror(error)),
                                axFormat("Could not open parameter file %s for writing\n", file.c_str()));
    return false;
}

/// Writes a file as part of the save that is running, else by itself.
bool writeText(AxFilename const& file, std::string const& text)
{
    int error = 0;
    if (AxFileTransaction* const save = AxFileTransaction::current())
    {
        return save->stage(file, text, error) || cannotWrite(file, error);
    }
    AxFileTransaction alone;
    return (alone.stage(file, text, error) && alone.commit(error)) || cannotWrite(file, error);
}

void copyDependentFiles(AxSxpParameterDb::CopyPairs const& pairs)
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
        boost::system::error_code error;
        if (fs::equivalent(from.native(), to.native(), error))
        {
            continue;
        }
        error.clear();
        if (AxFilename const directory = to.directory(); !directory.isNull())
        {
            fs::create_directories(directory.native(), error);
        }
        error.clear();
        fs::copy_file(from.native(), to.native(), fs::copy_option::overwrite_if_exists, error);
        if (error)
        {
            AxWarn << "Error copying " << from << " to " << to << AxEndl;
        }
    }
}

/// The variables of all loaded files in one set, the first of a name. "data-root" is left out once a record that came
/// from an entity file is written as parameter text, which a scan at the next load would hide again.
void collectVariables(AxSxpParameterDb const& db, AxRwVariableBindings& all)
{
    for (AxSxpParameterDb::VariableBindingsPtr const& set : db.variableBindings())
    {
        for (AxSymbolString const name : set->names())
        {
            if (!all.find(name))
            {
                all.set(name, *set->find(name));
            }
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
    std::string const& text = file.string().string();
    std::size_t const last = text.find_last_of("/\\");
    return last == std::string::npos || last == 0 ? AxFilename::nullFilename() : AxFilename(text.substr(0, last + 1));
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
    if (!db || AxFileTransaction::current())
    {
        AxDiagnostics::report(axFault(
            "save-running", file, db ? "a save is running already; one at a time" : "there is no database to save"));
        return false;
    }
    db->setVersionNumber(theSavedVersion);
    RunningSave save(&prePutSelfCb, this);
    AxFilename const dir = getPath(file);
    AxFilename const opeDirectory = generateOpeDirectory(dir, parameterDir);
    boost::system::error_code error;
    fs::create_directories(opeDirectory.native(), error);
    AxInfo("Creating parameter file directory %s\n", opeDirectory.native().c_str());
    if (error)
    {
        AxDiagnostics::report(axFault("cannot-create", opeDirectory, error.message()));
    }
    copyDependentFiles(db->dependentParameterFileToCopyPairs());
    std::unique_ptr<AxSxpParameterDbFileData> const data(createParameterDbFileData());
    data->setVersion(theSavedVersion);
    collectVariables(*db, data->variableBindings());
    AxList const& list = db->parameterList();
    std::uint32_t const changes = list.changeCount();
    bool isUnchanged = true;
    for (AxListItem const* item = list.first(); item && isUnchanged; item = item->next())
    {
        auto* const any = static_cast<AxZedParameterDbEntry*>(item->data());
        auto* const entry = dynamic_cast<AxSxpParameterDbEntry*>(any);
        if (!entry)
        {
            AxWarn("Entry in parameter database is NULL or not a AxSxpParameterDbFileEntry\n");
        }
        else if (!entry->temporary())
        {
            writeEntry(data.get(), entry, parameterDir, dir);
        }
        isUnchanged = list.changeCount() == changes;
    }
    if (!isUnchanged)
    {
        AxDiagnostics::report(
            axFault("list-changed", file, "entries came or went during the save; nothing is written"));
        return false;
    }
    if (AxSxpParameterDbFileData const* const unread = db->unreadItems())
    {
        for (auto const& [after, text] : unread->keptItems())
        {
            data->keepItem(after, text);
        }
        for (std::string const& text : unread->entryList().unreadElements())
        {
            data->entryList().keepUnread(text);
        }
    }
    std::unique_ptr<AxRemoteConfigurationList> configurations;
    if (db->remoteConfigurationList() && db->remoteConfigurationList()->count() != 0)
    {
        configurations.reset(db->remoteConfigurationListCreatorFcn()("remote-configurations", data->registry()));
        *configurations = *db->remoteConfigurationList();
        configurations->setValueSpecified(true, true);
        data->setRemoteConfigurationList(configurations.get());
    }
    int failure = 0;
    bool isWritten = writeTopLevelParameterDbFile(*data, file);
    if (isWritten && !save.files().commit(failure))
    {
        AxDiagnostics::report(axFault("cannot-write", file, std::strerror(failure)));
        isWritten = false;
    }
    data->setRemoteConfigurationList(nullptr);
    if (!isWritten)
    {
        AxWarn("Can't write top-level parameter database file %s\n", file.c_str());
    }
    return isWritten;
}

void AxSxpParameterDbWriter::writeEntry(AxSxpParameterDbFileData* data, AxSxpParameterDbEntry* entry,
                                        AxFilename const& parameterDir, AxFilename const& fileDir)
{
    AxZedObjectParameters* const record = entry->parameters();
    AxFilename const before = entry->filename();
    if (record)
    {
        AxFilename name = generateFilename(record->AxReaderWriter::name().string(), record->objectType());
        if (AxFileTransaction* const save = AxFileTransaction::current())
        {
            name = save->unusedName(name);
        }
        entry->setFilename(parameterDir.combine(name));
    }
    AxSxpParameterDbFileEntry* const fileEntry =
        data->addEntry(entry->objectType(), entry->filename(), record != nullptr, record);
    if (!record)
    {
        if (entry->fileEntry())
        {
            fileEntry->assign(*entry->fileEntry());
            fileEntry->settleFilename({&data->variableBindings()});
        }
        bool const isRelative = !entry->filename().isNull() && entry->filename().isRelative();
        if (isRelative && !fileDir.combine(entry->filename()).exists())
        {
            AxDiagnostics::report(axFault("dangling-name", entry->filename(),
                                          "the record was not loaded and its file is not found from the saved database",
                                          AxSeverity::Warning));
        }
        return;
    }
    if (!writeParameterFile(fileDir.combine(entry->filename()), record) && !before.isNull())
    {
        entry->setFilename(before);
        fileEntry->setFilename(before);
    }
}

bool AxSxpParameterDbWriter::writeParameterFile(AxFilename const& file, AxZedObjectParameters* record) const
{
    if (!record)
    {
        AxWarn("AxSxpParameterDbWriter::writeParameterFile() : NULL AxZedObjectParameters object specified\n");
        return false;
    }
    AxInfo("Writing parameter file %s\n", file.c_str());
    std::string text;
    record->putSelf(text, 0, true, file);
    text += '\n';
    return writeText(file, text);
}

bool AxSxpParameterDbWriter::writeTopLevelParameterDbFile(AxSxpParameterDbFileData const& data,
                                                          AxFilename const& file) const
{
    AxInfo("Writing parameter database file %s\n", file.c_str());
    // The steps around the text are no part of the writing of the data, which is not changed by them.
    auto& self = const_cast<AxSxpParameterDbWriter&>(*this);
    std::string text;
    self.preWrite(data, file, text);
    const_cast<AxSxpParameterDbFileData&>(data).putSelf(text, 0, false, file);
    text += '\n';
    self.postWrite(data, file, text);
    return writeText(file, text);
}
