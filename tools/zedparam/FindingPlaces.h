#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "AxDiagnostic.h"
#include "AxEnvironment.h"
#include "ElementSource.h"
#include "Source.h"

class CheckedFiles;

/// The files that one record is read from, its own first, and where something stands in them: in parameter text, or in
/// the object element of an entity file. What is not found has no place in its file.
class FindingPlaces
{
public:
    FindingPlaces(std::string file, AxEnvValuePtr const& element, CheckedFiles& files);

    /// A file that the record names; answers its number.
    std::size_t add(std::string file);
    std::string const& file(std::size_t number) const { return myFiles[number]; }
    std::vector<std::string> const& files() const { return myFiles; }
    bool isElement(std::size_t file) const { return file == 0 && myHasElement; }
    ElementSource const& element() const { return myElement; }

    /// A warning without a place in the file.
    AxDiagnostic warning(char const* code, std::size_t file, std::string text) const;
    /// About the value at the end of the path.
    AxDiagnostic atValue(char const* code, std::size_t file, std::vector<SourceStep> const& path,
                         std::string text) const;
    /// About the first item `(keyword value)`.
    AxDiagnostic atItem(char const* code, std::size_t file, std::string_view keyword, std::string_view value,
                        std::string text) const;
    AxDiagnostic atConnection(char const* code, std::size_t file, std::string_view source, std::string_view destination,
                              std::string text) const;
    /// About the first list of that head.
    AxDiagnostic atList(char const* code, std::size_t file, std::string_view head, std::string text) const;
    /// About a variable of the record, where it is first used or where it is bound.
    AxDiagnostic atReference(char const* code, std::string const& variable, std::string text) const;
    AxDiagnostic atBinding(char const* code, std::string const& variable, std::string text) const;

private:
    Source const& source(std::size_t file) const;
    /// The first attribute `name="value"` of the element.
    AxEnvValue const* attribute(std::string_view name, std::string_view value) const;

    std::vector<std::string> myFiles;
    bool myHasElement;
    ElementSource myElement;
    CheckedFiles& myCheckedFiles;
    mutable std::map<std::pair<std::string_view, std::string_view>, AxEnvValue const*> myAttributes; // once asked for
};

/// The item that binds the variable in a list `(variable-bindings ...)`; null when none does.
AxlObj const* bindingIn(Source const& source, std::string_view variable);
