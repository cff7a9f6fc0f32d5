#include "Supplies.h"

#include <string_view>

#include "AxComponentDescriptor.h"
#include "AxComponentSystemDescriptor.h"
#include "AxMunitionResource.h"
#include "AxNearest.h"
#include "AxRwString.h"
#include "FindingPlaces.h"
#include "Findings.h"
#include "Wiring.h"

namespace
{
/// The keywords of components that name a supply, or a munition among the supplies.
bool namesSupply(AxSymbolString keyword)
{
    static AxSymbolString const known[] = {"resource-name", "auto-launch-default-resource"};
    return keyword == known[0] || keyword == known[1];
}

bool namesMunition(AxSymbolString keyword)
{
    static AxSymbolString const known("munition-name");
    return keyword == known;
}
} // namespace

bool Supplies::areToldBy(AxReaderWriter const& record)
{
    return dynamic_cast<AxSimResource const*>(&record) != nullptr ||
           dynamic_cast<AxComponentSystemDescriptor const*>(&record) != nullptr;
}

void Supplies::note(AxReaderWriter const& rw, std::size_t file, std::vector<SourceStep> const& path)
{
    AxSymbolString const keyword = path.back().keyword;
    if (rw.isValue())
    {
        if (namesSupply(keyword) || namesMunition(keyword))
        {
            noteUse(rw, namesMunition(keyword), file, path);
        }
    }
    else if (auto const* resource = dynamic_cast<AxSimResource const*>(&rw))
    {
        auto const* munition = dynamic_cast<AxMunitionResource const*>(resource);
        myResources.insert(resource->resourceName().string());
        if (munition != nullptr)
        {
            myMunitions.insert(munition->munition().munitionName().string());
        }
    }
    else if (auto const* system = dynamic_cast<AxComponentSystemDescriptor const*>(&rw))
    {
        myIsWhole = myIsWhole && isDefined(*system);
    }
}

void Supplies::noteUse(AxReaderWriter const& rw, bool isMunition, std::size_t file, std::vector<SourceStep> const& path)
{
    auto const* text = dynamic_cast<AxRwString const*>(&rw);
    AxReaderWriterRegistry const* const registry = rw.parentRegistry();
    auto const* component =
        registry != nullptr ? dynamic_cast<AxComponentDescriptor const*>(registry->owner()) : nullptr;
    bool const isKnown = !rw.isVariableReference() || rw.variableIsBound();
    if (text != nullptr && component != nullptr && isKnown && !text->value().isNull())
    {
        myUses.push_back(
            {text->value().string(), component->AxReaderWriter::name().string().string(), isMunition, file, path});
    }
}

void Supplies::check(FindingPlaces const& places, Findings& findings) const
{
    for (Use const& use : myUses)
    {
        auto const& supplies = use.isMunition ? myMunitions : myResources;
        if (!myIsWhole || supplies.contains(use.name))
        {
            continue;
        }
        AxDiagnostic finding =
            places.atValue("unknown-resource", use.file, use.path,
                           '"' + use.component + "\" uses " + (use.isMunition ? "the munition \"" : "the supply \"") +
                               use.name + "\", which neither the object nor a system of it has");
        std::vector<std::string_view> const known(supplies.begin(), supplies.end());
        if (std::string_view const nearest = axNearest(use.name, known); !nearest.empty())
        {
            finding.hint = "did you mean \"" + std::string(nearest) + "\"?";
        }
        findings.add(std::move(finding));
    }
}
