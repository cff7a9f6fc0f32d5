#pragma once

#include "AxNumberText.h"
#include "AxReaderWriterFactory.h"
#include "AxRegistryShape.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwUnsigned.h"
#include "AxRwVector.h"
#include "AxTextRoom.h"
#include "AxlObj.h"

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <utility>

/// The walks over a record's members meet plain values nearly always; this does with them, without a virtual call,
/// what their classes do.
class AxPlainValue
{
public:
    using Reading = AxTypeInfo::Reading;

    static bool isPlain(Reading reading) { return reading >= Reading::Real && reading <= Reading::ObjectType; }

    /// Calls `use` with both members as what they are; `reading` must be plain.
    template <class Use>
    static decltype(auto) visit(Reading reading, AxReaderWriter& a, AxReaderWriter const& b, Use&& use)
    {
        switch (reading)
        {
        case Reading::Int:
            return use(static_cast<AxRwInt&>(a), static_cast<AxRwInt const&>(b));
        case Reading::Unsigned:
            return use(static_cast<AxRwUnsigned&>(a), static_cast<AxRwUnsigned const&>(b));
        case Reading::Boolean:
            return use(static_cast<AxRwBoolean&>(a), static_cast<AxRwBoolean const&>(b));
        case Reading::String:
            return use(static_cast<AxRwString&>(a), static_cast<AxRwString const&>(b));
        case Reading::Vector:
            return use(static_cast<AxRwVector&>(a), static_cast<AxRwVector const&>(b));
        case Reading::ObjectType:
            return use(static_cast<AxRwObjectType&>(a), static_cast<AxRwObjectType const&>(b));
        default:
            return use(static_cast<AxRwReal&>(a), static_cast<AxRwReal const&>(b));
        }
    }
    /// What the member in `slot` of `owner` takes up; 0 for what is no plain value.
    static std::size_t sizeOf(AxRegistryTable::Slot const& slot, AxReaderWriter const& owner)
    {
        auto& member = const_cast<AxReaderWriter&>(memberOf(slot, owner));
        Reading const reading = slot.readingOf(member);
        return isPlain(reading) ? visit(reading, member, member, [](auto& as, auto const&) { return sizeof as; }) : 0;
    }
    /// Whether all members of `owner`, plain values, have no state but value and flags that copies carry.
    static bool haveOnlyValues(AxRegistryTable const& table, AxReaderWriter const& owner)
    {
        unsigned flags = 0;
        for (AxRegistryTable::Slot const& slot : table.slots)
        {
            flags |= memberOf(slot, owner).myFlags;
        }
        return (flags & ~static_cast<unsigned>(theCarried | AxReaderWriter::Value | AxReaderWriter::Scalar)) == 0;
    }
    /// Makes the members of `copy` its own, which are the bytes of those of `from`.
    static void settleCopies(AxRegistryTable const& table, AxReaderWriter& copy, AxReaderWriter const& from,
                             std::uint32_t stamp)
    {
        for (AxRegistryTable::Slot const& slot : table.slots)
        {
            auto& member = const_cast<AxReaderWriter&>(memberOf(slot, copy));
            member.myStampOrNumber = stamp;
            if (slot.reading == Reading::String)
            {
                // Made once more, since a text counts those that hold it.
                new (&static_cast<AxRwString&>(member).myValue)
                    AxSharedText(static_cast<AxRwString const&>(memberOf(slot, from)).myValue);
            }
        }
    }
    /// For all members that are copied at once; 0 when stamps come from a source of the host's.
    static std::uint32_t nextStamp() { return AxReaderWriter::ourHasTimeSource ? 0 : ++AxReaderWriter::ourStamp; }
    /// Assigns one member of two different objects that share `slot`; false when that takes the general way.
    static bool copy(AxRegistryTable::Slot const& slot, AxReaderWriter& to, AxReaderWriter const& from,
                     std::uint32_t stamp)
    {
        Reading const reading = slot.readingOf(from);
        if (!isPlain(reading) || !sameClass(to, from))
        {
            return false;
        }
        constexpr auto special = static_cast<std::uint16_t>(AxReaderWriter::VariableReference |
                                                            AxReaderWriter::KeepsItems | AxReaderWriter::RestApart);
        if (((to.myFlags | from.myFlags) & special) != 0) [[unlikely]]
        {
            return false;
        }
        if (reading <= Reading::Boolean)
        {
            copyWord(to, from);
        }
        else
        {
            visit(reading, to, from, [](auto& target, auto const& source) { target.myValue = source.myValue; });
        }
        to.myFlags = static_cast<std::uint16_t>((to.myFlags & ~theCarried) | (from.myFlags & theCarried));
        to.myStampOrNumber = stamp;
        return true;
    }
    /// Takes a value from the items behind the member's keyword, and marks it specified; false, and nothing done, when
    /// they are no plain value of its kind.
    static bool read(AxRegistryTable::Slot const& slot, AxReaderWriter& member, AxlObj const* items)
    {
        Reading const reading = slot.readingOf(member);
        AxlObj const* const first = items->car();
        constexpr auto special =
            static_cast<std::uint16_t>(AxReaderWriter::VariableReference | AxReaderWriter::KeepsItems);
        if (!isPlain(reading) || (member.myFlags & special) != 0 || first->isReference() ||
            first->hasEmbeddedReference())
        {
            return false;
        }
        return visit(reading, member, member,
                     [items](auto& target, auto const&)
                     {
                         std::remove_cvref_t<decltype(target.value())> value{};
                         AxlObj const* rest = items;
                         bool const isRead = target.readValue(rest, value) && rest->nil();
                         if (isRead)
                         {
                             target.setInvalid(false);
                             target.takeRead(std::move(value));
                         }
                         return isRead;
                     });
    }
    static bool equal(AxRegistryTable::Slot const& slot, AxReaderWriter const& a, AxReaderWriter const& b)
    {
        Reading const reading = slot.readingOf(a);
        if (!isPlain(reading) || !sameClass(a, b))
        {
            return AxReaderWriterFactory::equalByType(a, b);
        }
        return visit(reading, const_cast<AxReaderWriter&>(a), b,
                     [](auto const& left, auto const& right) { return left.equals(right); });
    }
    /// Writes "(name value)" on a line of its own when that is due; false when the member needs the general way.
    static bool write(AxRegistryTable::Slot const& slot, AxReaderWriter const& member, AxTextRoom& room, int indent,
                      bool all)
    {
        Reading const reading = slot.readingOf(member);
        constexpr auto special = static_cast<std::uint16_t>(AxReaderWriter::VariableReference |
                                                            AxReaderWriter::KeepsItems | AxReaderWriter::FileBacked);
        if (!isPlain(reading) || (member.myFlags & special) != 0 || !slot.isBareWord)
        {
            return false;
        }
        if (!all && (member.myFlags & AxReaderWriter::Specified) == 0)
        {
            return true;
        }
        std::size_t const blanks = indent > 0 ? static_cast<std::size_t>(indent) * 2 : 0;
        std::size_t const longest = reading == Reading::String ? longestWritten(textOf(member)) : 8 * axLongestNumber;
        char* at = room.take(blanks + slot.word.size() + longest + 4);
        *at++ = '\n';
        at = std::fill_n(at, blanks, ' ');
        *at++ = '(';
        at = std::copy(slot.word.begin(), slot.word.end(), at);
        *at++ = ' ';
        at = writeValue(at, reading, member);
        *at++ = ')';
        room.put(at);
        return true;
    }

    static std::size_t longestWritten(std::string_view text) { return 2 * text.size() + 2; }
    /// Writes a text in quotes.
    static char* writeText(char* to, std::string_view text)
    {
        *to++ = '"';
        for (std::size_t i = 0; i < text.size(); ++i)
        {
            if (text[i] == '"' || text[i] == '\\')
            {
                *to++ = '\\';
            }
            else if (text[i] == '$' && i + 1 < text.size() && text[i + 1] == '(')
            {
                *to++ = '$'; // "$$(" is how a literal "$(" stands in a text
            }
            *to++ = text[i];
        }
        *to++ = '"';
        return to;
    }

private:
    static constexpr auto theCarried =
        static_cast<std::uint16_t>(AxReaderWriter::Specified | AxReaderWriter::Inherited);

    static AxReaderWriter const& memberOf(AxRegistryTable::Slot const& slot, AxReaderWriter const& owner)
    {
        return *reinterpret_cast<AxReaderWriter const*>(reinterpret_cast<char const*>(&owner) + slot.distance);
    }
    template <class Member>
    static auto const& valueOf(AxReaderWriter const& member)
    {
        return static_cast<Member const&>(member).value();
    }
    static std::string const& textOf(AxReaderWriter const& member) { return valueOf<AxRwString>(member).string(); }

    /// What the `writeValue` of the member's class appends.
    static char* writeValue(char* to, Reading reading, AxReaderWriter const& member)
    {
        switch (reading)
        {
        case Reading::Int:
            return axWriteInt(to, valueOf<AxRwInt>(member));
        case Reading::Unsigned:
            return axWriteInt(to, valueOf<AxRwUnsigned>(member));
        case Reading::Boolean:
            return copied(to, valueOf<AxRwBoolean>(member) ? "true" : "false");
        case Reading::String:
            return writeText(to, textOf(member));
        case Reading::Vector:
        {
            AxVector64 const& vector = valueOf<AxRwVector>(member);
            to = axWriteReal(to, vector.x());
            *to++ = ' ';
            to = axWriteReal(to, vector.y());
            *to++ = ' ';
            return axWriteReal(to, vector.z());
        }
        case Reading::ObjectType:
        {
            AxObjectType::Fields const& fields = valueOf<AxRwObjectType>(member).fields();
            bool const isShort = fields[0] == 0;
            to = axWriteInt(to, fields[isShort ? 1 : 0]);
            for (std::size_t i = isShort ? 2 : 1; i < fields.size(); ++i)
            {
                *to++ = ' ';
                to = axWriteInt(to, fields[i]);
            }
            return to;
        }
        default:
            return axWriteReal(to, valueOf<AxRwReal>(member));
        }
    }
    static char* copied(char* to, std::string_view text) { return std::copy(text.begin(), text.end(), to); }
    /// The value of a number or truth value, which is all that follows the common part of the member.
    static void copyWord(AxReaderWriter& to, AxReaderWriter const& from)
    {
        constexpr std::size_t size = sizeof(AxRwReal) - sizeof(AxReaderWriter);
        static_assert(sizeof(AxRwInt) == sizeof(AxRwReal) && sizeof(AxRwUnsigned) == sizeof(AxRwReal) &&
                      sizeof(AxRwBoolean) == sizeof(AxRwReal));
        std::memcpy(reinterpret_cast<char*>(&to) + sizeof(AxReaderWriter),
                    reinterpret_cast<char const*>(&from) + sizeof(AxReaderWriter), size);
    }
    static bool sameClass(AxReaderWriter const& a, AxReaderWriter const& b)
    {
        return AxReaderWriterFactory::functionsOf(a) == AxReaderWriterFactory::functionsOf(b);
    }
};
