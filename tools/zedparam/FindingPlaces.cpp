#include "FindingPlaces.h"

#include <utility>

#include "CheckedFiles.h"

namespace
{
AxDiagnostic at(AxDiagnostic finding, AxEnvValue const* node)
{
    if (node != nullptr)
    {
        finding.line = node->line();
        finding.column = node->column();
    }
    return finding;
}

AxDiagnostic at(AxDiagnostic finding, AxlObj const* cell)
{
    Source::setPlace(finding, cell);
    return finding;
}
} // namespace

AxlObj const* bindingIn(Source const& source, std::string_view variable)
{
    AxlObj const* found = nullptr;
    source.find(
        [&](AxlObj const& list)
        {
            bool const isSet = list.car()->text() == "variable-bindings";
            for (AxlObj const* rest = list.cdr(); isSet && rest->isPair(); rest = rest->cdr())
            {
                found = rest->car()->car()->text() == variable ? rest->car() : found;
            }
            return found != nullptr;
        });
    return found;
}

FindingPlaces::FindingPlaces(std::string file, AxEnvValuePtr const& element, CheckedFiles& files)
    : myFiles{std::move(file)}, myHasElement(element != nullptr), myElement(element), myCheckedFiles(files)
{
}

std::size_t FindingPlaces::add(std::string file)
{
    myFiles.push_back(std::move(file));
    return myFiles.size() - 1;
}

AxEnvValue const* FindingPlaces::attribute(std::string_view name, std::string_view value) const
{
    if (myAttributes.empty())
    {
        myElement.forEachAttribute(
            [this](std::string_view key, AxEnvValue const& attribute) {
                myAttributes.try_emplace({key, std::string_view(attribute.value().string())}, &attribute);
            });
    }
    auto const found = myAttributes.find({name, value});
    return found != myAttributes.end() ? found->second : nullptr;
}

Source const& FindingPlaces::source(std::size_t file) const
{
    return myCheckedFiles.source(myFiles[file]);
}

AxDiagnostic FindingPlaces::warning(char const* code, std::size_t file, std::string text) const
{
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = code;
    finding.file = myFiles[file];
    finding.text = std::move(text);
    return finding;
}

AxDiagnostic FindingPlaces::atValue(char const* code, std::size_t file, std::vector<SourceStep> const& path,
                                    std::string text) const
{
    AxDiagnostic finding = warning(code, file, std::move(text));
    return isElement(file) ? at(std::move(finding), myElement.value(path))
                           : at(std::move(finding), source(file).value(path));
}

AxDiagnostic FindingPlaces::atItem(char const* code, std::size_t file, std::string_view keyword, std::string_view value,
                                   std::string text) const
{
    AxDiagnostic finding = warning(code, file, std::move(text));
    return isElement(file) ? at(std::move(finding), attribute(keyword, value))
                           : at(std::move(finding), source(file).item(keyword, value));
}

AxDiagnostic FindingPlaces::atConnection(char const* code, std::size_t file, std::string_view from, std::string_view to,
                                         std::string text) const
{
    AxDiagnostic finding = warning(code, file, std::move(text));
    if (isElement(file))
    {
        std::string const value = std::string(from) + ' ' + std::string(to);
        return at(std::move(finding), attribute("value", value));
    }
    return at(std::move(finding), source(file).listWith(from, to));
}

AxDiagnostic FindingPlaces::atList(char const* code, std::size_t file, std::string_view head, std::string text) const
{
    AxDiagnostic finding = warning(code, file, std::move(text));
    return isElement(file) ? finding
                           : at(std::move(finding),
                                source(file).find([&](AxlObj const& list) { return list.car()->text() == head; }));
}

AxDiagnostic FindingPlaces::atReference(char const* code, std::string const& variable, std::string text) const
{
    AxDiagnostic finding = warning(code, 0, std::move(text));
    if (myHasElement)
    {
        finding = at(std::move(finding), myElement.reference(variable));
    }
    for (std::size_t file = 0; finding.line == 0 && file < myFiles.size(); ++file)
    {
        if (AxlObj const* const cell = isElement(file) ? nullptr : source(file).reference(variable))
        {
            finding.file = myFiles[file];
            Source::setPlace(finding, cell);
        }
    }
    return finding;
}

AxDiagnostic FindingPlaces::atBinding(char const* code, std::string const& variable, std::string text) const
{
    AxDiagnostic finding = warning(code, 0, std::move(text));
    return myHasElement ? at(std::move(finding), myElement.variable(variable))
                        : at(std::move(finding), bindingIn(source(0), variable));
}
