#include <algorithm>
#include <map>
#include <tuple>

#include "Markup.h"
#include "SystemGraph.h"

namespace
{
std::string quoted(std::string const& text)
{
    std::string out = "\"";
    for (char const c : text)
    {
        out += c == '"' || c == '\\' ? std::string{'\\', c} : std::string{c};
    }
    return out + "\"";
}

bool hasPort(std::vector<std::string> const& ports, std::string const& port)
{
    return std::ranges::find(ports, port) != ports.end();
}

/// The ports of one component, as the wires around it use them.
struct Ports
{
    std::vector<std::string> inputs;
    std::vector<std::string> outputs;
};

Ports portsOf(std::string const& component, std::vector<GraphWire> const& wires)
{
    Ports ports;
    auto const add = [&](GraphEnd const& end, std::vector<std::string>& to)
    {
        if (end.name == component && !hasPort(to, end.port))
        {
            to.push_back(end.port);
        }
    };
    for (GraphWire const& wire : wires)
    {
        add(wire.to, ports.inputs);
        add(wire.from, ports.outputs);
    }
    return ports;
}

class GraphDot
{
public:
    std::string write(SystemGraph const& graph)
    {
        myOut = "digraph " + quoted(graph.name) +
                " {\n"
                "  graph [rankdir=LR, fontname=\"sans-serif\", fontsize=12, nodesep=0.2, ranksep=0.6];\n"
                "  node [shape=plain, fontname=\"sans-serif\", fontsize=11];\n"
                "  edge [arrowsize=0.7, headport=w, tailport=e];\n";
        writeParts(graph, 0, {});
        return myOut + myEdges + "}\n";
    }

private:
    using Place = std::tuple<int, std::string, std::string, bool>; // scope, name, port, whether it is an input

    /// `used` are ports of this system that wires outside name.
    int writeParts(SystemGraph const& graph, int level, Ports const& used)
    {
        int const scope = myScopes++;
        std::vector<std::string> ports = graph.ports();
        for (std::vector<std::string> const* more : {&used.inputs, &used.outputs})
        {
            std::ranges::copy_if(*more, std::back_inserter(ports),
                                 [&](std::string const& port) { return !hasPort(ports, port); });
        }
        for (std::string const& port : ports)
        {
            std::string const node = newNode();
            line(level, node + " [shape=cds, class=\"port\", style=filled, fillcolor=\"#eeeeee\", label=" +
                            quoted(shown(port)) + "];");
            setNode(scope, "system", port, node);
        }
        for (GraphComponent const& component : graph.components)
        {
            writeComponent(component, graph.wires, scope, level);
        }
        for (SystemGraph const& system : graph.systems)
        {
            writeSystem(system, graph.wires, scope, level);
        }
        for (GraphWire const& wire : graph.wires)
        {
            std::string const from = nodeOf(scope, wire.from, false, level);
            std::string const to = nodeOf(scope, wire.to, true, level);
            myEdges +=
                "  " + from + " -> " + to + (wire.isAutomatic ? " [style=dashed, class=\"automatic\"];\n" : ";\n");
        }
        return scope;
    }

    void writeSystem(SystemGraph const& system, std::vector<GraphWire> const& wires, int scope, int level)
    {
        std::string const title = system.title.empty() ? system.file : system.title;
        line(level, "subgraph cluster_" + std::to_string(myScopes) + " {");
        line(level + 1, "label=" + quoted(shown(system.name + (title.empty() ? "" : ": " + title))) + ";");
        line(level + 1, system.isEnabled ? "style=rounded;" : "style=\"rounded,dashed\";");
        Ports const used = portsOf(system.name, wires);
        int const inside = writeParts(system, level + 1, used);
        if (system.empty() && used.inputs.empty() && used.outputs.empty())
        {
            line(level + 1, newNode() + " [label=\"(empty)\"];"); // a cluster without nodes is not drawn
        }
        line(level, "}");
        for (std::vector<std::string> const* ports : {&used.inputs, &used.outputs})
        {
            for (std::string const& port : *ports)
            {
                setNode(scope, system.name, port, myNodes[Place(inside, "system", port, true)]);
            }
        }
    }

    void writeComponent(GraphComponent const& component, std::vector<GraphWire> const& wires, int scope, int level)
    {
        Ports const ports = portsOf(component.name, wires);
        std::string const node = newNode();
        std::size_t const rows = std::max<std::size_t>({ports.inputs.size(), ports.outputs.size(), 1});
        std::string label = "<table border=\"0\" cellborder=\"1\" cellspacing=\"0\" cellpadding=\"4\">";
        for (std::size_t row = 0; row < rows; ++row)
        {
            label += "<tr>";
            addPort(label, ports.inputs, row, 'i');
            if (row == 0)
            {
                label += "<td rowspan=\"" + std::to_string(rows) + "\" bgcolor=\"" + colourOf(component.kind) +
                         "\"><b>" + markup(component.name) + "</b><br/><font point-size=\"9\">" +
                         markup(component.kind) + "</font></td>";
            }
            addPort(label, ports.outputs, row, 'o');
            label += "</tr>";
        }
        line(level, node + " [class=\"" + component.kind + "\", tooltip=" + quoted(shown(component.type)) +
                        ", label=<" + label + "</table>>];");
        for (std::size_t i = 0; i < ports.inputs.size(); ++i)
        {
            myNodes[Place(scope, component.name, ports.inputs[i], true)] = node + ":i" + std::to_string(i);
        }
        for (std::size_t i = 0; i < ports.outputs.size(); ++i)
        {
            myNodes[Place(scope, component.name, ports.outputs[i], false)] = node + ":o" + std::to_string(i);
        }
    }

    static void addPort(std::string& label, std::vector<std::string> const& ports, std::size_t row, char side)
    {
        if (row < ports.size())
        {
            label += "<td port=\"" + std::string(1, side) + std::to_string(row) + "\">" + markup(ports[row]) + "</td>";
        }
        else if (!ports.empty())
        {
            label += "<td border=\"0\"></td>"; // what stands on the other side keeps to its column
        }
    }

    static char const* colourOf(std::string const& kind)
    {
        return kind == "sensor" ? "#d5e8fb" : kind == "controller" ? "#fdefc3" : "#f9dcd6";
    }

    /// The node of an end; a component or system that is not there gets one of its own.
    std::string nodeOf(int scope, GraphEnd const& end, bool isInput, int level)
    {
        std::string& node = myNodes[Place(scope, end.name, end.port, isInput)];
        if (node.empty())
        {
            node = newNode();
            line(level, node + " [shape=box, style=dashed, class=\"missing\", label=" +
                            quoted(shown(end.text() + " ?")) + "];");
        }
        return node;
    }

    void setNode(int scope, std::string const& name, std::string const& port, std::string const& node)
    {
        myNodes[Place(scope, name, port, true)] = node;
        myNodes[Place(scope, name, port, false)] = node;
    }

    std::string newNode() { return "n" + std::to_string(myCount++); }
    /// Without bytes that dot refuses; it reads entities in labels.
    static std::string shown(std::string const& text) { return markup(text); }
    void line(int level, std::string const& text)
    {
        myOut.append(static_cast<std::size_t>(level) * 2 + 2, ' ').append(text).append("\n");
    }

    std::string myOut;
    std::string myEdges;
    std::map<Place, std::string> myNodes;
    int myScopes = 0;
    int myCount = 0;
};
} // namespace

std::string graphDot(SystemGraph const& graph)
{
    return GraphDot().write(graph);
}
