#include "RecordWalk.h"

#include <algorithm>
#include <typeinfo>
#include <unordered_map>
#include <utility>

#include "AxPrbRangeTableEntry.h"
#include "AxReaderWriterFile.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwList.h"
#include "AxRwProperty.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwUnsigned.h"
#include "AxZedObjectParameters.h"
#include "AxlFunctions.h"
#include "NamedElement.h"
#include "PathText.h"
#include "RecordText.h"
#include "RecordValue.h"

namespace
{
using Step = KeywordPath::Step;

/// The step that is to be found next, at this depth or below it; null when everything is.
Step const* nextStep(std::span<Step const> rest)
{
    std::size_t const at = rest.front().kind == Step::Kind::AnyDepth ? 1 : 0;
    return at < rest.size() ? &rest[at] : nullptr;
}

/// Whether the path goes on with what the walk came to, which is no element: a member, or a word where that is null.
bool isMeant(std::span<Step const> rest, SourceStep const& at, AxReaderWriter const* member)
{
    Step const* const next = nextStep(rest);
    std::size_t const position = static_cast<std::size_t>(std::max(at.occurrence, 0)) + 1;
    return next != nullptr && next->text.identity.empty() &&
           (next->text.position == 0 || next->text.position == position) &&
           (next->kind == Step::Kind::Any || next->keyword == at.keyword ||
            (member != nullptr && member->hasAlias(next->keyword)));
}

/// Tells elements of one name apart.
class Occurrences
{
public:
    void count(AxSymbolString name) { ++myCounts[name].all; }
    SourceStep next(AxSymbolString name, AxReaderWriter const& rw)
    {
        Count& count = myCounts[name];
        return {name, &rw, count.seen++, count.all > 1};
    }

private:
    struct Count
    {
        int all = 0;
        int seen = 0;
    };
    std::unordered_map<AxSymbolString, Count> myCounts;
};

struct Element
{
    AxReaderWriter* rw;
    AxSymbolString head;
};

/// Those of a list's elements that the step means.
std::vector<Element> meantBy(Step const& step, std::vector<Element> const& elements)
{
    if (step.kind == Step::Kind::AnyDepth)
    {
        return {};
    }
    auto const isHeaded = [&step](Element const& element)
    { return step.kind == Step::Kind::Any || element.head == step.keyword; };
    std::vector<Element> meant =
        elementsMeant(step.text, elements, isHeaded, [](Element const& element) { return ownName(*element.rw); });
    if (std::size_t const position = step.text.position; position != 0)
    {
        meant = position <= meant.size() ? std::vector{meant[position - 1]} : std::vector<Element>();
    }
    return meant;
}

/// One number, word or text: there is nothing below, and nothing in it that has a keyword. Most of a record is such.
bool isPlainValue(AxReaderWriter const& rw)
{
    std::type_info const& type = typeid(rw);
    return type == typeid(AxRwReal) || type == typeid(AxRwBoolean) || type == typeid(AxRwString) ||
           type == typeid(AxRwInt) || type == typeid(AxRwUnsigned);
}

/// A row writes its outcomes as words of its own. As elements only references are come to, which words do not tell.
bool isRow(AxReaderWriter const& rw)
{
    return dynamic_cast<AxPrbRangeTableEntry const*>(&rw) != nullptr;
}

/// The one keyword that the path goes on with; null when there may be several.
AxSymbolString onlyKeyword(std::span<Step const> rest)
{
    return rest.front().kind == Step::Kind::Keyword ? rest.front().keyword : AxSymbolString();
}

/// A keyword that must come in what is written of an object for the path to go on in it; empty for any.
std::string_view neededText(std::span<Step const> rest)
{
    Step const* const next = nextStep(rest);
    return next != nullptr ? next->keyword.view() : std::string_view();
}
} // namespace

bool KeywordPath::parse(std::string_view text, KeywordPath& out, std::string& fault)
{
    out.myText = text;
    out.mySteps.clear();
    int anyDepths = 0;
    std::vector<KeywordStep> steps;
    bool const isPath = readPath(text, steps);
    for (KeywordStep const& step : steps)
    {
        Step::Kind const kind = step.isQuoted       ? Step::Kind::Keyword
                                : step.name == "*"  ? Step::Kind::Any
                                : step.name == "**" ? Step::Kind::AnyDepth
                                                    : Step::Kind::Keyword;
        anyDepths += kind == Step::Kind::AnyDepth;
        bool const isWord = kind == Step::Kind::Keyword;
        out.mySteps.push_back({kind, isWord ? AxSymbolString(std::string_view(step.name)) : AxSymbolString(), step});
    }
    if (!isPath || anyDepths > 1)
    {
        fault = "\"" + std::string(text) + "\" is no path of keywords; expected one such as \"max-speed\"";
        fault += anyDepths > 1 ? ", with \"**\" at most once" : "";
    }
    return isPath && anyDepths <= 1;
}

KeywordPath const& KeywordPath::everything()
{
    static KeywordPath const everything = []
    {
        KeywordPath path;
        std::string fault;
        parse("**", path, fault);
        return path;
    }();
    return everything;
}

std::string_view KeywordPath::last() const
{
    bool const isWord = mySteps.back().kind == Step::Kind::Keyword;
    return isWord ? mySteps.back().keyword.view() : std::string_view(myText).substr(myText.rfind('/') + 1);
}

bool KeywordPath::isPlain() const
{
    return std::ranges::all_of(mySteps, [](Step const& step) { return step.kind == Step::Kind::Keyword; });
}

RecordWalk::RecordWalk(std::string file, AxZedObjectParameters& record, std::vector<SourceStep> stepsToRecord)
    : myRecord(&record), myFiles{std::move(file)}, mySteps(std::move(stepsToRecord)), myStepsToRecord(mySteps.size())
{
}

void RecordWalk::run(KeywordPath const& path, Visit const& visit)
{
    myVisit = &visit;
    below(*myRecord, path.steps());
}

std::string RecordWalk::path() const
{
    std::string path;
    for (SourceStep const& step : steps())
    {
        path.append(path.empty() ? "" : "/").append(step.keyword.isNull() ? "*" : stepOf(step.keyword.view()));
        path.append(step.isOneOfSeveral ? "[" + std::to_string(step.occurrence + 1) + "]" : std::string());
    }
    return path;
}

void RecordWalk::below(AxReaderWriter& rw, Steps rest)
{
    if (isPlainValue(rw))
    {
        return;
    }
    if (!rw.isValue())
    {
        if (AxReaderWriterRegistry const* registry = rw.registryIfAny())
        {
            members(*registry, rest);
        }
        elements(rw, rest);
        auto const* property = dynamic_cast<AxRwProperty const*>(&rw);
        if (property != nullptr && property->rwValue() != nullptr)
        {
            below(*property->rwValue(), rest);
        }
    }
    auto const* file = dynamic_cast<AxReaderWriterFile const*>(&rw);
    if (file != nullptr && file->content() != nullptr && file->contentKind() != AxReaderWriterFile::ContentKind::Member)
    {
        content(*file, rest, nullptr, {});
    }
    ownWords(rw, rest);
}

void RecordWalk::members(AxReaderWriterRegistry const& registry, Steps rest)
{
    AxSymbolString const only = onlyKeyword(rest);
    AxReaderWriter* const named = only.isNull() ? nullptr : registry.find(only);
    if (!only.isNull() && named == nullptr)
    {
        return;
    }
    if (named != nullptr && named->isValue())
    {
        SourceStep const step{named->name(), named};
        child(step, *named, nullptr, rest, isMeant(rest, step, named));
        return;
    }
    // A member that a file was read into stands in that file.
    std::unordered_map<AxReaderWriter const*, AxReaderWriterFile const*> contents;
    for (std::size_t i = 0; i < registry.size(); ++i)
    {
        AxReaderWriter const& member = *registry.entry(i).member;
        auto const* file = isPlainValue(member) ? nullptr : dynamic_cast<AxReaderWriterFile const*>(&member);
        if (file != nullptr && file->contentKind() == AxReaderWriterFile::ContentKind::Member &&
            !file->foundFilename().isNull())
        {
            contents.emplace(file->content(), file);
        }
    }
    for (std::size_t i = 0; i < registry.size(); ++i)
    {
        AxRegistryEntry const entry = registry.entry(i);
        if (entry.content || (named != nullptr && entry.member != named))
        {
            continue;
        }
        auto const file = contents.find(entry.member);
        if (file != contents.end())
        {
            content(*file->second, rest, entry.member, entry.keyword);
        }
        else
        {
            SourceStep const step{entry.keyword, entry.member};
            child(step, *entry.member, nullptr, rest, isMeant(rest, step, entry.member));
        }
    }
}

void RecordWalk::elements(AxReaderWriter& rw, Steps rest)
{
    auto const* list = dynamic_cast<AxRwList const*>(&rw);
    bool const onlyReferences = list != nullptr && isRow(rw);
    Occurrences occurrences;
    std::vector<Element> elements;
    for (AxListItem const* item = list != nullptr ? list->first() : nullptr; item != nullptr; item = item->next())
    {
        elements.push_back({AxRwList::element(item), headOf(*AxRwList::element(item))});
        occurrences.count(elements.back().head);
    }
    Step const* const next = nextStep(rest);
    std::vector<Element> const meant = next != nullptr ? meantBy(*next, elements) : std::vector<Element>();
    auto nextMeant = meant.begin();
    for (Element const& element : elements)
    {
        SourceStep const step = occurrences.next(element.head, *element.rw);
        bool const isNext = nextMeant != meant.end() && nextMeant->rw == element.rw;
        nextMeant += isNext;
        if (!onlyReferences || element.rw->isVariableReference())
        {
            child(step, *element.rw, nullptr, rest, isNext);
        }
    }
}

void RecordWalk::content(AxReaderWriterFile const& file, Steps rest, AxReaderWriter* asMember, AxSymbolString keyword)
{
    std::size_t const outerFile = myFile;
    std::size_t const outerStep = myFirstStep;
    if (!file.foundFilename().isNull())
    {
        myFile = myFiles.size();
        myFirstStep = mySteps.size() + (asMember != nullptr ? 1 : 0);
        myFiles.push_back(file.foundFilename().native());
    }
    if (asMember != nullptr)
    {
        SourceStep const step{keyword, asMember};
        child(step, *asMember, nullptr, rest, isMeant(rest, step, asMember));
    }
    else
    {
        below(*file.content(), rest);
    }
    myFile = outerFile;
    myFirstStep = outerStep;
}

void RecordWalk::ownWords(AxReaderWriter& rw, Steps rest)
{
    static AxSymbolString const typeWord("parameter-type");
    bool const isType = &rw == myRecord && neededText(rest) == typeWord.view();
    myOwnText.assign("(");
    if (isType)
    {
        myOwnText.append("(parameter-type \"").append(myRecord->parameterType().string()).append("\")");
    }
    else
    {
        rw.putData(myOwnText, 0);
        tellType(rw, myOwnText);
    }
    if (myOwnText.find('(', 1) == std::string::npos || myOwnText.find(neededText(rest)) == std::string::npos)
    {
        return;
    }
    AxlInputStream stream(myOwnText + ")");
    AxlObjPtr const items = AxcRead(stream);
    words(rw, *items, rest);
}

void RecordWalk::words(AxReaderWriter& rw, AxlObj const& items, Steps rest)
{
    AxSymbolString const only = onlyKeyword(rest);
    Occurrences occurrences;
    auto const wordOf = [](AxlObj const& item) { return item.isPair() ? item.car()->symbol() : AxSymbolString(); };
    for (AxlObj const* left = &items; left->isPair(); left = left->cdr())
    {
        occurrences.count(wordOf(*left->car()));
    }
    for (AxlObj const* left = &items; left->isPair(); left = left->cdr())
    {
        AxlObj const& item = *left->car();
        AxSymbolString const word = wordOf(item);
        if (word.isNull() || (!only.isNull() && only != word))
        {
            continue;
        }
        SourceStep const step = occurrences.next(word, rw);
        if (!isRow(rw) || !item.cdr()->car()->isReference())
        {
            child(step, rw, &item, rest, isMeant(rest, step, nullptr));
        }
    }
}

void RecordWalk::child(SourceStep const& step, AxReaderWriter& rw, AxlObj const* item, Steps rest, bool isNext)
{
    bool const isAnyDepth = rest.front().kind == Step::Kind::AnyDepth;
    bool const isEverything = isAnyDepth && rest.size() == 1;
    mySteps.push_back(step);
    if (isEverything)
    {
        visit(rw, item);
    }
    else if (isNext)
    {
        arrive(rw, item, rest.subspan(isAnyDepth ? 2 : 1));
    }
    if (isAnyDepth)
    {
        item != nullptr ? words(rw, *item->cdr(), rest) : below(rw, rest);
    }
    mySteps.pop_back();
}

void RecordWalk::arrive(AxReaderWriter& rw, AxlObj const* item, Steps rest)
{
    if (rest.empty())
    {
        visit(rw, item);
    }
    else
    {
        item != nullptr ? words(rw, *item->cdr(), rest) : below(rw, rest);
    }
}

void RecordWalk::visit(AxReaderWriter& rw, AxlObj const* item)
{
    myRw = &rw;
    myOwnItem = item;
    (*myVisit)(*this);
}
