#include "Document.h"

#include <algorithm>
#include <filesystem>

#include "AxDiagnostic.h"
#include "AxEnvXMLReader.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "Database.h"
#include "ReadFile.h"
#include "RecordFile.h"
#include "RecordText.h"
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

/// What reads the items below a member: where a file stands in between, its content.
AxReaderWriter* readerOf(AxReaderWriter* member)
{
    auto const* file = dynamic_cast<AxReaderWriterFile const*>(member);
    return file != nullptr && file->content() != nullptr ? readerOf(file->content()) : member;
}

/// Calls `visit(name, member)` for each member and element.
template <class Visit>
void forEachMember(AxReaderWriter& parent, Visit const& visit)
{
    AxReaderWriterRegistry const* const registry = parent.registryIfAny();
    for (std::size_t i = 0; registry != nullptr && i < registry->size(); ++i)
    {
        AxRegistryEntry const entry = registry->entry(i);
        if (!entry.content && !entry.keyword.isNull())
        {
            visit(entry.keyword.view(), entry.member);
        }
    }
    auto const* list = dynamic_cast<AxRwList const*>(&parent);
    for (AxListItem const* item = list != nullptr ? list->first() : nullptr; item != nullptr; item = item->next())
    {
        AxReaderWriter* const element = AxRwList::element(item);
        visit(element->name().view(), element);
    }
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
        text = recordText(*document.object, all);
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

AxReaderWriter* DocumentPlaces::objectAt(std::span<PathStep const> path, int side) const
{
    AxReaderWriter* object = myDocument.object;
    for (PathStep const& step : path)
    {
        bool const isThere = object != nullptr && step.index[side] != PathStep::theNone;
        object = isThere ? memberAt(*readerOf(object), step, side) : nullptr;
    }
    return object;
}

AxReaderWriter* DocumentPlaces::memberAt(AxReaderWriter& parent, PathStep const& step, int side) const
{
    std::size_t left = step.isOnly ? 0 : step.index[side];
    auto const* list = dynamic_cast<AxRwList const*>(&parent);
    if (list != nullptr && list->count() >= static_cast<int>(myMembers.theShortest))
    {
        std::vector<AxReaderWriter*> const& named =
            myMembers.find(&parent, step.head, [&parent](auto const& add) { forEachMember(parent, add); });
        return left < named.size() ? named[left] : nullptr;
    }
    AxReaderWriter* found = nullptr;
    forEachMember(parent,
                  [&](std::string_view name, AxReaderWriter* member)
                  {
                      if (found == nullptr && name == step.head && left-- == 0)
                      {
                          found = member;
                      }
                  });
    return found;
}

/// The last list of the step's head in `parent` where there is one in all, else that at the step's index.
Item const* DocumentPlaces::itemAt(Item const& parent, PathStep const& step, int side, AxReaderWriter const* member)
{
    if (parent.items.size() >= myItems.theShortest && (member == nullptr || member->aliases().empty()))
    {
        auto const addAll = [&parent](auto const& add)
        {
            for (Item const& item : parent.items)
            {
                if (item.isList())
                {
                    add(item.text, &item);
                }
            }
        };
        std::vector<Item const*> const& named = myItems.find(&parent, step.head, addAll);
        bool const isLast = step.isOnly || step.index[side] >= named.size();
        return named.empty() ? nullptr : isLast ? named.back() : named[step.index[side]];
    }
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

TextTree::Place DocumentPlaces::inText(std::span<PathStep const> path, int side)
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
        bool const isThere = path[i].index[side] != PathStep::theNone;
        Item const* const next = isThere ? itemAt(*here, path[i], side, objectAt(path.first(i + 1), side)) : nullptr;
        if (next == nullptr)
        {
            return here->place;
        }
        here = next;
    }
    return path.empty() ? here->place : valuePlace(*here);
}

TextTree::Place DocumentPlaces::inElement(std::span<PathStep const> path, int side)
{
    static AxReaderWriter const unknown(AxSymbolString(), nullptr);
    if (!myElement)
    {
        myElement.emplace(myDocument.element);
    }
    std::vector<SourceStep> steps;
    AxEnvValue const* found = myDocument.element.get();
    for (std::size_t i = 0; i < path.size() && path[i].index[side] != PathStep::theNone; ++i)
    {
        AxReaderWriter const* const member = objectAt(path.first(i + 1), side);
        steps.push_back({AxSymbolString(std::string_view(path[i].head)), member != nullptr ? member : &unknown});
        AxEnvValue const* const next = myElement->value(steps);
        found = next != nullptr ? next : found;
    }
    return {found->line(), found->column()};
}
