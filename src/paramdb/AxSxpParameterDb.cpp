#include "AxSxpParameterDb.h"

#include "AxEntryOrigin.h"
#include "AxGuarded.h"
#include "AxParameterDbFiles.h"
#include "AxReadWholeFile.h"
#include "AxReaderWriterFile.h"
#include "AxRecursiveReaderWriterIterator.h"
#include "AxRemoteConfigurationList.h"
#include "AxRwVariableBindings.h"
#include "AxStreams.h"
#include "AxSxpParameterDbEntry.h"
#include "AxSxpParameterDbFileData.h"
#include "AxSxpParameterDbReader.h"
#include "AxSxpParameterDbWriter.h"
#include "AxZedObjectParameters.h"
#include "axTryNew.h"

#include <algorithm>
#include <boost/filesystem/operations.hpp>
#include <filesystem>
#include <functional>

namespace fs = boost::filesystem;

namespace
{
constexpr int theCurrentVersion = 101;
/// Databases of this version name table files relative to the application.
constexpr int theApplicationRelativeVersion = 100;

/// Replaces `to` whole; a file that is copied onto itself stays.
bool copyFile(fs::path const& from, fs::path const& to)
{
    boost::system::error_code ignored;
    std::string text;
    int error = 0;
    return fs::equivalent(from, to, ignored) || (axReadWholeFile(AxFilename(from.string()), text, error) &&
                                                 AxReaderWriterFile::writeWholeFile(AxFilename(to.string()), text));
}

/// Copies the regular files below `from` into `to`, making directories for those that hold some.
bool copyTree(fs::path const& from, fs::path const& to)
{
    boost::system::error_code error;
    if (!fs::is_directory(from, error))
    {
        return false;
    }
    fs::recursive_directory_iterator walk(from, error);
    bool isComplete = !error;
    for (fs::recursive_directory_iterator const end; walk != end && !error; walk.increment(error))
    {
        if (!fs::is_regular_file(walk->path(), error))
        {
            continue;
        }
        fs::path const target = to / fs::relative(walk->path(), from, error);
        std::error_code fault; // Boost's function ends the process when memory runs out
        std::filesystem::create_directories(target.parent_path().native(), fault);
        isComplete = copyFile(walk->path(), target) && isComplete && !error && !fault;
    }
    return isComplete && !error;
}

/// Of what a load would bring back of an entry; 0 for one that is not saved. Those of several are summed up.
std::size_t digestOf(AxSxpParameterDbEntry const& entry)
{
    std::hash<std::string> const hash;
    return entry.temporary() ? 0 : hash(entry.objectType().string().string() + '\n' + entry.filename().native());
}

template <class Use>
void forEachEntry(AxList const& list, Use const& use)
{
    for (AxListItem const* item = list.first(); item; item = item->next())
    {
        auto const* const entry =
            dynamic_cast<AxSxpParameterDbEntry const*>(static_cast<AxZedParameterDbEntry const*>(item->data()));
        if (entry)
        {
            use(*entry);
        }
    }
}
} // namespace

AxSxpParameterDb::AxSxpParameterDb()
    : myVersionNumber(theCurrentVersion), myListCreator(AxRemoteConfigurationList::create)
{
}

AxSxpParameterDb::~AxSxpParameterDb() = default;

AxSxpParameterDb* AxSxpParameterDb::create()
{
    return axTryNew<AxSxpParameterDb>();
}

AxString const& AxSxpParameterDb::opdFilenameExtension()
{
    static AxString const extension(".opd");
    return extension;
}

AxString const& AxSxpParameterDb::opeFilenameExtension()
{
    static AxString const extension(".ope");
    return extension;
}

AxFilename const& AxSxpParameterDb::theOldParameterDbDirectory()
{
    static AxFilename const directory("..\\data\\parameters");
    return directory;
}

std::map<AxString, AxFilename> const& AxSxpParameterDb::extensionToPathMap()
{
    static std::map<AxString, AxFilename> const map{{"asl", ".\\ammoselect"},
                                                    {"dmg", ".\\damage"},
                                                    {"det", ".\\detection"},
                                                    {"frm", ".\\formation"},
                                                    {"hit", ".\\hit"}};
    return map;
}

bool AxSxpParameterDb::init()
{
    return axGuarded("init-failed", AxFilename::nullFilename(), false,
                     [this]
                     {
                         AxZedParameterDb::init();
                         setReader(createParamDbReader());
                         setWriter(createSxpParamDbWriter());
                         createRemoteConfigurationList();
                         return true;
                     });
}

AxSxpParameterDbReader* AxSxpParameterDb::createParamDbReader()
{
    return new AxSxpParameterDbReader;
}

AxSxpParameterDbWriter* AxSxpParameterDb::createSxpParamDbWriter()
{
    return new AxSxpParameterDbWriter;
}

bool AxSxpParameterDb::createRemoteConfigurationList()
{
    myRemoteConfigurationList.reset(myListCreator ? myListCreator("remote-configurations", nullptr) : nullptr);
    return myRemoteConfigurationList != nullptr;
}

AxZedParameterDbEntry* AxSxpParameterDb::createParameterEntry() const
{
    return new AxSxpParameterDbEntry;
}

AxSxpParameterDbEntry* AxSxpParameterDb::add(AxObjectType const& type, AxFilename const& file, bool typeIsMatchType,
                                             AxZedObjectParameters* params)
{
    AxSxpParameterDbEntry* const none = nullptr;
    return axGuarded("add-failed", file, none,
                     [&]
                     {
                         std::unique_ptr<AxZedParameterDbEntry> made(createParameterEntry());
                         auto* const entry = dynamic_cast<AxSxpParameterDbEntry*>(made.get());
                         if (entry)
                         {
                             entry->setObjectType(type);
                             entry->setFilename(file);
                             entry->setTypeIsMatchType(typeIsMatchType);
                             entry->setParameters(params);
                             addParameterDbEntry(made.release());
                         }
                         return entry;
                     });
}

AxZedObjectParameters* AxSxpParameterDb::lookup(AxObjectType const& type, AxObjectType* matchedType,
                                                AxString* info) const
{
    AxZedParameterDbEntry* const found = lookupParameterDbEntry(type, matchedType);
    if (!found)
    {
        return nullptr;
    }
    auto* const entry = dynamic_cast<AxSxpParameterDbEntry*>(found);
    if (!entry)
    {
        return found->parameters();
    }
    if (info)
    {
        axGuarded("lookup-failed", entry->filename(), false,
                  [&]
                  {
                      *info = entry->filename().string();
                      return true;
                  });
    }
    AxZedObjectParameters* const record = getParameters(entry);
    if (record && matchedType)
    {
        *matchedType = record->objectType();
    }
    return record;
}

AxZedObjectParameters* AxSxpParameterDb::getParameters(AxSxpParameterDbEntry* entry) const
{
    if (!entry)
    {
        AxWarn("AxSxpParameterDb::getParameters() : NULL entry\n");
        return nullptr;
    }
    if (AxZedObjectParameters* const held = entry->parameters())
    {
        return held;
    }
    AxZedParameterDbEntry::Use const use(*entry); // a sink may remove it
    AxZedObjectParameters* const none = nullptr;
    AxZedObjectParameters* const record =
        axGuarded("read-failed", entry->filename(), none, [&] { return entry->load(); });
    if (use.isGone())
    {
        return nullptr;
    }
    if (record)
    {
        record->setMatchType(entry->objectType());
        record->setObjectType(entry->objectType());
    }
    bool const isUsable = !record || myVersionNumber != theApplicationRelativeVersion ||
                          axGuarded("read-failed", entry->filename(), false,
                                    [&]
                                    {
                                        // A look-up does not change the database; that it is const does not bind
                                        // derived classes.
                                        const_cast<AxSxpParameterDb*>(this)->updateReaderWriterFilePaths(*record);
                                        return true;
                                    });
    if (!isUsable)
    {
        // With some of its names as they were it must not stay.
        entry->setParameters(nullptr);
        delete record;
        return nullptr;
    }
    return use.isGone() ? nullptr : record;
}

void AxSxpParameterDb::removeAll()
{
    AxZedParameterDb::removeAll();
    if (myRemoteConfigurationList)
    {
        myRemoteConfigurationList->removeAndDeleteAll();
    }
}

bool AxSxpParameterDb::load(AxFilename const& file)
{
    if (!myReader)
    {
        AxWarn("AxZedParameterDb::load() - Can't load %s.  Parameter DB reader is NULL\n", file.c_str());
        return false;
    }
    return axGuarded("read-failed", file, false, [&] { return myReader->loadParameterDb(file, this); });
}

bool AxSxpParameterDb::loadAll(AxFilename const& file)
{
    if (!load(file))
    {
        return false;
    }
    AxList const& list = parameterList();
    std::uint32_t const changes = list.changeCount();
    for (AxListItem const* item = list.first(); item; item = item->next())
    {
        auto* const entry = dynamic_cast<AxSxpParameterDbEntry*>(static_cast<AxZedParameterDbEntry*>(item->data()));
        if (entry)
        {
            getParameters(entry);
        }
        if (list.changeCount() != changes)
        {
            AxDiagnostics::report(axFault("list-changed", file, "entries came or went while all were being loaded"));
            break;
        }
    }
    return true;
}

bool AxSxpParameterDb::save(AxFilename const& file)
{
    if (!myWriter)
    {
        AxWarn("AxZedParameterDb::save() - Can't save %s.  Parameter DB writer is NULL\n", file.c_str());
        return false;
    }
    auto const write = [&]
    {
        AxFilename const base = stripExtension(file.stripPath(), opdFilenameExtension());
        bool const isInRoot = getPath(file).isNull() && !(base == file) && !(file.stripPath() == file);
        if (base == file.stripPath() || base.isNull())
        {
            AxDiagnostics::report(
                axFault("bad-name", file, "expected a name that ends in \".opd\", with more before it"));
            return false;
        }
        if (isInRoot)
        {
            AxDiagnostics::report(
                axFault("bad-name", file, "a database cannot be saved directly in the root directory"));
            return false;
        }
        return myWriter->write(this, file, AxFilename(".\\" + base.string().string()));
    };
    bool const isWritten = axGuarded("save-failed", file, false, write);
    if (!isWritten)
    {
        AxWarn << "Error writing parameter database file " << file << AxEndl;
    }
    return isWritten;
}

AxFilename AxSxpParameterDb::getPath(AxFilename const& file) const
{
    return axPathOf(file);
}

AxFilename AxSxpParameterDb::stripExtension(AxFilename const& file, AxString const& extension) const
{
    std::string const& text = file.string().string();
    return text.ends_with(extension.string()) ? AxFilename(text.substr(0, text.size() - extension.string().size()))
                                              : file;
}

void AxSxpParameterDb::setVersionNumber(int version)
{
    myVersionNumber = version;
}

int AxSxpParameterDb::versionNumber() const
{
    return myVersionNumber;
}

void AxSxpParameterDb::addDependentParameterFileToCopyPair(AxFilename const& from, AxFilename const& to)
{
    myCopyPairs.insert_or_assign(from.string(), to.string());
}

void AxSxpParameterDb::clearDependentParameterFileToCopyPairs()
{
    myCopyPairs.clear();
}

AxSxpParameterDb::CopyPairs const& AxSxpParameterDb::dependentParameterFileToCopyPairs() const
{
    return myCopyPairs;
}

void AxSxpParameterDb::addVariableBindings(VariableBindingsPtr const& bindings)
{
    if (bindings)
    {
        myVariableBindings.push_back(bindings);
    }
}

std::list<AxSxpParameterDb::VariableBindingsPtr> const& AxSxpParameterDb::variableBindings() const
{
    return myVariableBindings;
}

void AxSxpParameterDb::setReader(AxSxpParameterDbReader* reader)
{
    if (reader != myReader.get())
    {
        myReader.reset(reader);
    }
}

void AxSxpParameterDb::setWriter(AxSxpParameterDbWriter* writer)
{
    if (writer != myWriter.get())
    {
        myWriter.reset(writer);
    }
}

std::vector<AxFilename> const& AxSxpParameterDb::searchPaths() const
{
    return mySearchPaths;
}

void AxSxpParameterDb::setSearchPaths(std::vector<AxFilename> const& paths)
{
    mySearchPaths = paths;
}

bool AxSxpParameterDb::copyDependentParameterDirectories(AxFilename const& from, AxFilename const& to)
{
    AxInfo("Copying dependent parameter file directories from %s to %s\n", from.c_str(), to.c_str());
    bool areAllCopied = true;
    for (char const* directory : {"ammoselect", "damage", "detection", "hit", "formation"})
    {
        bool const isCopied = copyTree(fs::path(from.native()) / directory, fs::path(to.native()) / directory);
        if (!isCopied && std::string_view(directory) != "formation")
        {
            AxWarn("Error copying %s directory to %s\n", directory, to.c_str());
        }
        areAllCopied = areAllCopied && isCopied;
    }
    return areAllCopied;
}

AxFilename AxSxpParameterDb::fileTableName(AxFilename const& file) const
{
    AxFilename const bare = file.stripPath();
    AxString const extension = bare.extension();
    auto const found = extensionToPathMap().find(extension);
    if (found != extensionToPathMap().end())
    {
        return found->second.combine(bare);
    }
    AxWarn << "File extension " << extension << " does not match a known type" << AxEndl;
    AxWarn << "File " << file << " will be relative to the .ope file" << AxEndl;
    return AxFilename(".\\" + bare.string().string());
}

void AxSxpParameterDb::updateReaderWriterFilePaths(AxZedObjectParameters& parameters)
{
    AxRecursiveReaderWriterIterator walk(*parameters.registry());
    for (AxReaderWriter* rw = walk.first(); rw; rw = walk.next())
    {
        auto* const member = dynamic_cast<AxReaderWriterFile*>(rw);
        if (!member || member->filename().isNull() || !AxReaderWriter::appPath().combine(member->filename()).exists())
        {
            continue;
        }
        member->setFilename(fileTableName(member->filename()));
        AxInfo << "New AxReaderWriter filename set to " << member->filename() << AxEndl;
    }
}

int AxSxpParameterDb::addUnloadedFilesToCopyPairs(AxFilename const& directory)
{
    int count = 0;
    auto const addFileOf = [&](AxSxpParameterDbEntry const& entry)
    {
        AxFilename const name =
            entry.isFromDataRoot() ? axPlaceBelow(entry.databaseDirectory(), entry.filename()) : entry.filename();
        if (name.isNull() || !name.isRelative())
        {
            return true;
        }
        AxFilename const from = entry.foundFilename();
        AxFilename const to = directory.combine(name);
        if (!from.isNull() && !to.exists())
        {
            addDependentParameterFileToCopyPair(from, to);
            ++count;
        }
        return true;
    };
    for (AxListItem const* item = parameterList().first(); item; item = item->next())
    {
        auto* const entry = dynamic_cast<AxSxpParameterDbEntry*>(static_cast<AxZedParameterDbEntry*>(item->data()));
        if (entry && !entry->parameters())
        {
            axGuarded("not-copied", entry->filename(), false, [&] { return addFileOf(*entry); });
        }
    }
    return count;
}

void AxSxpParameterDb::noteDataRoot(AxFilename const& databaseFile)
{
    // The same file may have been loaded by another name.
    std::error_code ignored;
    std::erase_if(myDataRoots, [&](auto const& known)
                  { return std::filesystem::equivalent(known.first.string(), databaseFile.native(), ignored); });
    std::size_t& sum = myDataRoots[databaseFile.string()];
    forEachEntry(parameterList(),
                 [&](AxSxpParameterDbEntry const& entry)
                 {
                     bool const isOfFile = entry.isFromDataRoot() && *entry.origin()->databaseFile == databaseFile;
                     sum += isOfFile ? digestOf(entry) : 0;
                 });
}

AxSxpParameterDb::DataRoots AxSxpParameterDb::dataRoots() const
{
    bool isAnyRead = false;
    std::size_t missing = 0;
    for (auto const& [databaseFile, sum] : myDataRoots)
    {
        missing += sum;
    }
    forEachEntry(parameterList(),
                 [&](AxSxpParameterDbEntry const& entry)
                 {
                     bool const isOfRoot = entry.isFromDataRoot();
                     bool const isWritten = entry.parameters() && !entry.temporary();
                     missing -= isOfRoot ? digestOf(entry) : 0;
                     isAnyRead = isAnyRead || (isWritten && (isOfRoot || entry.filename().extension() == "entity"));
                 });
    return isAnyRead ? DataRoots::Read : missing != 0 ? DataRoots::Changed : DataRoots::Untouched;
}

void AxSxpParameterDb::keepUnreadItems(AxSxpParameterDbFileData const& data)
{
    if (data.keptItems().empty() && data.entryList().unreadElements().empty())
    {
        return;
    }
    if (!myUnreadItems)
    {
        myUnreadItems = std::make_unique<AxSxpParameterDbFileData>();
    }
    // A file that is loaded again brings the same ones.
    auto const isKnown = [](auto const& former, auto const& one)
    { return std::find(former.begin(), former.end(), one) != former.end(); };
    auto const formerItems = myUnreadItems->keptItems();
    auto const formerElements = myUnreadItems->entryList().unreadElements();
    for (auto const& item : data.keptItems())
    {
        auto const& [after, text] = item;
        // A save gives the version a value that can be read.
        if (!text.starts_with("(version ") && !isKnown(formerItems, item))
        {
            myUnreadItems->keepItem(after, text);
        }
    }
    for (std::string const& text : data.entryList().unreadElements())
    {
        if (!isKnown(formerElements, text))
        {
            myUnreadItems->entryList().keepUnread(text);
        }
    }
}
