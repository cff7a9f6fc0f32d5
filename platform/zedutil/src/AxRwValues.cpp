#include "AxNumberText.h"
#include "AxRwBoolean.h"
#include "AxRwEntityType.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwTaitBryan.h"
#include "AxRwUnsigned.h"
#include "AxRwVector.h"
#include "AxlObj.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

// The kinds are small; together they show at a glance what each reads and writes.

namespace
{
bool same(double a, double b)
{
    return AxRwReal::same(a, b);
}

/// Hosts may hand over no cell at all.
bool hasItem(AxlObj const* items)
{
    return items && items->isPair();
}

/// A number, or one of the words inf, -inf and nan.
bool realOf(AxlObj const* cell, double& value)
{
    if (cell->tag() == AxlObj::Tag::Number)
    {
        value = cell->flonum();
        return true;
    }
    if (cell->tag() != AxlObj::Tag::Symbol)
    {
        return false;
    }
    std::string_view const word = cell->text();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (word == "inf" || word == "+inf")
    {
        value = infinity;
    }
    else if (word == "-inf")
    {
        value = -infinity;
    }
    else if (word == "nan" || word == "-nan")
    {
        value = std::numeric_limits<double>::quiet_NaN();
    }
    else
    {
        return false;
    }
    return true;
}

/// A number without fraction within [low, high].
bool integerOf(AxlObj const* cell, double low, double high, double& value)
{
    if (cell->tag() != AxlObj::Tag::Number)
    {
        return false;
    }
    double const number = cell->flonum();
    if (!(number >= low && number <= high) || number != std::trunc(number))
    {
        return false;
    }
    value = number;
    return true;
}

/// Three reals side by side or in one nested list.
bool threeReals(AxlObj const*& items, std::array<double, 3>& values)
{
    if (!hasItem(items))
    {
        return false;
    }
    bool const isNested = items->car()->isPair();
    AxlObj const* item = isNested ? items->car() : items;
    std::array<double, 3> read{};
    for (double& value : read)
    {
        if (!item->isPair() || !realOf(item->car(), value))
        {
            return false;
        }
        item = item->cdr();
    }
    if (isNested)
    {
        if (item->isPair())
        {
            return false;
        }
        item = items->cdr();
    }
    values = read;
    items = item;
    return true;
}

bool fieldsTo(std::array<int, 8> const& fields, std::size_t count, AxObjectType& value)
{
    if (count != 7 && count != 8)
    {
        return false;
    }
    AxObjectType::Fields read{};
    std::copy_n(fields.begin(), count, read.begin() + static_cast<std::ptrdiff_t>(8 - count));
    value = AxObjectType(read);
    return true;
}

bool fieldsTo(std::array<int, 8> const& fields, std::size_t count, AxEntityType& value)
{
    if (count != 7)
    {
        return false;
    }
    AxEntityType::Fields read{};
    std::copy_n(fields.begin(), count, read.begin());
    value = AxEntityType(read);
    return true;
}

template <class Fields>
void appendFields(std::string& out, Fields const& fields, std::size_t from)
{
    for (std::size_t i = from; i < fields.size(); ++i)
    {
        if (i != from)
        {
            out += ' ';
        }
        axAppendInt(out, fields[i]);
    }
}

/// The numbers of a type: side by side, in one nested list, or as one text with colons.
template <class Type>
bool typeOf(AxlObj const*& items, Type& value)
{
    if (!hasItem(items))
    {
        return false;
    }
    AxlObj const* const first = items->car();
    if (first->tag() == AxlObj::Tag::Symbol || first->tag() == AxlObj::Tag::String)
    {
        Type read;
        if (!Type::fromString(first->text(), read))
        {
            return false;
        }
        value = read;
        items = items->cdr();
        return true;
    }
    bool const isNested = first->isPair();
    AxlObj const* item = isNested ? first : items;
    std::array<int, 8> fields{};
    std::size_t count = 0;
    for (; item->isPair() && count < fields.size(); item = item->cdr(), ++count)
    {
        double number = 0.0;
        if (!integerOf(item->car(), std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), number))
        {
            return false;
        }
        fields[count] = static_cast<int>(number);
    }
    if (item->isPair() || !fieldsTo(fields, count, value))
    {
        return false;
    }
    items = isNested ? items->cdr() : item;
    return true;
}

/// Letters of ASCII are the same in either case; `small` has small ones only.
bool isSameWord(std::string_view word, std::string_view small)
{
    return std::equal(word.begin(), word.end(), small.begin(), small.end(),
                      [](char a, char b) { return a == b || (a >= 'A' && a <= 'Z' && a - 'A' + 'a' == b); });
}

bool boolOf(std::string_view word, bool& value)
{
    for (char const* yes : {"true", "yes", "on", "t", "1"})
    {
        if (isSameWord(word, yes))
        {
            value = true;
            return true;
        }
    }
    for (char const* no : {"false", "no", "off", "f", "0"})
    {
        if (isSameWord(word, no))
        {
            value = false;
            return true;
        }
    }
    return false;
}
} // namespace

char const* AxRwReal::xmlType() const
{
    return typeName();
}

bool AxRwReal::readValue(AxlObj const*& items, double& value)
{
    if (!hasItem(items) || !realOf(items->car(), value))
    {
        return false;
    }
    items = items->cdr();
    return true;
}

void AxRwReal::writeValue(std::string& out, double const& value)
{
    axAppendReal(out, value);
}

char const* AxRwInt::xmlType() const
{
    return typeName();
}

bool AxRwInt::readValue(AxlObj const*& items, int& value)
{
    double number = 0.0;
    if (!hasItem(items) ||
        !integerOf(items->car(), std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), number))
    {
        return false;
    }
    value = static_cast<int>(number);
    items = items->cdr();
    return true;
}

void AxRwInt::writeValue(std::string& out, int const& value)
{
    axAppendInt(out, value);
}

char const* AxRwUnsigned::xmlType() const
{
    return typeName();
}

bool AxRwUnsigned::readValue(AxlObj const*& items, unsigned& value)
{
    double number = 0.0;
    if (!hasItem(items) || !integerOf(items->car(), 0.0, std::numeric_limits<unsigned>::max(), number))
    {
        return false;
    }
    value = static_cast<unsigned>(number);
    items = items->cdr();
    return true;
}

void AxRwUnsigned::writeValue(std::string& out, unsigned const& value)
{
    axAppendInt(out, value);
}

char const* AxRwBoolean::xmlType() const
{
    return typeName();
}

bool AxRwBoolean::readValue(AxlObj const*& items, bool& value)
{
    if (!hasItem(items))
    {
        return false;
    }
    AxlObj const* const cell = items->car();
    if (cell->tag() == AxlObj::Tag::Number)
    {
        if (cell->flonum() != 0.0 && cell->flonum() != 1.0)
        {
            return false;
        }
        value = cell->flonum() == 1.0;
    }
    else if (!boolOf(cell->text(), value))
    {
        return false;
    }
    items = items->cdr();
    return true;
}

void AxRwBoolean::writeValue(std::string& out, bool const& value)
{
    out += value ? "true" : "false";
}

bool AxRwBoolean::ToBool(AxString const& text)
{
    bool value = false;
    return boolOf(text.string(), value) && value;
}

AxRwVector::~AxRwVector() = default;

AxRwVector& AxRwVector::operator=(AxVector64 const& value)
{
    setValue(value);
    return *this;
}

char const* AxRwVector::xmlType() const
{
    return "vector";
}

bool AxRwVector::readValue(AxlObj const*& items, AxVector64& value)
{
    std::array<double, 3> xyz{};
    if (!threeReals(items, xyz))
    {
        return false;
    }
    value = AxVector64(xyz[0], xyz[1], xyz[2]);
    return true;
}

void AxRwVector::writeValue(std::string& out, AxVector64 const& value)
{
    axAppendReal(out, value.x());
    out += ' ';
    axAppendReal(out, value.y());
    out += ' ';
    axAppendReal(out, value.z());
}

bool AxRwVector::same(AxVector64 const& a, AxVector64 const& b)
{
    return ::same(a.x(), b.x()) && ::same(a.y(), b.y()) && ::same(a.z(), b.z());
}

AxRwOffsetVector::~AxRwOffsetVector() = default;

char const* AxRwOffsetVector::readerWriterType() const
{
    return "AxRwOffsetVector";
}

char const* AxRwOffsetVector::xmlType() const
{
    return "offsetVector";
}

AxRwTaitBryan::~AxRwTaitBryan() = default;

AxRwTaitBryan& AxRwTaitBryan::operator=(AxTaitBryan const& value)
{
    setValue(value);
    return *this;
}

char const* AxRwTaitBryan::xmlType() const
{
    return "taitBryan";
}

bool AxRwTaitBryan::readValue(AxlObj const*& items, AxTaitBryan& value)
{
    std::array<double, 3> angles{};
    if (!threeReals(items, angles))
    {
        return false;
    }
    value = AxTaitBryan(angles[0], angles[1], angles[2]);
    return true;
}

void AxRwTaitBryan::writeValue(std::string& out, AxTaitBryan const& value)
{
    axAppendReal(out, value.psi());
    out += ' ';
    axAppendReal(out, value.theta());
    out += ' ';
    axAppendReal(out, value.phi());
}

bool AxRwTaitBryan::same(AxTaitBryan const& a, AxTaitBryan const& b)
{
    return ::same(a.psi(), b.psi()) && ::same(a.theta(), b.theta()) && ::same(a.phi(), b.phi());
}

AxRwObjectType::~AxRwObjectType() = default;

AxRwObjectType& AxRwObjectType::operator=(AxObjectType const& value)
{
    setValue(value);
    return *this;
}

char const* AxRwObjectType::xmlType() const
{
    return "objectType";
}

bool AxRwObjectType::readValue(AxlObj const*& items, AxObjectType& value)
{
    return typeOf(items, value);
}

void AxRwObjectType::writeValue(std::string& out, AxObjectType const& value)
{
    appendFields(out, value.fields(), value.superType() == 0 ? 1 : 0);
}

AxRwEntityType::~AxRwEntityType() = default;

AxRwEntityType& AxRwEntityType::operator=(AxEntityType const& value)
{
    setValue(value);
    return *this;
}

char const* AxRwEntityType::xmlType() const
{
    return "entityType";
}

bool AxRwEntityType::readValue(AxlObj const*& items, AxEntityType& value)
{
    return typeOf(items, value);
}

void AxRwEntityType::writeValue(std::string& out, AxEntityType const& value)
{
    appendFields(out, value.fields(), 0);
}
