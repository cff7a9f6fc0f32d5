#include "AxTextReader.h"

#include "AxCharacters.h"
#include "AxDecimal.h"
#include "AxDiagnostic.h"
#include "AxLimits.h"
#include "AxNumberText.h"
#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxRegistryShape.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwList.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwUnsigned.h"
#include "AxRwVector.h"
#include "AxTreeCells.h"
#include "AxWordText.h"
#include "AxXmlReader.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>

namespace
{
using Reading = AxTypeInfo::Reading;

enum ByteKind : unsigned char
{
    Word,
    Blank,
    Delimiter // parentheses, quote, semicolon and control bytes, the end of the text among them
};

constexpr std::array<ByteKind, 256> byteKinds()
{
    std::array<ByteKind, 256> table{};
    for (std::size_t byte = 0; byte < 0x20; ++byte)
    {
        table[byte] = Delimiter;
    }
    for (char const byte : {' ', '\t', '\r', '\n', '\f', '\v'})
    {
        table[static_cast<unsigned char>(byte)] = Blank;
    }
    for (char const byte : {'(', ')', '"', ';', '\x7f'})
    {
        table[static_cast<unsigned char>(byte)] = Delimiter;
    }
    return table;
}

ByteKind kindOf(char byte)
{
    static constexpr std::array<ByteKind, 256> table = byteKinds();
    return table[static_cast<unsigned char>(byte)];
}

char const* endOfWord(char const* at)
{
    while (kindOf(*at) == Word)
    {
        ++at;
    }
    return at;
}

char const* pastBlanks(char const* at)
{
    while (kindOf(*at) == Blank)
    {
        ++at;
    }
    return at;
}

/// The same between items, where lines begin with many spaces.
char const* pastIndentation(char const* at, char const* end)
{
    at += kindOf(*at) == Blank ? 1 : 0;
    while (end - at >= 8)
    {
        constexpr std::uint64_t spaces = 0x2020202020202020U;
        std::uint64_t const others = axEightBytes(at) ^ spaces;
        if (others != 0)
        {
            constexpr bool isFirstLow = std::endian::native == std::endian::little;
            at += (isFirstLow ? std::countr_zero(others) : std::countl_zero(others)) / 8;
            break;
        }
        at += 8;
    }
    return pastBlanks(at);
}

/// Whether the text at `at`, which ends at `end`, begins with `word`.
bool beginsWith(char const* at, char const* end, std::string_view word)
{
    return static_cast<std::size_t>(end - at) >= word.size() && axSameBytes(at, word);
}

/// A word that may be a name: neither a number, nor a reference, nor anything that only looks like one of them.
bool isPlainName(std::string_view word)
{
    return !word.empty() && !axIsDigit(word[0]) && word[0] != '$' && word[0] != '+' && word[0] != '-' && word[0] != '.';
}
} // namespace

AxTextReader::AxTextReader(AxlInputStream& stream)
    : myStream(&stream),
      myBegin(stream.text().data()),
      myEnd(myBegin + stream.text().size()),
      myAt(myBegin + stream.position()),
      myLineStart(myBegin)
{
}

void AxTextReader::skipBlanks()
{
    myAt = pastIndentation(myAt, myEnd);
    while (*myAt == ';')
    {
        auto const* const newline = std::memchr(myAt, '\n', static_cast<std::size_t>(myEnd - myAt));
        myAt = newline ? pastBlanks(static_cast<char const*>(newline)) : myEnd;
    }
}

bool AxTextReader::closes()
{
    char const* const at = pastBlanks(myAt);
    if (*at != ')')
    {
        return false;
    }
    myAt = at + 1;
    return true;
}

void AxTextReader::finish()
{
    myStream->moveTo(static_cast<std::size_t>(myAt - myBegin));
}

AxlObjPtr AxTextReader::cellsSince(char const* place) const
{
    if (myXml)
    {
        return myXml->elementCells();
    }
    AxlInputStream text(std::string(1, ' ').append(place, myAt)); // a byte-order mark stands only where a file begins
    AxlReadOptions options;
    options.closeOpenLists = true;
    return AxcRead(text, AxlEnv(), options).expr;
}

bool AxTextReader::skipLead(char const* head)
{
    std::size_t const length = std::strlen(head);
    char const* at = *myAt == '(' ? pastBlanks(myAt + 1) : myAt;
    if (std::strncmp(at, head, length) != 0 || kindOf(at[length]) != Blank)
    {
        return false;
    }
    at = pastBlanks(at + length);
    if (*at != '"')
    {
        return false;
    }
    char const* const end = endOfWord(at + 1);
    if (*end != '"' || *pastBlanks(end + 1) != ')')
    {
        return false;
    }
    myAt = pastBlanks(end + 1) + 1;
    return true;
}

AxlObjPtr AxTextReader::cellsAt(char const* from)
{
    auto const position = static_cast<std::size_t>(from - myBegin);
    std::optional<AxlInputStream> again; // a stream only goes forward
    AxlInputStream& stream = position < myStream->position() ? again.emplace(myStream->text()) : *myStream;
    stream.moveTo(position);
    AxlReadOptions options;
    options.closeOpenLists = true;
    AxlReadResult const result = AxcRead(stream, AxlEnv(), options);
    myAt = myBegin + stream.position();
    myUnclosed = myUnclosed || result.unclosed;
    result.reportUnclosed(*myLineForCutOff);
    return result.expr;
}

AxlObjPtr AxTextReader::itemAt(char const* from)
{
    try
    {
        return cellsAt(from);
    }
    catch (AxlSyntaxError const& error)
    {
        if (std::strcmp(error.code(), "unclosed-string") != 0)
        {
            throw;
        }
        error.report(*myLineForCutOff);
        myUnclosed = true;
        myAt = myEnd;
        return axcEof();
    }
}

void AxTextReader::locate(char const* place, std::uint32_t& line, std::uint32_t& column)
{
    if (myXml)
    {
        myXml->locateElement(line, column);
        return;
    }
    if (place < myLineStart)
    {
        myLineStart = myBegin;
        myLine = 1;
    }
    while (void const* newline = std::memchr(myLineStart, '\n', static_cast<std::size_t>(place - myLineStart)))
    {
        myLineStart = static_cast<char const*>(newline) + 1;
        ++myLine;
    }
    line = myLine;
    column = static_cast<std::uint32_t>(place - myLineStart) + 1;
}

void AxTextReader::noteUnclosed(char const* open)
{
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    locate(open, line, column);
    if (!myUnclosed)
    {
        myUnclosed = true;
        AxlSyntaxError::unclosedList(line, column).report(*myLineForCutOff);
    }
    AxSourceScope::settle(line, column);
}

std::string_view AxTextReader::peekHead()
{
    if (myXml)
    {
        return myXml->elementHead();
    }
    skipBlanks();
    if (*myAt != '(')
    {
        return {};
    }
    char const* const head = pastBlanks(myAt + 1);
    std::string_view const word(head, static_cast<std::size_t>(endOfWord(head) - head));
    return isPlainName(word) && word != AxTreeCells::theXmlHead ? word : std::string_view();
}

std::string_view AxTextReader::peekType(std::string_view wanted)
{
    if (myXml)
    {
        return myXml->elementType(wanted);
    }
    std::string_view const head = peekHead();
    if (head.empty())
    {
        return {};
    }
    char const* at = pastBlanks(head.data() + head.size());
    if (*at != '(')
    {
        return {};
    }
    at = pastBlanks(at + 1);
    char const* const word = at;
    at = endOfWord(at);
    std::string_view const itemHead(word, static_cast<std::size_t>(at - word));
    if (!isPlainName(itemHead) || (!wanted.empty() && itemHead != wanted))
    {
        return {};
    }
    at = pastBlanks(at);
    if (*at != '"')
    {
        return {};
    }
    char const* const text = ++at;
    while (kindOf(*at) == Word && *at != '\\' && *at != '$')
    {
        ++at;
    }
    return *at == '"' ? std::string_view(text, static_cast<std::size_t>(at - text)) : std::string_view();
}

void AxTextReader::read(AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (myXml)
    {
        myXml->readListElement(rw, files, bindings);
        return;
    }
    if (!readObject(rw, files, bindings))
    {
        skipBlanks();
        rw.getSelf(cellsAt(myAt), files, bindings);
    }
}

bool AxTextReader::readObject(AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (myXml)
    {
        return myXml->readObject(rw, files, bindings);
    }
    AxTypeInfo const& info = AxReaderWriterFactory::typeInfo(rw);
    if (info.reading != Reading::Record && info.reading != Reading::List)
    {
        return false;
    }
    std::string_view const head = peekHead();
    if (head.empty())
    {
        return false;
    }
    char const* const open = myAt;
    char const* const body = pastBlanks(head.data() + head.size());
    // A list headed by a reference stands for the whole value.
    if ((*body != '(' && *body != ')') || (*body == '(' && *pastBlanks(body + 1) == '$'))
    {
        return false;
    }
    rw.preGetSelf();
    rw.setFlag(AxReaderWriter::Invalid, false);
    if (rw.AxReaderWriter::name().isNull())
    {
        rw.setName(AxString(head));
    }
    rw.dropReference();
    rw.dropKeptItems();
    myAt = body;
    if (info.reading == Reading::List)
    {
        readElements(rw, open, files, bindings);
    }
    else if (!readItems(rw, open, files, bindings))
    {
        rw.getSelf(cellsAt(open), files, bindings);
        return true;
    }
    rw.setFlag(AxReaderWriter::Specified, true);
    rw.stamp();
    if (info.ops && info.ops->afterItems && info.reading == Reading::Record)
    {
        info.ops->afterItems(rw, files, bindings);
    }
    rw.postGetSelf();
    return true;
}

void AxTextReader::readElements(AxReaderWriter& rw, char const* open, AxFilenameList const& files,
                                AxBindingsList const& bindings)
{
    auto& list = static_cast<AxRwList&>(rw);
    AxTypeOps const& ops = *AxReaderWriterFactory::typeInfo(rw).ops;
    list.removeAndDeleteAll();
    AxReadFrame frame(rw);
    AxReaderWriterRegistry const* const members = rw.registryIfAny();
    bool const hasOwn = members && members->size() != 0;
    for (skipBlanks(); *myAt != ')'; skipBlanks())
    {
        if (myAt == myEnd)
        {
            noteUnclosed(open);
            return;
        }
        if (hasOwn || *myAt != '(' || !ops.readElement(list, *this, files, bindings))
        {
            AxlObjPtr const cell = itemAt(myAt);
            if (!cell->isEof())
            {
                list.readElement(cell.get(), frame, files, bindings);
            }
        }
    }
    ++myAt;
}

bool AxTextReader::readItems(AxReaderWriter& rw, char const* open, AxFilenameList const& files,
                             AxBindingsList const& bindings)
{
    AxReadFrame frame(rw);
    AxTypeInfo const& info = AxReaderWriterFactory::typeInfo(rw);
    auto* const ownItem = info.ops ? info.ops->ownItem : nullptr;
    AxReaderWriterRegistry& registry = *rw.registry();
    AxRegistryTable const& table = registry.table();
    AxBindingsList extended;
    AxBindingsList const* current = &bindings;
    std::size_t index = 0;
    for (skipBlanks(); *myAt != ')'; skipBlanks(), ++index)
    {
        if (myAt == myEnd)
        {
            noteUnclosed(open);
            return true;
        }
        if (index == 0 && ownItem && info.ops->leadHead && skipLead(info.ops->leadHead))
        {
            continue;
        }
        char const* const item = myAt;
        if (*item == '(' && (!ownItem || !info.ops->leadHead || index != 0))
        {
            char const* const head = pastBlanks(item + 1);
            std::size_t place = frame.next;
            char const* end = head;
            if (place < table.slots.size())
            {
                std::string_view const expected = table.slots[place].word;
                bool const isExpected =
                    !expected.empty() && beginsWith(head, myEnd, expected) && kindOf(head[expected.size()]) != Word;
                end = isExpected ? head + expected.size() : endOfWord(head);
                if (!isExpected)
                {
                    place = AxRegistryTable::none;
                }
            }
            else
            {
                end = endOfWord(head);
                place = AxRegistryTable::none;
            }
            if (place == AxRegistryTable::none && end != head)
            {
                AxSymbolString const keyword = AxSymbolString::find({head, static_cast<std::size_t>(end - head)});
                place = keyword.isNull() ? AxRegistryTable::none : table.find(keyword);
            }
            if (place != AxRegistryTable::none)
            {
                AxRegistryTable::Slot const& slot = table.slots[place];
                AxReaderWriter& member = *registry.at(slot.distance);
                Reading const reading = slot.readingOf(member);
                bool const wasSeen = (place < 256 && (frame.few[place / 64] >> (place % 64) & 1U) != 0);
                myAt = reading >= Reading::Record ? item : pastBlanks(end);
                if (!wasSeen && place < 256 && readMember(member, reading, files, *current))
                {
                    frame.next = place + 1;
                    frame.last = slot.keyword;
                    frame.markSeen(place);
                    continue;
                }
            }
        }
        AxlObjPtr const cell = itemAt(item);
        if (cell->isEof())
        {
            continue;
        }
        if (ownItem)
        {
            if (current == &bindings)
            {
                extended = bindings;
                current = &extended;
            }
            std::size_t const known = extended.size();
            if (ownItem(rw, cell.get(), index, extended))
            {
                if (extended.size() != known && rw.hasVariableReference())
                {
                    return false; // what was read before these variables may refer to them
                }
                continue;
            }
        }
        rw.readItem(cell.get(), frame, files, *current);
    }
    ++myAt;
    return true;
}

bool AxTextReader::readMember(AxReaderWriter& member, AxTypeInfo::Reading reading, AxFilenameList const& files,
                              AxBindingsList const& bindings)
{
    switch (reading)
    {
    case Reading::Real:
    {
        double value = 0.0;
        if (scanReal(value) && closes())
        {
            static_cast<AxRwReal&>(member).takeRead(std::move(value));
            return true;
        }
        return false;
    }
    case Reading::Int:
    case Reading::Unsigned:
    {
        char const* const begin = myAt;
        char const* const end = endOfWord(begin);
        long long value = 0;
        auto const [last, error] = std::from_chars(begin, end, value);
        bool const isInt = reading == Reading::Int;
        long long const low = isInt ? std::numeric_limits<int>::min() : 0;
        long long const high = isInt ? std::numeric_limits<int>::max() : std::numeric_limits<unsigned>::max();
        if (error != std::errc() || last != end || value < low || value > high)
        {
            return false;
        }
        myAt = end;
        if (!closes())
        {
            return false;
        }
        if (isInt)
        {
            static_cast<AxRwInt&>(member).takeRead(static_cast<int>(value));
        }
        else
        {
            static_cast<AxRwUnsigned&>(member).takeRead(static_cast<unsigned>(value));
        }
        return true;
    }
    case Reading::Boolean:
    {
        char const* const end = endOfWord(myAt);
        std::string_view const word(myAt, static_cast<std::size_t>(end - myAt));
        bool const value = word == "true" || word == "True";
        if (!value && word != "false" && word != "False")
        {
            return false;
        }
        myAt = end;
        if (closes())
        {
            static_cast<AxRwBoolean&>(member).takeRead(value);
            return true;
        }
        return false;
    }
    case Reading::String:
    {
        if (*myAt != '"')
        {
            return false;
        }
        char const* const begin = ++myAt;
        char const* at = begin;
        while (*at != '"' && *at != '\\' && *at != '\0' && !(*at == '$' && at[1] == '('))
        {
            ++at;
        }
        if (*at != '"' || static_cast<std::size_t>(at - begin) > axLimits.tokenSize)
        {
            return false;
        }
        myAt = at + 1;
        if (closes())
        {
            static_cast<AxRwString&>(member).takeRead(
                AxSharedText(std::string_view(begin, static_cast<std::size_t>(at - begin))));
            return true;
        }
        return false;
    }
    case Reading::Vector:
    {
        double xyz[3] = {};
        for (double& value : xyz)
        {
            myAt = pastBlanks(myAt);
            if (!scanReal(value))
            {
                return false;
            }
        }
        if (closes())
        {
            static_cast<AxRwVector&>(member).takeRead(AxVector64(xyz[0], xyz[1], xyz[2]));
            return true;
        }
        return false;
    }
    case Reading::ObjectType:
    {
        AxObjectType::Fields fields{};
        std::size_t count = 0;
        for (; count < fields.size() && kindOf(*myAt) == Word; ++count, myAt = pastBlanks(myAt))
        {
            char const* const end = endOfWord(myAt);
            auto const [last, error] = std::from_chars(myAt, end, fields[count]);
            if (error != std::errc() || last != end)
            {
                return false;
            }
            myAt = end;
        }
        if (count + 1 < fields.size() || !closes())
        {
            return false;
        }
        if (count + 1 == fields.size())
        {
            std::move_backward(fields.begin(), fields.end() - 1, fields.end());
            fields[0] = 0;
        }
        static_cast<AxRwObjectType&>(member).takeRead(AxObjectType(fields));
        return true;
    }
    case Reading::Record:
    case Reading::List:
        return !member.flag(AxReaderWriter::FileBacked) && readObject(member, files, bindings);
    case Reading::Cells:
        break;
    }
    return false;
}

bool AxTextReader::scanReal(double& value)
{
    char const* const end = axTakeDecimal(myAt, value);
    if (end && kindOf(*end) != Word)
    {
        myAt = end;
        return true;
    }
    char const* const behind = endOfWord(myAt);
    if (!axParseReal({myAt, static_cast<std::size_t>(behind - myAt)}, value))
    {
        return false;
    }
    myAt = behind;
    return true;
}
