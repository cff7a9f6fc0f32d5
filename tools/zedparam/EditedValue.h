#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "AxDiagnostic.h"

class AxReaderWriter;

/// Whether a member holds items rather than one value.
bool holdsItems(AxReaderWriter const& rw);

/// Whether a member is a text, whose quotes a user may leave out.
bool isText(AxReaderWriter const* rw);

/// Whether a member holds values under any names, such as signatures or properties.
bool holdsNamedValues(AxReaderWriter const* rw);

/// Words that tell of which class a record or component is, and so what reads the rest of it.
bool isClassWord(std::string_view name);

/// Words that tell what a record or element is; they are read before there are members.
bool isLeadingItem(std::string_view name);

/// Converts a number with a unit behind it, such as "36 km/h", to the unit in which the member stands in files. False,
/// and `fault` tells why, for a unit that does not go with it.
bool toOwnUnit(std::string& value, AxReaderWriter const* rw, std::string const& name, std::string& fault);

/// What follows the keyword, as it stands in parameter text; empty for what is no value. `rw` reads it, `outer` what it
/// stands in; either is null when nothing is known of it. The type of a property may be left out.
std::string valueText(std::string const& value, AxReaderWriter const* rw, AxReaderWriter const* outer);

/// What holds `name` and the value among the named values of a member, as parameter text.
std::string namedValueText(AxReaderWriter const& rw, std::string const& name, std::string const& value);

/// Why a path does not lead from what `rw` reads to `name`: that stands in another file, where `rest` is set. Empty
/// texts when it does not.
struct ElsewhereNote
{
    std::string text;
    std::string hint;
};
ElsewhereNote elsewhere(AxReaderWriter const* rw, std::string const& name, std::string_view path);

/// What speaks against a value that a member was given to read: a fault with code and text, or without a code when
/// nothing does. `outer` is what the member stands in, null when nothing is known of it; `findings` are those of that
/// reading.
AxDiagnostic valueFault(AxReaderWriter const& member, AxReaderWriter const* outer, std::string const& name,
                        std::string const& value, bool isTaken, std::vector<AxDiagnostic> const& findings);

/// Bytes of an item, cut short for a message.
std::string shownItem(std::string_view source);

/// The first finding that has no like among the known ones; null when each has.
AxDiagnostic const* firstNew(std::vector<AxDiagnostic> const& findings, std::vector<AxDiagnostic> const& known);

/// Adds a finding for each variable that nothing binds.
void noteUnboundVariables(AxReaderWriter const& rw, std::string const& file, std::vector<AxDiagnostic>& findings);

/// `did you mean "mass"?`, or nothing when no name is near.
std::string nearestHint(std::string_view name, std::vector<std::string> const& known);
