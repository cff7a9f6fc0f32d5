#include "Document.h"

#include <algorithm>
#include <filesystem>

#include "AxDiagnostic.h"
#include "AxEnvXMLReader.h"
#include "Database.h"
#include "ElementSource.h"
#include "Member.h"
#include "ReadFile.h"
#include "RecordFile.h"
#include "TextReading.h"

namespace
{
namespace fs = std::filesystem;

std::vector<Document> entityDocuments(std::string const& file, std::string const& database)
{
    std::shared_ptr<Database> const opened = database.empty() ? Database::openNone() : Database::open(database);
    std::vector<Document> result;
    for (auto& record : opened != nullptr ? readRecords(file, {}, *opened) : Records())
    {
        Document& document = result.emplace_back(Document{.kind = Document::Kind::Record, .file = file});
        document.name = record->AxReaderWriter::name().string().string();
        document.object = record.get();
        document.element = record->objectNode();
        document.hasParts = true;
        document.owner = std::shared_ptr<AxZedObjectParameters>(std::move(record));
    }
    return result;
}

/// A record is taken as it was read, because it keeps what could not be; anything else only when all of it was read.
std::vector<Document> textDocuments(std::string const& file, TextTree const& tree, std::string const& database)
{
    std::shared_ptr<TextReading> const reading =
        database.empty() ? std::make_unique<TextReading>(file) : TextReading::open(file, database);
    if (reading == nullptr)
    {
        return {};
    }
    AxReaderWriter* const object = reading->read(tree);
    bool const isRecord = dynamic_cast<AxZedObjectParameters*>(object) != nullptr;
    bool const isWhole = std::ranges::none_of(reading->findings(), [](AxDiagnostic const& finding)
                                              { return finding.severity == AxSeverity::Error; });
    if (object == nullptr || !(isRecord || isWhole))
    {
        return {{.file = file}};
    }
    return {{.kind = isRecord ? Document::Kind::Record : Document::Kind::Content,
             .file = file,
             .name = object->name().string().string(),
             .object = object,
             .owner = reading}};
}

/// The last list of the step's head in `parent` where there is one in all, else that at the step's index.
Item const* stepInto(Item const& parent, PathStep const& step, int side, AxReaderWriter const* member)
{
    Item const* found = nullptr;
    std::size_t index = 0;
    for (Item const& item : parent.items)
    {
        bool const isMeant =
            item.isList() && (item.text == step.head ||
                              (member != nullptr && member->hasAlias(AxSymbolString(std::string_view(item.text)))));
        if (isMeant && (step.isOnly || index++ <= step.index[side]))
        {
            found = &item;
        }
    }
    return found;
}

TextTree::Place valuePlace(Item const& item)
{
    bool const isValue = !item.items.empty() && !item.items.front().isList();
    return isValue ? item.items.front().place : item.place;
}
} // namespace

std::vector<Document> readDocuments(std::string const& file, std::string const& database)
{
    std::string text;
    if (!readFile(file, text))
    {
        return {};
    }
    if (fs::path(file).extension() == ".entity")
    {
        return entityDocuments(file, database);
    }
    std::size_t const first = text.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    if (first != std::string::npos && text[first] == '<')
    {
        bool isRead = false;
        AxEnvironmentPtr const env = AxEnvXMLReader().readFile(AxFilename(file), &isRead);
        return isRead ? std::vector<Document>{{.file = file, .element = env->root()}} : std::vector<Document>{};
    }
    TextTree const tree(std::move(text));
    if (!tree.isReadable() || !tree.root())
    {
        AxDiagnostic fault;
        fault.code = "empty-file";
        fault.text = "expected an expression, found an empty file";
        fault = tree.faults().empty() ? fault : tree.faults().front().diagnostic();
        fault.file = file;
        AxDiagnostics::report(fault);
        return {};
    }
    return textDocuments(file, tree, database);
}

DocumentTree::DocumentTree(Document const& document, bool all)
{
    if (document.kind == Document::Kind::Tree && document.element)
    {
        myRoot = itemOf(static_cast<AxEnvObject const&>(*document.element));
        return;
    }
    std::string text;
    if (document.object != nullptr)
    {
        text = document.object->writtenText(all);
    }
    else
    {
        readFile(document.file, text);
    }
    myText = std::make_unique<TextTree>(std::move(text));
    myRoot = itemOf(myText->root());
}

void DocumentTree::addEntityParts(Document const& document)
{
    for (AxEnvValuePtr const& node : static_cast<AxEnvObject const&>(*document.element).children())
    {
        auto const* const part = node->isObject() ? static_cast<AxEnvObject const*>(node.get()) : nullptr;
        constexpr char const* theTagsOfRecord[] = {"platform", "componentSystem", "variableBindings"};
        bool const isOfRecord =
            part == nullptr || std::ranges::find(theTagsOfRecord, part->type().string()) != std::end(theTagsOfRecord);
        if (!isOfRecord && !part->isReserved())
        {
            myRoot.items.push_back(itemOf(*part));
        }
    }
}

TextTree::Place DocumentPlaces::placeOf(Difference const& difference, int side)
{
    Item const* const item = difference.item[side];
    Item const* const nearest = item != nullptr ? item : difference.parent[side];
    bool const isPart = myDocument.element && nearest != nullptr && !nearest->source;
    if (myDocument.kind == Document::Kind::Tree || isPart)
    {
        return item != nullptr ? valuePlace(*item) : difference.parent[side]->place;
    }
    return myDocument.element ? inElement(difference.path, side) : inText(difference.path, side);
}

AxReaderWriter* DocumentPlaces::objectAt(ItemPath const& path, int side) const
{
    AxReaderWriter* object = myDocument.object;
    for (PathStep const& step : path)
    {
        object = object == nullptr || step.index[side] == PathStep::theNone
                     ? nullptr
                     : memberOf(*object, step.head, step.isOnly ? 0 : step.index[side]);
    }
    return object;
}

TextTree::Place DocumentPlaces::inText(ItemPath const& path, int side)
{
    if (myText == nullptr)
    {
        std::string text;
        readAgain(myDocument.file, text);
        myText = std::make_unique<TextTree>(std::move(text));
        mySource = myText->isReadable() ? itemOf(myText->root()) : Item();
    }
    Item const* here = &mySource;
    for (std::size_t i = 0; i < path.size(); ++i)
    {
        AxReaderWriter const* const member =
            objectAt(ItemPath(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(i) + 1), side);
        Item const* const next =
            path[i].index[side] != PathStep::theNone ? stepInto(*here, path[i], side, member) : nullptr;
        if (next == nullptr)
        {
            return here->place;
        }
        here = next;
    }
    return path.empty() ? here->place : valuePlace(*here);
}

TextTree::Place DocumentPlaces::inElement(ItemPath const& path, int side) const
{
    static AxReaderWriter const unknown(AxSymbolString(), nullptr);
    std::vector<SourceStep> steps;
    AxEnvValue const* found = myDocument.element.get();
    for (std::size_t i = 0; i < path.size() && path[i].index[side] != PathStep::theNone; ++i)
    {
        AxReaderWriter const* const member =
            objectAt(ItemPath(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(i) + 1), side);
        steps.push_back({AxSymbolString(std::string_view(path[i].head)), member != nullptr ? member : &unknown});
        AxEnvValue const* const next = ElementSource(myDocument.element).value(steps);
        found = next != nullptr ? next : found;
    }
    return {found->line(), found->column()};
}
