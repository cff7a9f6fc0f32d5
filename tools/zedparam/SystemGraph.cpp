#include "SystemGraph.h"

#include <algorithm>

#include "AxComponentSystemDefinition.h"
#include "AxComponentSystemDescriptor.h"
#include "AxZedObjectParameters.h"

namespace
{
constexpr char theBoundary[] = "system";

GraphEnd endOf(AxString const& endpoint)
{
    std::string const& text = endpoint.string();
    std::size_t const colon = text.find(':');
    return colon == std::string::npos ? GraphEnd{text, ""} : GraphEnd{text.substr(0, colon), text.substr(colon + 1)};
}

void addComponents(SystemGraph& graph, AxComponentDescriptorList const& list, char const* kind)
{
    for (AxListItem const* item = list.first(); item != nullptr; item = item->next())
    {
        auto const& component = *static_cast<AxComponentDescriptor const*>(AxRwList::element(item));
        graph.components.push_back(
            {component.AxReaderWriter::name().string().string(), kind, component.type().string()});
    }
}

void addWires(SystemGraph& graph, AxConnectionDescriptorList const& list)
{
    std::size_t index = 0;
    for (AxConnectionDescriptor const* wire : list)
    {
        if (index++ >= graph.wires.size())
        {
            graph.wires.push_back({endOf(wire->source()), endOf(wire->destination()), false});
        }
    }
}

/// What records and definitions have alike.
template <class Owner>
void addParts(SystemGraph& graph, Owner const& owner)
{
    addComponents(graph, owner.sensorDescriptorList(), "sensor");
    addComponents(graph, owner.controllerDescriptorList(), "controller");
    addComponents(graph, owner.actuatorDescriptorList(), "actuator");
    for (AxComponentSystemDescriptor const* system : owner.systemDescriptorList())
    {
        std::string const name = system->AxReaderWriter::name().string().string();
        SystemGraph part;
        part.name = name;
        if (system->systemDefinition() != nullptr)
        {
            part = graphOf(*system->systemDefinition(), name);
        }
        part.file = system->systemDefinitionFile().filename().stripPath().string().string();
        part.isEnabled = system->isEnabled();
        graph.systems.push_back(std::move(part));
    }
    addWires(graph, owner.connectionDescriptorList());
}

void addText(std::string& out, SystemGraph const& graph, int level)
{
    auto const line = [&](int depth, std::string const& text)
    { out.append(static_cast<std::size_t>(depth) * 2, ' ').append(text).append("\n"); };
    line(level, graph.name + (graph.file.empty() ? "" : "  " + graph.file) +
                    (graph.title.empty() ? "" : "  " + graph.title) + (graph.isEnabled ? "" : "  (not enabled)"));
    for (GraphComponent const& component : graph.components)
    {
        line(level + 1, component.kind + " " + component.name + "  " + component.type);
    }
    for (SystemGraph const& system : graph.systems)
    {
        addText(out, system, level + 1);
    }
    for (GraphWire const& wire : graph.wires)
    {
        line(level + 1, wire.from.text() + " -> " + wire.to.text() + (wire.isAutomatic ? "  (automatic)" : ""));
    }
}
} // namespace

std::vector<std::string> SystemGraph::ports() const
{
    std::vector<std::string> names;
    for (GraphWire const& wire : wires)
    {
        for (GraphEnd const* end : {&wire.from, &wire.to})
        {
            if (end->name == theBoundary && std::ranges::find(names, end->port) == names.end())
            {
                names.push_back(end->port);
            }
        }
    }
    return names;
}

std::size_t SystemGraph::size() const
{
    std::size_t count = components.size() + wires.size();
    for (SystemGraph const& system : systems)
    {
        count += 1 + system.size();
    }
    return count;
}

SystemGraph graphOf(AxZedObjectParameters& record)
{
    SystemGraph graph;
    graph.name = record.AxReaderWriter::name().string().string();
    graph.title = record.displayName().string();
    addParts(graph, record);
    std::size_t const wired = graph.wires.size();
    record.connectSystems();
    addWires(graph, record.connectionDescriptorList());
    std::for_each(graph.wires.begin() + static_cast<std::ptrdiff_t>(wired), graph.wires.end(),
                  [](GraphWire& wire) { wire.isAutomatic = true; });
    return graph;
}

SystemGraph graphOf(AxComponentSystemDefinition const& definition, std::string const& name)
{
    SystemGraph graph;
    graph.name = name;
    graph.title = definition.metaData().systemName().string();
    addParts(graph, definition);
    return graph;
}

std::string graphText(SystemGraph const& graph)
{
    std::string text;
    addText(text, graph, 0);
    return text;
}
