#include "AxComponentSystemDefinition.h"
#include "RecordFixture.h"

#include <functional>

namespace
{
class RecordParts : public RecordFixture
{
protected:
    /// What the setter of one part takes from another object is what that holds, and nothing else.
    template <class Object>
    static void expectTaken(std::string const& text, std::unique_ptr<Object> source, std::unique_ptr<Object> target,
                            std::function<void(Object&, Object const&)> const& take)
    {
        std::string const fresh = target->writtenText();
        ASSERT_TRUE(readFrom(*source, "(" + target->AxReaderWriter::name().string().string() + "x " + text + ')'));
        take(*target, *source);
        source->setName(target->AxReaderWriter::name().string());
        EXPECT_EQ(target->writtenText(), source->writtenText()) << text;
        EXPECT_NE(target->writtenText(), fresh) << text;
    }
};

constexpr char const* theSensors =
    "(sensors (eyes (component-descriptor-type \"object-sensor-descriptor\") (detection-period 2.0)))";
constexpr char const* theControllers =
    "(controllers (cpu (component-descriptor-type \"event-trigger-controller-descriptor\") (is-enabled false)))";
constexpr char const* theActuators =
    "(actuators (legs (component-descriptor-type \"automotive-component-descriptor\") (min-tick-period 0.5)))";
constexpr char const* theSystems = "(systems (gun (is-enabled false)))";
constexpr char const* theConnections = "(connections (connection \"eyes:out\" \"cpu:in\"))";
constexpr char const* theResources = "(resources (real-resource (resource-name \"fuel\") (amount 5.0)))";
} // namespace

TEST_F(RecordParts, ARecordTakesTheListsOfAnother)
{
    struct Case
    {
        char const* text;
        std::function<void(AxZedObjectParameters&, AxZedObjectParameters const&)> take;
    };
    for (auto const& [text, take] :
         {
             Case{theSensors, [](auto&to, auto&from) { to.setSensorDescriptorList(from.sensorDescriptorList()); }},
             {theControllers,
              [](auto&to, auto&from) { to.setControllerDescriptorList(from.controllerDescriptorList()); }},
             {theActuators, [](auto&to, auto&from) { to.setActuatorDescriptorList(from.actuatorDescriptorList()); }},
             {theSystems, [](auto&to, auto&from) { to.setSystemDescriptorList(from.systemDescriptorList()); }},
             {theConnections,
              [](auto&to, auto&from) { to.setConnectionDescriptorList(from.connectionDescriptorList()); }},
             {theResources, [](auto&to, auto&from) { to.setResourceManager(from.resourceManager()); }},
             {"(subordinate-objects (x (count 2)))",
              [](auto&to, auto&from) { to.setSubordinateObjects(*from.subordinateObjects()); }},
             {"(attached-objects (x (count 2)))",
              [](auto&to, auto&from) { to.setAttachedObjects(*from.attachedObjects()); }},
             {"(initial-sector-of-responsibility (sector-center 1.0) (sector-size 2.0))",
              [](auto&to, auto&from) { to.setInitialSectorOfResponsibility(from.initialSectorOfResponsibility()); }},
             {"(bounding-geometry-type 1)",
              [](auto&to, auto&from) { to.setBoundingGeometryType(from.boundingGeometryType()); }},
         })
    {
        expectTaken<AxZedObjectParameters>(text, made("ground-vehicle-param"), made("ground-vehicle-param"), take);
    }
}

TEST_F(RecordParts, ADefinitionTakesTheListsOfAnother)
{
    using Definition = AxComponentSystemDefinition;
    struct Case
    {
        char const* text;
        std::function<void(Definition&, Definition const&)> take;
    };
    for (auto const& [text, take] :
         {
             Case{theSensors, [](auto&to, auto&from) { to.setSensorDescriptorList(from.sensorDescriptorList()); }},
             {theControllers,
              [](auto&to, auto&from) { to.setControllerDescriptorList(from.controllerDescriptorList()); }},
             {theActuators, [](auto&to, auto&from) { to.setActuatorDescriptorList(from.actuatorDescriptorList()); }},
             {theSystems, [](auto&to, auto&from) { to.setSystemDescriptorList(from.systemDescriptorList()); }},
             {theConnections,
              [](auto&to, auto&from) { to.setConnectionDescriptorList(from.connectionDescriptorList()); }},
             {theResources, [](auto&to, auto&from) { to.setResources(from.resources()); }},
         })
    {
        auto source = std::make_unique<Definition>("d", nullptr);
        auto target = std::make_unique<Definition>("d", nullptr);
        Definition other("d", nullptr);
        EXPECT_EQ(*target, other);
        ASSERT_TRUE(readFrom(other, std::string("(d ") + text + ')'));
        EXPECT_NE(*target, other) << text;
        expectTaken<Definition>(text, std::move(source), std::move(target), take);
    }
}
