#include "Document.h"

#include <algorithm>
#include <filesystem>

#include "AxComponentSystemDefinition.h"
#include "AxDiagnostic.h"
#include "AxEnvXMLReader.h"
#include "AxModelSet.h"
#include "AxReadWholeFile.h"
#include "ElementSource.h"
#include "Findings.h"
#include "Member.h"
#include "ReadFile.h"
#include "RecordFile.h"
#include "Tables.h"

namespace
{
namespace fs = std::filesystem;

Document documentOf(std::string const& file, Document::Kind kind, std::shared_ptr<AxReaderWriter> object)
{
    AxReaderWriter* const plain = object.get();
    return {.kind = kind, .file = file, .object = plain, .owned = std::move(object)};
}

std::vector<Document> recordDocuments(std::string const& file, Database const& database)
{
    std::vector<Document> result;
    Records records = readRecords(file, {}, database);
    for (auto& record : records)
    {
        AxEnvValuePtr const element = record->objectNode();
        std::string const name = record->AxReaderWriter::name().string().string();
        Document& document = result.emplace_back(documentOf(file, Document::Kind::Record, std::move(record)));
        document.name = name;
        document.element = element;
        document.hasParts = element != nullptr;
    }
    return result;
}

std::shared_ptr<AxReaderWriter> readContent(std::string const& file)
{
    std::string const extension = fs::path(file).extension().string();
    if (extension == ".models")
    {
        auto models = std::make_shared<AxModelSet>(AxSymbolString("model-set"), nullptr);
        return models->load(AxFilename(file)) ? models : nullptr;
    }
    std::shared_ptr<AxReaderWriter> content = newTable(file);
    if (extension == ".sys")
    {
        content = std::make_shared<AxComponentSystemDefinition>(AxComponentSystemDefinition::elementWord(), nullptr);
    }
    return content != nullptr && loadTable(file, *content) ? content : nullptr;
}

/// The object that all of the file is read into; null when its kind is not known, or when not all of it could be read.
std::shared_ptr<AxReaderWriter> contentOf(std::string const& file)
{
    Findings findings(Findings::Print::Never);
    std::shared_ptr<AxReaderWriter> content = readContent(file);
    bool const isWhole = std::ranges::none_of(findings.sorted(), [](AxDiagnostic const& finding)
                                              { return finding.severity == AxSeverity::Error; });
    return isWhole ? content : nullptr;
}

bool isRecord(TextItem const& root)
{
    for (TextItem item = root.firstValue(); item; item = item.next())
    {
        if (item.head() == "parameter-type")
        {
            return true;
        }
    }
    return false;
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

std::vector<Document> readDocuments(std::string const& file, Database const& database)
{
    std::string text;
    if (!readFile(file, text))
    {
        return {};
    }
    if (fs::path(file).extension() == ".entity")
    {
        return recordDocuments(file, database);
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
    if (isRecord(tree.root()))
    {
        std::vector<Document> records = recordDocuments(file, database);
        return records.empty() ? std::vector<Document>{{.file = file}} : std::move(records);
    }
    std::shared_ptr<AxReaderWriter> content = contentOf(file);
    return {content != nullptr ? documentOf(file, Document::Kind::Content, std::move(content))
                               : Document{.file = file}};
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
        constexpr char const* theTags[] = {"objectType", "matchType", "objectTypes", "guiInformation"};
        if (part != nullptr && std::ranges::find(theTags, part->type().string()) != std::end(theTags))
        {
            myRoot.items.push_back(itemOf(*part));
        }
    }
}

TextTree::Place DocumentPlaces::placeOf(Difference const& difference, int side)
{
    if (myDocument.kind == Document::Kind::Tree)
    {
        Item const* const item = difference.item[side];
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
        int error = 0;
        axReadWholeFile(AxFilename(myDocument.file), text, error);
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
