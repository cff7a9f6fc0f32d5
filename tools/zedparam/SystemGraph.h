#pragma once

#include <cstddef>
#include <string>
#include <vector>

class AxComponentSystemDefinition;
class AxZedObjectParameters;

struct GraphComponent
{
    std::string name;
    std::string kind; ///< "sensor", "controller" or "actuator"
    std::string type; ///< of its descriptor
};

/// One side of a wire: a port of a component, of a system, or, with the name "system", of what is around.
struct GraphEnd
{
    std::string name;
    std::string port;

    std::string text() const { return port.empty() ? name : name + ":" + port; }
};

struct GraphWire
{
    GraphEnd from;
    GraphEnd to;
    bool isAutomatic = false; ///< made by a rule of the object
};

/// What an object or a component system is built of, in the order of the text.
struct SystemGraph
{
    std::string name;
    std::string title; ///< what the system is called in its definition; of an object its display name
    std::string file;  ///< of the definition, as it is named
    bool isEnabled = true;
    std::vector<GraphComponent> components;
    std::vector<SystemGraph> systems;
    std::vector<GraphWire> wires;

    /// Ports on its boundary: those that its own wires use.
    std::vector<std::string> ports() const;
    /// How many components, systems and wires there are in all.
    std::size_t size() const;
    bool empty() const { return components.empty() && systems.empty() && wires.empty(); }
};

/// Carries out the rules for automatic connections, so that the record is not as it was read afterwards.
SystemGraph graphOf(AxZedObjectParameters& record);
SystemGraph graphOf(AxComponentSystemDefinition const& definition, std::string const& name);

/// An outline in words.
std::string graphText(SystemGraph const& graph);
/// In the language of the dot command.
std::string graphDot(SystemGraph const& graph);
