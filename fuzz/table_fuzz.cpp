#include "Fuzz.h"

#include "AxAmmoSelectTable.h"
#include "AxDmgMunitionTable.h"
#include "AxDmgSurfaceTable.h"
#include "AxFormation.h"
#include "AxRangeProbabilityTable.h"
#include "AxTargetPriorityList.h"
#include "AxTaskExecutionRules.h"

#include <memory>

namespace
{
template <class Table>
std::unique_ptr<Table> make()
{
    return std::make_unique<Table>(AxSymbolString(), nullptr);
}
} // namespace

/// A table of the kind that the first byte says; it also answers.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    if (size == 0)
    {
        return 0;
    }
    std::string_view const text = fuzz::textOf(data + 1, size - 1);
    AxEntityType const tank(1, 1, 225, 1, 1, 3, 0);
    AxPrbRangeTableEntry row;
    switch (data[0] % 7)
    {
    case 0:
        fuzz::readTwice(text, make<AxRangeProbabilityTable>)->getProbabilities(tank, 1200.0, &row, nullptr);
        break;
    case 1:
        fuzz::readTwice(text, make<AxAmmoSelectTable>);
        break;
    case 2:
        fuzz::readTwice(text, make<AxDmgSurfaceTable>);
        break;
    case 3:
        fuzz::readTwice(text, make<AxDmgMunitionTable>);
        break;
    case 4:
        fuzz::readTwice(text, make<AxTargetPriorityList>);
        break;
    case 5:
        fuzz::readTwice(text, make<AxFormation>);
        break;
    default:
        fuzz::readTwice(text, make<AxTaskExecutionRules>);
    }
    return 0;
}
