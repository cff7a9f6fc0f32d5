#pragma once

#include "AxReaderWriterFactory.h"
#include "AxRegistryShape.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwUnsigned.h"
#include "AxRwVector.h"

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
        constexpr auto special =
            static_cast<std::uint16_t>(AxReaderWriter::VariableReference | AxReaderWriter::KeepsItems);
        constexpr auto carried = static_cast<std::uint16_t>(AxReaderWriter::Specified | AxReaderWriter::Inherited);
        if (((to.myFlags | from.myFlags) & special) != 0) [[unlikely]]
        {
            return false;
        }
        visit(reading, to, from, [](auto& target, auto const& source) { target.myValue = source.myValue; });
        to.myFlags = static_cast<std::uint16_t>((to.myFlags & ~carried) | (from.myFlags & carried));
        to.myStamp = stamp;
        return true;
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
    static bool write(Reading reading, AxReaderWriter& member, AxSymbolString name, std::string& out, int indent,
                      bool all)
    {
        constexpr auto special = static_cast<std::uint16_t>(AxReaderWriter::VariableReference |
                                                            AxReaderWriter::KeepsItems | AxReaderWriter::FileBacked);
        if (!isPlain(reading) || (member.myFlags & special) != 0 || !name.isBareWord())
        {
            return false;
        }
        if (!all && (member.myFlags & AxReaderWriter::Specified) == 0)
        {
            return true;
        }
        out += '\n';
        AxReaderWriter::putIndent(out, indent);
        out += '(';
        out += name.view();
        out += ' ';
        visit(reading, member, member, [&out](auto& value, auto const&) { value.writeValue(out, value.value()); });
        out += ')';
        return true;
    }

private:
    static bool sameClass(AxReaderWriter const& a, AxReaderWriter const& b)
    {
        return AxReaderWriterFactory::functionsOf(a) == AxReaderWriterFactory::functionsOf(b);
    }
};
