#include "Wiring.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "AxComponentSystemDefinition.h"
#include "AxComponentSystemDescriptor.h"
#include "AxDetectObjectTypesMetaDataEntry.h"
#include "AxDetectedObjectsMetaDataEntry.h"
#include "AxNearest.h"
#include "AxTargetSelectionMetaDataEntry.h"
#include "AxZedObjectParameters.h"

namespace
{
constexpr std::string_view theBoundaryPrefix = "system:";

std::string nearestHint(std::string_view word, std::vector<std::string_view> const& known)
{
    std::string_view const nearest = axNearest(word, known);
    return nearest.empty() ? std::string() : "did you mean \"" + std::string(nearest) + "\"?";
}

/// The ports on the boundary of a system: those that it gives out, or those that it takes in.
std::set<std::string_view> portsOf(AxComponentSystemDefinition const& system, bool outputs)
{
    std::set<std::string_view> ports;
    for (AxConnectionDescriptor const* wire : system.connectionDescriptorList())
    {
        std::string_view const end = (outputs ? wire->destination() : wire->source()).string();
        if (end.starts_with(theBoundaryPrefix))
        {
            ports.insert(end.substr(theBoundaryPrefix.size()));
        }
    }
    return ports;
}

class WireCheck
{
public:
    WireCheck(Wiring const& wiring, std::function<void(WireFault const&)> const& report)
        : myWiring(wiring), myReport(report)
    {
        for (AxComponentSystemDescriptor const* system : wiring.systems)
        {
            mySystems.try_emplace(system->AxReaderWriter::name().view(), system);
            myParts.push_back(system->AxReaderWriter::name().view());
        }
        for (AxComponentDescriptorList const* list : {&wiring.sensors, &wiring.controllers, &wiring.actuators})
        {
            for (AxComponentDescriptor const* component : *list)
            {
                myParts.push_back(component->AxReaderWriter::name().view());
            }
        }
        myKnownParts.insert(myParts.begin(), myParts.end());
    }

    void run()
    {
        for (AxConnectionDescriptor const* wire : myWiring.connections)
        {
            checkEnd(*wire, wire->source().string(), true);
            checkEnd(*wire, wire->destination().string(), false);
        }
    }

private:
    void checkEnd(AxConnectionDescriptor const& wire, std::string_view end, bool isSource)
    {
        if (end.empty() || end.starts_with(theBoundaryPrefix))
        {
            return;
        }
        std::size_t const colon = std::min(end.find(':'), end.size());
        std::string_view const part = end.substr(0, colon);
        if (!myKnownParts.contains(part))
        {
            myReport(WireFault{"dangling-connection", "there is no component or system \"" + std::string(part) + '"',
                               hintFor(part, myParts), wire});
            return;
        }
        auto const system = mySystems.find(part);
        if (system != mySystems.end() && isDefined(*system->second))
        {
            checkPort(wire, *system->second, end.substr(std::min(colon + 1, end.size())), isSource);
        }
    }

    void checkPort(AxConnectionDescriptor const& wire, AxComponentSystemDescriptor const& system, std::string_view port,
                   bool isSource)
    {
        auto const [found, isNew] = myPorts.try_emplace({system.systemDefinition(), isSource});
        std::set<std::string_view>& ports = found->second;
        if (isNew)
        {
            ports = portsOf(*system.systemDefinition(), isSource);
        }
        if (!ports.contains(port))
        {
            std::string const name = '"' + system.AxReaderWriter::name().string().string() + '"';
            std::string const kind = isSource ? "output" : "input";
            myReport(WireFault{"unknown-port",
                               port.empty()
                                   ? "no " + kind + " of the system " + name + " is named"
                                   : "the system " + name + " has no " + kind + " \"" + std::string(port) + '"',
                               hintFor(port, {ports.begin(), ports.end()}), wire});
        }
    }

    /// Many faults in the face of many names get none: comparing all would take too long.
    std::string hintFor(std::string_view word, std::vector<std::string_view> const& known)
    {
        bool const isAffordable = known.size() <= myComparisonsLeft;
        myComparisonsLeft -= isAffordable ? known.size() : 0;
        return isAffordable ? nearestHint(word, known) : std::string();
    }

    Wiring const& myWiring;
    std::function<void(WireFault const&)> const& myReport;
    std::vector<std::string_view> myParts;
    std::unordered_set<std::string_view> myKnownParts;
    std::unordered_map<std::string_view, AxComponentSystemDescriptor const*> mySystems;
    std::map<std::pair<AxComponentSystemDefinition const*, bool>, std::set<std::string_view>>
        myPorts; // outputs, inputs
    std::size_t myComparisonsLeft = 1'000'000;
};
} // namespace

Wiring::Wiring(AxComponentSystemDefinition const& system)
    : systems(system.systemDescriptorList()),
      sensors(system.sensorDescriptorList()),
      controllers(system.controllerDescriptorList()),
      actuators(system.actuatorDescriptorList()),
      connections(system.connectionDescriptorList())
{
}

Wiring::Wiring(AxZedObjectParameters const& record)
    : systems(record.systemDescriptorList()),
      sensors(record.sensorDescriptorList()),
      controllers(record.controllerDescriptorList()),
      actuators(record.actuatorDescriptorList()),
      connections(record.connectionDescriptorList())
{
}

bool isDefined(AxComponentSystemDescriptor const& system)
{
    AxComponentSystemDefinition const* const definition = system.systemDefinition();
    return definition != nullptr && (!system.systemDefinitionFile().foundFilename().isNull() ||
                                     definition->metaData().valueSpecified() || definition->valueSpecified());
}

void checkWires(Wiring const& wiring, std::function<void(WireFault const&)> const& report)
{
    WireCheck(wiring, report).run();
}

void checkNamedPorts(AxComponentSystemDefinition const& system, PortReport const& portReport)
{
    AxConnectionDescriptorList const& wires = system.connectionDescriptorList();
    auto const check = [&](char const* keyword, AxString const& port, bool isThere)
    {
        if (!isThere)
        {
            portReport(keyword, port.string(),
                       "no connection of the system leads to its port \"" + port.string() + '"');
        }
    };
    for (AxSystemMetaDataEntry const* entry : system.metaData().metaDataEntryList())
    {
        if (auto const* targets = dynamic_cast<AxTargetSelectionMetaDataEntry const*>(entry))
        {
            AxString const& port = targets->targetInputPortName();
            check("target-input-port-name", port, wires.hasSystemInput(port));
        }
        else if (auto const* types = dynamic_cast<AxDetectObjectTypesMetaDataEntry const*>(entry))
        {
            AxString const& port = types->detectObjectTypesInputPortName();
            check("detect-object-types-input-port-name", port, wires.hasSystemInput(port));
        }
        else if (auto const* detected = dynamic_cast<AxDetectedObjectsMetaDataEntry const*>(entry))
        {
            AxString const& port = detected->detectedObjectsOutputPortName();
            check("detected-objects-output-port-name", port, wires.hasSystemOutput(port));
        }
    }
}

namespace
{
bool areAllDefined(AxComponentSystemDescriptorList const& systems)
{
    for (AxComponentSystemDescriptor const* system : systems)
    {
        if (!isDefined(*system))
        {
            return false;
        }
    }
    return true;
}

bool anyHas(AxComponentSystemDescriptorList const& systems, AxString const& port, bool isOutput)
{
    for (AxComponentSystemDescriptor const* system : systems)
    {
        AxConnectionDescriptorList const& wires = system->systemDefinition()->connectionDescriptorList();
        if (isOutput ? wires.hasSystemOutput(port) : wires.hasSystemInput(port))
        {
            return true;
        }
    }
    return false;
}
} // namespace

void checkAutomaticWires(AxZedObjectParameters const& record, PortReport const& portReport)
{
    AxComponentSystemDescriptorList const& systems = record.systemDescriptorList();
    if (!areAllDefined(systems))
    {
        return;
    }
    for (AxRwAutoConnection const* rule : record.autoConnections())
    {
        if (!anyHas(systems, rule->output(), true))
        {
            portReport("output", rule->output().string(),
                       "no system of the record has the output \"" + rule->output().string() + '"');
        }
        if (!anyHas(systems, rule->input(), false))
        {
            portReport("input", rule->input().string(),
                       "no system of the record has the input \"" + rule->input().string() + '"');
        }
    }
}
