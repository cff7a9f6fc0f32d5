#include "AxActuatorComponentDescriptor.h"
#include "AxAmmoSelectEntry.h"
#include "AxBombParameters.h"
#include "AxComponentSystemDefinition.h"
#include "AxComponentSystemDescriptor.h"
#include "AxDetectionPrbRangeCalcEntry.h"
#include "AxDetectionPrbRangeLookupEntry.h"
#include "AxHumanParameters.h"
#include "AxIffControllerDescriptor.h"
#include "AxMissileParameters.h"
#include "AxPrbCoefficientsRangeDeterminant.h"
#include "AxPrbTableRangeDeterminant.h"
#include "AxRwDeadReckonThresholds.h"
#include "AxRwNavigationParameters.h"
#include "AxScriptEnableControllerDescriptor.h"
#include "AxSimMunition.h"
#include "AxSimSector.h"
#include "AxTargetAcquireCriteria.h"
#include "AxTargetSelectionCriteria.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

// What a host does that extends a class of the library: it starts from a plain object of that class and adds members
// of its own behind those of the base.
namespace
{

template <class Base>
class Extended : public Base
{
public:
    Extended(Base const& other, AxSymbolString name) requires std::derived_from<Base, AxZedObjectParameters>
        : Base(other, name, nullptr)
    {
    }
    Extended(Base const& other, AxSymbolString) requires std::derived_from<Base, AxComponentDescriptor>
        : Base(other, nullptr)
    {
    }

    AxRwReal endurance{"endurance", 3.0, this->registry()};
};

template <class Base>
class CopyConstructors : public testing::Test
{
};

using Classes =
    testing::Types<AxActuatorComponentDescriptor, AxIffControllerDescriptor, AxScriptEnableControllerDescriptor,
                   AxBombParameters, AxHumanParameters, AxMissileParameters>;
TYPED_TEST_SUITE(CopyConstructors, Classes);

} // namespace

TYPED_TEST(CopyConstructors, TakeValuesAndSpecifiedStateAlone)
{
    ReportedFindings const quiet; // not every class knows all of these keywords
    TypeParam source(AxSymbolString("source"), nullptr);
    readFrom(source, "(source (unheard-of 1 2) (min-tick-period 0.5) (mass 12.5) (max-range 700))");
    Extended<TypeParam> copy(source, "source");

    EXPECT_EQ(copy.writtenText(), source.writtenText());

    copy.endurance = 4.0;
    EXPECT_EQ(source.registry()->find("endurance"), nullptr);
    EXPECT_NE(copy.registry()->find("endurance"), nullptr);
}

namespace
{
template <class Record>
class NamedCopies : public testing::Test
{
};

using NamedClasses =
    testing::Types<AxAmmoSelectEntry, AxComponentSystemDefinition, AxComponentSystemDescriptor,
                   AxComponentSystemMetaData, AxDetectionPrbRangeCalcEntry, AxDetectionPrbRangeLookupEntry,
                   AxPrbCoefficientsRangeDeterminant, AxPrbProbabilityCoefficients, AxPrbRangeTableEntry,
                   AxPrbTableRangeDeterminant, AxRwDeadReckonThresholds, AxRwNavigationParameters, AxSimMunition,
                   AxSimSector, AxTargetAcquireCriteria, AxTargetPriorityEntry, AxTargetSelectionCriteria>;
TYPED_TEST_SUITE(NamedCopies, NamedClasses);
} // namespace

TYPED_TEST(NamedCopies, TakeValuesUnderTheirOwnNameIntoARegistry)
{
    ReportedFindings const quiet; // no class knows all of these keywords
    TypeParam source(AxSymbolString("source"), nullptr);
    if constexpr (std::is_same_v<TypeParam, AxPrbRangeTableEntry>)
    {
        readFrom(source, "(source 9.0 (hit 0.5))");
    }
    else if constexpr (std::is_same_v<TypeParam, AxPrbProbabilityCoefficients>)
    {
        readFrom(source, "(source -0.25 1.0)");
    }
    else
    {
        readFrom(
            source,
            "(source (translation 2.0) (clearance-radius 2.0) (warhead 7) (sector-size 2.0) (priority 7)"
            " (max-targets 7) (time-to-acquire 7.0) (system-name \"eye\") (is-enabled false)"
            " (range-list (range-entry 9.0 (hit 0.5))) (coefficients (hit 0.5))"
            " (entity-type 1 1 225 1 1 3 0) (target-type 1 1 225 1 1 3 0) (resources (real-resource (amount 9.0))))");
    }
    AxReaderWriter owner("owner", nullptr);

    TypeParam const copy("copy", source, owner.registry());

    EXPECT_EQ(copy.AxReaderWriter::name(), AxSymbolString("copy"));
    EXPECT_EQ(TypeParam("source", copy, nullptr), source);
    EXPECT_NE(source, TypeParam(AxSymbolString("source"), nullptr));
    EXPECT_EQ(owner.registry()->lookup(AxSymbolString("copy")), &copy);
}
