// Loaded in front of a program, it makes that program's system calls fail: FAULT is "kind n error", as SystemFault has
// them; how many calls there were goes to the file that FAULT_CALLS names.

#include "SystemCalls.h"

#include <cstdio>
#include <cstdlib>
#include <optional>

namespace
{
std::optional<SystemFaultScope> theScope;

__attribute__((constructor)) void begin()
{
    int kind = 0;
    SystemFault fault;
    char const* const text = std::getenv("FAULT");
    if (text != nullptr && std::sscanf(text, "%d %d %d", &kind, &fault.n, &fault.error) == 3)
    {
        fault.kind = static_cast<SystemFault::Kind>(kind);
        theScope.emplace(fault);
    }
}

__attribute__((destructor)) void end()
{
    theScope.reset();
    char const* const name = std::getenv("FAULT_CALLS");
    if (std::FILE* const file = name != nullptr ? std::fopen(name, "w") : nullptr)
    {
        std::fprintf(file, "%d\n", SystemFaultScope::calls());
        std::fclose(file);
    }
}
} // namespace
