#pragma once

#include "AxForceType.h"
#include "AxObjectType.h"
#include "AxReaderWriter.h"

/// What reading of several texts found of references "$(name)" inside them.
struct AxEmbeddedReferences
{
    AxBindingsList const& bindings;
    AxSymbolString first{}; ///< the first variable that was met; empty: none
    bool complete = true;   ///< all variables were known
};

/// How one value stands in a sequence or attribute list:
///  - `read` takes the leading items that make up a value and moves past them; false when they are of another kind;
///  - `same` is equality as records compare their members;
///  - `xmlType`: the tag of a sequence of such values;
///  - `isSet`: a sequence of such values is kept in order and without repeats.
template <class T>
struct AxRwElement;

template <>
struct ZEDOBJPARAM_API AxRwElement<AxString>
{
    static bool read(AxlObj const*& items, AxString& value, AxEmbeddedReferences& references);
    static void write(std::string& out, AxString const& value);
    static bool same(AxString const& a, AxString const& b) { return a == b; }
    static char const* expected() { return "texts"; }
    static char const* xmlType() { return "strings"; }
    static constexpr bool isSet = false;
};

template <>
struct ZEDOBJPARAM_API AxRwElement<double>
{
    static bool read(AxlObj const*& items, double& value, AxEmbeddedReferences& references);
    static void write(std::string& out, double value);
    static bool same(double a, double b) { return a == b || (a != a && b != b); }
    static char const* expected() { return "numbers"; }
    static char const* xmlType() { return "reals"; }
    static constexpr bool isSet = false;
};

template <>
struct ZEDOBJPARAM_API AxRwElement<AxObjectType>
{
    static bool read(AxlObj const*& items, AxObjectType& value, AxEmbeddedReferences& references);
    static void write(std::string& out, AxObjectType const& value);
    static bool same(AxObjectType const& a, AxObjectType const& b) { return a == b; }
    static char const* expected() { return "object types of 7 or 8 whole numbers, each in parentheses"; }
    static char const* xmlType() { return "objectTypes"; }
    static constexpr bool isSet = false;
};

template <>
struct ZEDOBJPARAM_API AxRwElement<AxForceType>
{
    static bool read(AxlObj const*& items, AxForceType& value, AxEmbeddedReferences& references);
    static void write(std::string& out, AxForceType value);
    static bool same(AxForceType a, AxForceType b) { return a == b; }
    static char const* expected() { return "whole numbers for forces"; }
    static char const* xmlType() { return "forces"; }
    static constexpr bool isSet = true;
};

/// The items as they stand in a text, side by side.
ZEDOBJPARAM_API std::string axWrittenItems(AxlObj const* items);
