#include "TextReading.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "AxAmmoSelectTable.h"
#include "AxComponentDescriptor.h"
#include "AxComponentSystemDefinition.h"
#include "AxDmgMunitionTable.h"
#include "AxDmgSurfaceTable.h"
#include "AxFormation.h"
#include "AxModelSet.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxRemoteConfigurationList.h"
#include "AxRwList.h"
#include "AxSourceScope.h"
#include "AxSxpParameterDbFileData.h"
#include "AxTargetPriorityList.h"
#include "AxTaskExecutionRules.h"
#include "AxZedObjectParameters.h"
#include "AxZedObjectParametersDB.h"
#include "AxlFunctions.h"
#include "Database.h"
#include "EditedValue.h"
#include "Findings.h"
#include "ReadContext.h"

namespace
{
/// Remote configurations are a member of a database file that somebody else has to own.
struct DatabaseFile : AxSxpParameterDbFileData
{
    DatabaseFile() { setRemoteConfigurationList(&configurations); }
    ~DatabaseFile() override { setRemoteConfigurationList(nullptr); }
    AxRemoteConfigurationList configurations{"remote-configurations", registry()};
};

struct CollectionRecord : AxZedObjectParametersDB
{
    CollectionRecord() : AxZedObjectParametersDB("parameter-list", nullptr) { init(); }
};

template <class Object>
std::unique_ptr<AxReaderWriter> named()
{
    return std::make_unique<Object>("file", nullptr);
}

template <class Object>
std::unique_ptr<AxReaderWriter> plain()
{
    return std::make_unique<Object>();
}

/// A kind of file, told by its extension, by its head or by the head of its first item; the first that fits counts.
struct FileKind
{
    std::string_view word;
    std::unique_ptr<AxReaderWriter> (*make)();
};

constexpr FileKind theKindsByHead[] = {{"parameter-database", plain<DatabaseFile>},
                                       {"system-definition", named<AxComponentSystemDefinition>},
                                       {"task-execution-rules", named<AxTaskExecutionRules>},
                                       {"model-set", named<AxModelSet>}};
constexpr FileKind theKindsByFirstItem[] = {
    {"sim-object-parameters", plain<CollectionRecord>}, {"ammo-entry", named<AxDmgMunitionTable>},
    {"ammo-select", named<AxAmmoSelectTable>},          {"entity-range", named<AxRangeProbabilityTable>},
    {"entity-priority", named<AxTargetPriorityList>},   {"meta-data", named<AxComponentSystemDefinition>}};
constexpr FileKind theKindsByExtension[] = {{".hit", named<AxRangeProbabilityTable>},
                                            {".det", named<AxRangeProbabilityTable>},
                                            {".asl", named<AxAmmoSelectTable>},
                                            {".dmg", named<AxDmgSurfaceTable>},
                                            {".frm", named<AxFormation>},
                                            {".sys", named<AxComponentSystemDefinition>},
                                            {".rules", named<AxTaskExecutionRules>},
                                            {".models", named<AxModelSet>},
                                            {".opd", plain<DatabaseFile>}};

std::unique_ptr<AxReaderWriter> makeReader(std::string const& file, TextItem root)
{
    std::string const head = root.head();
    std::string const item = root.firstValue().head();
    auto const fitting = [](auto const& kinds, auto const& fits)
    {
        auto const found = std::ranges::find_if(kinds, fits, &FileKind::word);
        return found != std::end(kinds) ? found->make() : nullptr;
    };
    std::unique_ptr<AxReaderWriter> made = fitting(theKindsByHead, [&](auto word) { return word == head; });
    made = made ? std::move(made) : fitting(theKindsByFirstItem, [&](auto word) { return word == item; });
    return made ? std::move(made) : fitting(theKindsByExtension, [&](auto word) { return file.ends_with(word); });
}
} // namespace

std::unique_ptr<TextReading> TextReading::open(std::string const& file, std::string const& database)
{
    std::unique_ptr<Database> opened = databaseFor(file, database);
    return opened == nullptr ? nullptr : std::unique_ptr<TextReading>(new TextReading(file, std::move(opened)));
}

TextReading::TextReading(std::string const& file) : TextReading(file, Database::openNone()) {}

TextReading::TextReading(std::string const& file, std::unique_ptr<Database> database)
    : myFile(file), myDatabase(std::move(database)), myContext(std::make_unique<ReadContext>(file, *myDatabase))
{
}

TextReading::~TextReading() = default;

AxReaderWriter* TextReading::read(TextTree const& tree)
{
    Findings findings(Findings::Print::Never);
    AxSourceScope const scope{AxFilename(myFile)};
    myBindings = myContext->bindings;
    myRoot = nullptr;
    TextItem const root = tree.root();
    std::string const type = root.firstValue().head();
    try
    {
        if (type == "parameter-type" || type == "component-descriptor-type")
        {
            AxlInputStream stream(tree.text());
            AxlObjPtr const list = AxcRead(stream);
            if (type == "parameter-type")
            {
                auto* const record = AxZedObjectParameters::createParameters(list, myContext->files, myBindings);
                myRoot.reset(record);
                if (record != nullptr)
                {
                    AxBindingsList const& own = record->variableBindingsFromLoad();
                    myBindings.insert(myBindings.begin(), own.begin(), own.end());
                }
            }
            else
            {
                myRoot.reset(AxComponentDescriptor::createComponentDescriptor(list, myContext->files, myBindings));
            }
        }
        else
        {
            myRoot = makeReader(myFile, root);
            myRoot = myRoot != nullptr && readText(*myRoot, tree.text()) ? std::move(myRoot) : nullptr;
        }
    }
    catch (AxlSyntaxError const& fault)
    {
        AxDiagnostics::report(fault.diagnostic());
    }
    myFindings = findings.sorted();
    if (myRoot != nullptr)
    {
        noteUnboundVariables(*myRoot, myFile, myFindings);
    }
    myFindingsOfFile = myFindings;
    return myRoot.get();
}

bool TextReading::readText(AxReaderWriter& rw, std::string const& text)
{
    return rw.readText(text, AxFilename(myFile), myContext->files, myBindings);
}

bool TextReading::readInto(AxReaderWriter& member, std::string const& list)
{
    Findings findings(Findings::Print::Never);
    bool const isRead = readText(member, list);
    myFindings = findings.sorted();
    return isRead && findings.empty();
}

AxReaderWriter* TextReading::part(AxReaderWriter& parent, TextItem list, bool isRead)
{
    AxReaderWriter* reader = &parent;
    if (auto const* file = dynamic_cast<AxReaderWriterFile const*>(reader))
    {
        reader = file->content();
    }
    if (reader == nullptr || !list.isList() || !list.isClosed())
    {
        return nullptr;
    }
    AxReaderWriterRegistry const* const registry = reader->registryIfAny();
    AxSymbolString const keyword = AxSymbolString::find(list.head());
    AxReaderWriter* const member = registry != nullptr && !keyword.isNull() ? registry->find(keyword) : nullptr;
    if (member != nullptr)
    {
        if (!isRead)
        {
            readInto(*member, std::string(list.source()));
        }
        return member;
    }
    auto* const elements = dynamic_cast<AxRwList*>(reader);
    if (elements == nullptr)
    {
        return nullptr;
    }
    if (isRead && elements->count() == 1)
    {
        return elements->firstElement();
    }
    // What leads the list, such as the range of a row, is read before its elements.
    std::string text = "(list";
    for (TextItem lead = list.parent().firstValue(); lead && !lead.isList(); lead = lead.next())
    {
        text.append(" ").append(lead.source());
    }
    readInto(*elements, text.append(" ").append(list.source()).append(")"));
    return elements->firstElement();
}
