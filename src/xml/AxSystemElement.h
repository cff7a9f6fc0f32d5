#pragma once

#include "AxComponentSystemDescriptor.h"
#include "AxEnvironment.h"

class AxRwVariableBindings;

/// Component systems and variables in their own elements, against the form that every record has in a tree.
namespace AxSystemElement
{
inline constexpr char const* theTag = "componentSystem";
inline constexpr char const* theNameTag = "systemName";
inline constexpr char const* theVariablesTag = "variableBindings";

/// The record's form of a component system. Nodes are copied, so that the tree stays as it was read.
AxEnvObjectPtr recordOf(AxEnvObjectPtr const& system);
/// Makes the record's form of `descriptor` a component system in place.
void fromRecord(AxEnvironmentPtr const& env, AxEnvObjectPtr const& record,
                AxComponentSystemDescriptor const& descriptor);

/// The variables of an element as the record's form of a set; null when it has none.
AxEnvObjectPtr variableSetOf(AxEnvValuePtr const& element);
/// What the element of a set of variables and those in it say besides the values; null when that is nothing.
AxEnvObjectPtr restOfVariables(AxEnvObject const& variables, bool reports);
/// Adds the variable `(name value...)`.
void addVariable(AxEnvironmentPtr const& env, AxEnvObjectPtr const& variables, AxString const& name,
                 AxlObj const* values);
/// Adds an item of a set that is no variable: XML as it was, other text as text.
void addKept(AxEnvironmentPtr const& env, AxEnvObjectPtr const& variables, std::string const& item);
} // namespace AxSystemElement
