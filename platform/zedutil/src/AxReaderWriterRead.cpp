#include "AxDiagnostic.h"
#include "AxNumberText.h"
#include "AxPlainValue.h"
#include "AxReadFrame.h"
#include "AxReaderWriter.h"
#include "AxReaderWriterFactory.h"
#include "AxReaderWriterFile.h"
#include "AxRegistryShape.h"
#include "AxRwList.h"
#include "AxTextReader.h"
#include "AxTreeCells.h"
#include "AxlCellPool.h"
#include "AxlFunctions.h"
#include "AxlInputStream.h"
#include "AxlPrint.h"
#include "AxlSyntaxError.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <cmath>
#include <exception>

AxReadFrame* AxReadFrame::innermost = nullptr;

namespace
{
/// The list that is being read, for faults that have no token of their own.
AxlObj const* ourItem = AxlObj::nilCell();

/// The list is forgotten when it is read: it may not live longer.
class ItemScope
{
public:
    explicit ItemScope(AxlObj const* list) : myOuter(ourItem) { ourItem = list; }
    ItemScope(ItemScope const&) = delete;
    ItemScope& operator=(ItemScope const&) = delete;
    ~ItemScope() { ourItem = myOuter; }

private:
    AxlObj const* myOuter;
};

/// A text short enough for a message.
std::string clipped(std::string_view text)
{
    constexpr std::size_t longest = 80;
    std::string clip(text.substr(0, longest));
    clip.append(text.size() > longest ? "..." : "");
    return clip;
}

/// What was found, short enough for a message.
std::string found(AxlObj const* cell)
{
    if (cell->tag() == AxlObj::Tag::Nil)
    {
        return "nothing";
    }
    std::string text = AxTreeCells::printed(cell);
    constexpr std::size_t longest = 40;
    if (text.size() > longest)
    {
        text.resize(longest);
        text += "...";
    }
    return text;
}

/// How many numbers the items begin with; `rest` is what follows these.
std::size_t numberOfNumbers(AxlObj const* items, AxlObj const*& rest)
{
    std::size_t count = 0;
    for (rest = items; rest->isPair() && rest->car()->isNumber(); rest = rest->cdr())
    {
        ++count;
    }
    return count;
}

AxDiagnostic diagnostic(AxSeverity severity, char const* code, AxlObj const* place, std::string text)
{
    if (place->line() == 0)
    {
        place = ourItem;
    }
    AxDiagnostic made;
    made.severity = severity;
    made.code = code;
    made.file = AxSourceScope::currentFile().native();
    made.line = place->line();
    made.column = place->column();
    made.path = AxReadFrame::path();
    made.text = std::move(text);
    return made;
}

/// Offers an item to the one hook there is for unknown ones, which takes a tree. That is several times as large as the
/// item, so it is made only for a class that looks at it.
bool isConsumed(AxReaderWriter& record, AxlObj const* item, std::string const& word, AxFilenameList const& files,
                AxBindingsList const& bindings)
{
    if (!AxReaderWriterFactory::typeInfo(record).takesUnknown)
    {
        return false;
    }
    AxEnvironmentPtr const env = boost::make_shared<AxEnvironment>();
    AxEnvValuePtr const node = env->addObject(AxString(word), AxString("item"));
    for (AxlObj const* rest = item->cdr(); rest->tag() == AxlObj::Tag::Pair; rest = rest->cdr())
    {
        env->addValue(AxString(AxTreeCells::printed(rest->car())), node);
    }
    return record.unrecognizedItem(env, node, files, bindings);
}

/// Whether the item would put in place the content of a member that names a file.
bool isInlineBesideFile(AxReaderWriter const& member, AxlObj const& item)
{
    auto const* const file = dynamic_cast<AxReaderWriterFile const*>(&member);
    return file && (!file->filename().isNull() || file->isVariableReference()) && item.cdr()->car()->isPair();
}
} // namespace

AxlObj const* AxReadFrame::list()
{
    return ourItem;
}

std::string AxReadFrame::path()
{
    std::string text;
    for (AxReadFrame const* frame = innermost; frame; frame = frame->outer)
    {
        std::string_view const name = frame->record.AxReaderWriter::name().view();
        if (!name.empty())
        {
            text = text.empty() ? std::string(name) : std::string(name) + '/' + text;
        }
    }
    return text;
}

std::size_t AxReadFrame::depth()
{
    std::size_t count = 0;
    for (AxReadFrame const* frame = innermost; frame; frame = frame->outer)
    {
        ++count;
    }
    return count;
}

void AxReadFrame::reportLimit(char const* code, std::string text)
{
    AxDiagnostics::report(diagnostic(AxSeverity::Error, code, ourItem, std::move(text)));
}

void AxReadFrame::reportBadName(AxlObj const* head)
{
    AxDiagnostics::report(diagnostic(AxSeverity::Warning, "bad-name", head, "expected a name, found " + found(head)));
}

AxlObjPtr AxReadFrame::named(AxlObjPtr const& expression, bool isList)
{
    AxlObj const* const head = expression->car();
    reportBadName(head);
    AxlCellPool::Place const place{expression->line(), expression->column()};
    auto const joined = [place](AxlObj const* first, AxlObjPtr const& rest) {
        return AxlCellPool::adopt(
            AxlCellPool::newPair(AxlCellPool::share(first), AxlCellPool::share(rest.get()), place));
    };
    AxlObj const* const items = expression->cdr();
    bool const isSecond = !isList && items->isPair();
    AxlObjPtr const whole =
        isSecond ? joined(items->car(), joined(head, AxlObjPtr(items->cdr()))) : joined(head, AxlObjPtr(items));
    return joined(AxcString(std::string()).get(), whole);
}

void AxReaderWriter::getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (expression->car()->isPair() && !flag(Value))
    {
        AxReaderWriter::getSelf(AxReadFrame::named(expression, flag(List)), files, bindings);
        return;
    }
    preGetSelf();
    AxlObj const* const list = expression.get();
    ItemScope const scope(list);
    setFlag(Invalid, false);
    if (list->tag() != AxlObj::Tag::Pair)
    {
        setFlag(Invalid, true);
        AxDiagnostics::report(
            diagnostic(AxSeverity::Error, "not-a-list", list, "expected a list (name item...), found " + found(list)));
        postGetSelf();
        return;
    }
    takeHead(list->car());
    bool const wasReference = flag(VariableReference);
    bool const wasBound = flag(VariableBound);
    AxSymbolString const variable = wasReference ? rareOrNull()->variableName : AxSymbolString();
    std::string reference = wasReference ? rareOrNull()->written : std::string();
    dropReference();
    AxlObj const* const items = list->cdr();
    if (!readReference(items, files, bindings))
    {
        dropKeptItems();
        readBody(items, files, bindings);
    }
    if (!flag(Rejected))
    {
        setFlag(Specified, true);
        setFlag(Inherited, false);
        stamp();
    }
    else if (wasReference)
    {
        keepReference(variable, std::move(reference), wasBound); // a value that is refused changes nothing
    }
    postGetSelf();
}

void AxReaderWriter::takeHead(AxlObj const* head)
{
    if (head->tag() == AxlObj::Tag::Symbol || head->tag() == AxlObj::Tag::String)
    {
        if (AxReaderWriter::name().isNull() && !head->text().empty())
        {
            AxReaderWriter::setName(AxString(head->text()));
        }
        return;
    }
    AxReadFrame::reportBadName(head);
}

void AxReaderWriter::readBody(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (flag(List))
    {
        static_cast<AxRwList*>(this)->readElements(items, files, bindings);
        return;
    }
    if (flag(Value))
    {
        AxlObjPtr const rest = getData(AxlObjPtr(items), files, bindings);
        if (!flag(Rejected) && !rest.nil())
        {
            AxDiagnostics::report(diagnostic(AxSeverity::Warning, "extra-value", rest->car(),
                                             "unexpected " + found(rest->car()) + " after the value of \"" +
                                                 name().string().string() + '"'));
        }
        return;
    }
    AxReadFrame frame(*this);
    AxlObjPtr const rest = getData(AxlObjPtr(items), files, bindings);
    for (AxlObj const* item = rest.get(); item->tag() == AxlObj::Tag::Pair; item = item->cdr())
    {
        readItem(item->car(), frame, files, bindings);
    }
}

void AxReaderWriter::readItems(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxReadFrame frame(*this);
    for (AxlObj const* item = items; item->tag() == AxlObj::Tag::Pair; item = item->cdr())
    {
        readItem(item->car(), frame, files, bindings);
    }
}

void AxReaderWriter::readItem(AxlObj const* item, AxReadFrame& frame, AxFilenameList const& files,
                              AxBindingsList const& bindings)
{
    AxlObj const* const head = item->car();
    if (item->tag() != AxlObj::Tag::Pair || (head->tag() != AxlObj::Tag::Symbol && head->tag() != AxlObj::Tag::String))
    {
        AxDiagnostics::report(
            diagnostic(AxSeverity::Warning, "not-an-item", item, "expected (keyword value), found " + found(item)));
        keepItem(frame.last, AxTreeCells::printed(item));
        return;
    }
    AxSymbolString const keyword =
        head->tag() == AxlObj::Tag::Symbol ? head->symbol() : AxSymbolString::find(head->text());
    AxReaderWriterRegistry* const members = keyword.isNull() ? nullptr : registryIfAny();
    AxReaderWriter* member = nullptr;
    AxRegistryTable::Slot const* slot = nullptr;
    std::size_t place = 0;
    if (members)
    {
        AxRegistryTable const& shared = members->table();
        place = frame.next < shared.slots.size() && shared.slots[frame.next].keyword == keyword ? frame.next
                                                                                                : shared.find(keyword);
        if (place != AxRegistryTable::none)
        {
            slot = &shared.slots[place];
            member = members->at(slot->distance);
            frame.next = place + 1;
        }
        else if ((member = members->find(keyword)) != nullptr)
        {
            for (place = 0; members->entry(place).member != member; ++place)
            {
            }
        }
    }
    if (!member)
    {
        std::string const word(head->text());
        if (!isConsumed(*this, item, word, files, bindings))
        {
            if (word != AxTreeCells::theXmlHead) // that was told when the tree it comes from was read
            {
                reportUnknown(head, word);
            }
            keepItem(frame.last, AxTreeCells::printed(item));
        }
        return;
    }
    bool const isRepeated = frame.markSeen(place);
    if (member->flag(FileBacked) || (isRepeated && isInlineBesideFile(*member, *item)))
    {
        AxDiagnostics::report(
            diagnostic(AxSeverity::Warning, "file-and-inline", head,
                       "\"" + std::string(head->text()) + "\" is given in the text and by a file; the file counts"));
        keepItem(member->AxReaderWriter::name(), AxTreeCells::printed(item));
        return;
    }
    if (isRepeated)
    {
        AxDiagnostics::report(
            diagnostic(AxSeverity::Warning, "repeated-keyword", head,
                       "\"" + std::string(head->text()) + "\" is given again; the later value counts"));
    }
    frame.last = slot ? slot->keyword : member->AxReaderWriter::name();
    if (slot && AxPlainValue::read(*slot, *member, item->cdr()))
    {
        return;
    }
    member->getSelf(AxlObjPtr(item), files, bindings);
    if (member->flag(Rejected))
    {
        member->setFlag(Rejected, false);
        // Beside a value that the text gave before it stands for itself.
        auto const standsFor = [&frame](AxKeptItem const& kept) { return kept.replaces && kept.after == frame.last; };
        bool const hasValue = isRepeated && std::ranges::none_of(rare().kept, standsFor);
        rare().kept.push_back({frame.last, AxTreeCells::printed(item), !hasValue, member->lastStamp()});
        setFlag(KeepsItems, true);
    }
}

void AxReaderWriter::reportUnknown(AxlObj const* head, std::string_view word)
{
    std::vector<std::string_view> known;
    if (AxReaderWriterRegistry const* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            known.push_back(members->entry(i).keyword.view());
        }
    }
    AxDiagnostic unknown = diagnostic(AxSeverity::Warning, "unknown-keyword", head,
                                      "unknown keyword \"" + clipped(word) + "\" in " + name().string().string() +
                                          (name().isNull() ? "(" : " (") + readerWriterType() + ')');
    std::string_view const nearest = axNearest(word, known);
    if (!nearest.empty())
    {
        unknown.hint = "did you mean \"" + std::string(nearest) + "\"?";
    }
    AxDiagnostics::report(std::move(unknown));
}

void AxReaderWriter::reject(AxlObj const* items, std::string const& expected)
{
    setFlag(Rejected, true);
    AxlObj const* rest = items;
    std::size_t const numbers = numberOfNumbers(items, rest);
    bool const isRow = expected.starts_with("three ") || expected.starts_with("7 "); // of so many numbers
    bool const isCutShort = isRow && numbers > 0 && rest->isPair();                  // by what is no number
    AxlObj const* const at = isCutShort ? rest : items;
    AxlObj const* const cell = at->isPair() ? at->car() : at;
    std::string now;
    putData(now, 0);
    bool const isTooLarge = cell->isSymbol() && axIsNumber(cell->text());
    bool const isNotItsSize =
        cell->isNumber() && cell->flonum() == std::trunc(cell->flonum()) && expected.starts_with("a whole number");
    bool const isOutOfRange = isTooLarge || isNotItsSize;
    // An element of a list has no name of its own.
    bool const isNamed = !name().isNull() || !AxReadFrame::innermost;
    AxSymbolString const owner = isNamed ? name() : AxReadFrame::innermost->record.AxReaderWriter::name();
    std::string text = '"' + owner.string().string() + "\" expects " + expected + ", found ";
    if (numbers > 1 && !rest->isPair() && !expected.starts_with("a "))
    {
        text += std::to_string(numbers) + " numbers";
    }
    else
    {
        text += found(cell) + (isTooLarge ? ", beyond the range of a double" : isNotItsSize ? ", out of range" : "");
    }
    if (!now.empty())
    {
        text += "; " + now + " stays";
    }
    AxDiagnostics::report(
        diagnostic(AxSeverity::Error, isOutOfRange ? "number-range" : "wrong-kind", cell, std::move(text)));
}

AxlObjPtr AxReaderWriter::getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&)
{
    return items;
}

void AxReaderWriter::preGetSelf() {}

void AxReaderWriter::postGetSelf() {}

bool AxReaderWriter::unrecognizedItem(AxEnvironmentPtr const&, AxEnvValuePtr const&, AxFilenameList const&,
                                      AxBindingsList const&)
{
    return false;
}

bool AxReaderWriter::readText(std::string_view text, AxFilename const& sourceName, AxFilenameList const& files,
                              AxBindingsList const& bindings)
{
    AxSourceScope const scope(sourceName);
    try
    {
        AxlInputStream stream(text);
        AxTextReader reader(stream);
        bool unclosed = false;
        if (!reader.readObject(*this, files, bindings))
        {
            AxlReadOptions options;
            options.closeOpenLists = true;
            AxlReadResult const result = AxcRead(stream, AxlEnv(), options);
            AxlObjPtr const& expression = result.expr;
            if (expression->tag() == AxlObj::Tag::Eof)
            {
                AxDiagnostic empty = diagnostic(AxSeverity::Error, "empty-text", expression.get(),
                                                "expected a list (name item...), found the end of the text");
                empty.line = 1;
                empty.column = 1;
                AxDiagnostics::report(std::move(empty));
                return false;
            }
            result.reportUnclosed();
            unclosed = result.unclosed;
            getSelf(expression, files, bindings);
        }
        if (unclosed || reader.unclosed())
        {
            setFlag(Invalid, true);
        }
        return !invalid();
    }
    catch (AxlSyntaxError const& error)
    {
        setFlag(Invalid, true);
        AxDiagnostics::report(error.diagnostic());
    }
    catch (...)
    {
        setFlag(Invalid, true);
        AxDiagnostic failure;
        failure.code = "read-failed";
        failure.file = sourceName.string().string();
        failure.text = axReason();
        AxDiagnostics::report(std::move(failure));
    }
    return false;
}
