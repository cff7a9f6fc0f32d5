#include "AxAmmoSelectTable.h"
#include "AxDmgSurfaceTable.h"
#include "AxRangeProbabilityTable.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>
#include <memory>

namespace
{

template <class T>
std::unique_ptr<AxRwList> madeTable()
{
    return std::make_unique<T>(AxSymbolString("table"), nullptr);
}

struct TableCase
{
    std::unique_ptr<AxRwList> (*make)();
    char const* text;
};

TableCase const theTables[] = {
    {madeTable<AxRangeProbabilityTable>,
     "(gun-hit (entity-range (entity-type 1 1 -1 -1 -1 -1 -1) (range-determinant (range-list"
     " (range-entry 500.0 (hit 0.9)) (range-entry 1000.0 (hit 0.6)))))"
     " (entity-range (entity-type 1 1 225 -1 -1 -1 -1) (range-determinant (coefficients (hit -0.0005 1.0)))))"},
    {madeTable<AxAmmoSelectTable>,
     "(gun (ammo-select (target-type 1 1 -1 -1 -1 -1 -1) (ammo (munition (munition-name \"sabot\"))))"
     " (ammo-select (target-type 1 2 -1 -1 -1 -1 -1) (ammo (munition (munition-name \"heat\")))))"},
    {madeTable<AxDmgSurfaceTable>,
     "(heat (front (angle-of-incidence (angle 30.0) (range-determinant (range-list (range-entry 1.0 (hit 0.6))))))"
     " (rear (angle-of-incidence (angle 90.0) (range-determinant (coefficients (hit -0.1 0.2))))))"},
};

/// How many elements of the outer list end within the first `length` bytes.
std::size_t wholeElements(std::string_view text, std::size_t length)
{
    std::size_t whole = 0;
    int depth = 0;
    for (char const byte : text.substr(0, length))
    {
        depth += byte == '(' ? 1 : byte == ')' ? -1 : 0;
        whole += byte == ')' && depth == 1 ? 1 : 0;
    }
    return whole;
}

} // namespace

TEST(CutOffTables, KeepWhatIsWholeAndTellOneFault)
{
    for (TableCase const& test : theTables)
    {
        std::string_view const text = test.text;
        for (std::size_t length = 1; length < text.size(); ++length)
        {
            SCOPED_TRACE(text.substr(0, length));
            std::unique_ptr<AxRwList> const table = test.make();
            ReportedFindings found;
            EXPECT_FALSE(readFrom(*table, text.substr(0, length)));
            std::size_t faults = 0;
            for (AxDiagnostic const& finding : found.all)
            {
                faults += finding.code.find("unclosed") == 0 ? 1 : 0;
            }
            EXPECT_EQ(faults, 1U) << found.codes();
            EXPECT_GE(static_cast<std::size_t>(table->count()), wholeElements(text, length));
        }
    }
}
