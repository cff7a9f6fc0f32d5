#include "AxActuatorComponentDescriptor.h"
#include "AxBombParameters.h"
#include "AxHumanParameters.h"
#include "AxIffControllerDescriptor.h"
#include "AxMissileParameters.h"
#include "AxScriptEnableControllerDescriptor.h"
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
