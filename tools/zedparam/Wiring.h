#pragma once

#include <functional>
#include <string>

#include "AxComponentDescriptorList.h"
#include "AxComponentSystemDescriptorList.h"
#include "AxConnectionDescriptorList.h"

class AxComponentSystemDefinition;
class AxZedObjectParameters;

/// The parts of a record or of a system definition, and the wires between them.
struct Wiring
{
    explicit Wiring(AxComponentSystemDefinition const& system);
    explicit Wiring(AxZedObjectParameters const& record);

    AxComponentSystemDescriptorList const& systems;
    AxComponentDescriptorList const& sensors;
    AxComponentDescriptorList const& controllers;
    AxComponentDescriptorList const& actuators;
    AxConnectionDescriptorList const& connections;
};

struct WireFault
{
    char const* code;
    std::string text;
    std::string hint;
    AxConnectionDescriptor const& wire;
};

/// Whether the file of a system was read, so that its ports are known.
bool isDefined(AxComponentSystemDescriptor const& system);

/// Reports each end of a wire that names nothing, or a port that the system there does not have. Ports of components
/// are the engine's business.
void checkWires(Wiring const& wiring, std::function<void(WireFault const&)> const& report);

using PortReport = std::function<void(char const* keyword, std::string const& port, std::string text)>;

/// Reports each port that the meta-data of a system names and no wire leads to.
void checkNamedPorts(AxComponentSystemDefinition const& system, PortReport const& portReport);

/// Reports each side of an automatic connection that no system of the record has.
void checkAutomaticWires(AxZedObjectParameters const& record, PortReport const& portReport);
