#pragma once

#include "AxEnvironment.h"
#include "AxObjectType.h"

#include <string>
#include <vector>

/// Types of an object element, and what it holds besides types, variables and record: the information for users, the
/// further types that it serves, elements and attributes that nobody knows. Parameter text has no place of its own for
/// these; a record keeps them as `(xml-item "<simObject>...</simObject>")`.
namespace AxObjectElement
{
inline constexpr char const* theTag = "simObject";
inline constexpr char const* theTypeTag = "objectType";
inline constexpr char const* theMatchTypeTag = "matchType";
inline constexpr char const* theTypesTag = "objectTypes";
inline constexpr char const* thePlatformTag = "platform";
inline constexpr char const* theGuiTag = "guiInformation";
inline constexpr char const* theFurtherTypes = "additional-match-types";

/// The object elements in the order of the file.
AxEnvObjectList allOf(AxEnvironmentPtr const& env);
/// What cannot be read, or stands again, is told if `reports`.
AxObjectType objectTypeOf(AxEnvValuePtr const& element, bool reports);
std::vector<AxObjectType> matchTypesOf(AxEnvValuePtr const& element, bool reports);

/// Whether its object type cannot be read, which is told when that is asked for.
bool hasUnreadableObjectType(AxEnvValuePtr const& element);
/// The same of any of its types.
bool hasUnreadableType(AxEnvValuePtr const& element);
/// Tells what the elements of types and variables say that nobody knows.
void reportRests(AxEnvValuePtr const& element);
/// A copy of what it holds besides; null when there is none.
AxEnvObjectPtr othersOf(AxEnvValuePtr const& element);
bool isEmpty(AxEnvObject const& others);
/// Takes the further types out.
void removeFurtherTypes(AxEnvObject& others);
/// Whether the item of a record's text is what it keeps of its element.
bool isOthersItem(std::string const& item);
/// Moves it from `others` to its places in `element`.
void addOthers(AxEnvObject& element, AxEnvObject& others);
} // namespace AxObjectElement
