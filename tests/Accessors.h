#pragma once

#include "AxDetectionPrbRangeCalcEntry.h"
#include "AxDmgAngleOfIncidenceRangeCalcTable.h"
#include "AxEntityType.h"
#include "AxFilename.h"
#include "AxObjectType.h"
#include "AxRealResource.h"
#include "AxTaitBryan.h"
#include "AxVector64.h"
#include "AxZedObjectParameters.h"
#include "platform/zedutil/Reading.h"

#include <cctype>
#include <cstdint>
#include <map>
#include <memory>
#include <sstream>
#include <utility>

#include <boost/uuid/uuid.hpp>
#include <gtest/gtest.h>

/// What a value set by a host is held against: the getter of its name, the one keyword that is written, what a reader
/// makes of that, and what copies hold. The rows are made from the public headers by tests/accessors.
namespace accessors
{
/// Keywords that are not called like their accessors; "" for a value that stands in its record's text without one, "-"
/// for one that this setter does not make part of the text.
inline std::map<std::string, std::string> const theKeywords = {
    {"AxBallisticGunDescriptor::elevationRate", "max-elevation-rate"},
    {"AxBallisticGunDescriptor::velocityCheck", "velocity-affects-hit-chance"},
    {"AxBallisticGunDescriptor::hitProbabilityFilename", "hit-probability-file"},
    {"AxComponentDescriptor::componentType", "-"},
    {"AxComponentDescriptor::debugActive", "-"},
    {"AxComponentDescriptor::processStateRepositoryName", "-"},
    {"AxComponentDescriptor::processStateRepositoryType", "-"},
    {"AxConnectionDescriptor::destination", ""},
    {"AxConnectionDescriptor::source", ""},
    {"AxDmgAngleOfIncidenceTable::angleOfIncidence", "angle"},
    {"AxDmgMunitionEntry::directDamageFilename", "direct-damage-file"},
    {"AxDmgMunitionEntry::collateralDamageFilename", "collateral-damage-file"},
    {"AxFormation::formationType", "-"},
    {"AxModelSetEntry::platform", "-"},
    {"AxMovingObjectParameters::maxStoppingDeceleration", "max-deceleration"},
    {"AxMovingObjectParameters::maxDisaggregationDistance", "disaggregation-range"},
    {"AxPrbProbabilityCoefficients::numCoefficients", ""},
    {"AxPrbRangeTableEntry::range", ""},
    {"AxRwDeadReckonThresholds::rotationThreshold", "rotation"},
    {"AxRwDeadReckonThresholds::aggregateDimensionThreshold", "aggregate-dimension"},
    {"AxSxpParameterDbFileEntry::typeIsMatchType", "-"},
    {"AxTargetAcquireCriteria::checkAngleToTarget", "check-elevation-angle-to-acquire"},
    {"AxTargetAcquireCriteria::checkElevation", "check-elevation-to-acquire"},
    {"AxTargetAcquireCriteria::checkSpeed", "check-maximum-speed-to-acquire"},
    {"AxTargetAcquireCriteria::maxElevAngleToAcquire", "max-elevation-angle-to-acquire"},
    {"AxTargetAcquireCriteria::maxElevToAcquire", "max-elevation-to-acquire"},
    {"AxTargetAcquireCriteria::maxTargetSpeedToAcquire", "max-speed-of-target"},
    {"AxZedObjectParameters::appearance", "default-appearance"},
    {"AxZedObjectParameters::matchType", "-"},
    {"AxZedObjectParameters::objectType", "-"},
    {"AxZedObjectParameters::parameterType", "-"},
    {"AxZedObjectParameters::taskExecutionRulesFilename", "task-execution-rules"},
    {"AxZedObjectParameters::forceType", "force"},
    {"AxZedObjectParameters::organized", "is-organized"},
    {"AxZedObjectParameters::deadReckoningAlgorithm", "dr-algorithm"},
    {"AxZedObjectParameters::deadReckoningAllowGuiOverrides", "dr-allow-gui-overrides"},
    {"AxZedObjectParameters::stateRepositoryUserExtensionType", "state-repository-extension-type"},
    {"AxZedObjectSubComponentTypes::simStateRepositoryType", "state-repository"},
    {"AxZedObjectSubComponentTypes::stateRepMinTickPeriod", "state-repository-min-tick-period"},
    {"AxZedObjectSubComponentTypes::stateRepMinTickPeriodVariance", "state-repository-min-tick-period-variance"},
    {"AxZedObjectSubComponentTypes::networkInterfaceType", "net-interface"},
    {"AxZedObjectSubComponentTypes::netIfMinTickPeriod", "net-interface-min-tick-period"},
    {"AxZedObjectSubComponentTypes::netIfMinTickPeriodVariance", "net-interface-min-tick-period-variance"},
    {"AxZedObjectSubComponentTypes::taskManagerType", "task-manager"},
    {"AxZedObjectSubComponentTypes::componentManagerType", "component-manager"},
    {"AxZedObjectSubComponentTypes::planManagerType", "plan-manager"},
    {"AxZedObjectSubComponentTypes::navInterfaceType", "nav-interface"},
};

/// What stands for a class that cannot be made.
template <class Class>
struct Concrete
{
    using Type = Class;
};
template <>
struct Concrete<AxDmgAngleOfIncidenceTable>
{
    using Type = AxDmgAngleOfIncidenceRangeCalcTable;
};
template <>
struct Concrete<AxRangeProbEntry>
{
    using Type = AxDetectionPrbRangeCalcEntry;
};
template <>
struct Concrete<AxSimResource>
{
    using Type = AxRealResource;
};

template <class Class>
std::unique_ptr<Class> make()
{
    using Made = typename Concrete<Class>::Type;
    if constexpr (std::is_constructible_v<Made, AxSymbolString, AxReaderWriterRegistry*>)
    {
        return std::make_unique<Made>(AxSymbolString("x"), nullptr);
    }
    else
    {
        return std::make_unique<Made>();
    }
}

/// A value that differs, within what a fraction or a count may be.
template <class Value>
Value another(Value const& value)
{
    if constexpr (std::is_same_v<Value, bool>)
    {
        return !value;
    }
    else if constexpr (std::is_enum_v<Value>)
    {
        return static_cast<Value>(static_cast<int>(value) + 1);
    }
    else if constexpr (std::is_floating_point_v<Value>)
    {
        return value == 0 ? 1 : value / 2;
    }
    else if constexpr (std::is_integral_v<Value>)
    {
        return value + 1;
    }
    else if constexpr (std::is_same_v<Value, AxString> || std::is_same_v<Value, AxFilename>)
    {
        return Value("another");
    }
    else if constexpr (std::is_same_v<Value, AxObjectType>)
    {
        return Value(AxObjectType::Fields{1, 1, 1, 225, 1, 1, 3, 7});
    }
    else if constexpr (std::is_same_v<Value, AxEntityType>)
    {
        return Value(1, 1, 225, 1, 1, 3, 7);
    }
    else if constexpr (std::is_same_v<Value, AxVector64> || std::is_same_v<Value, AxTaitBryan>)
    {
        return Value(0.25, 0.5, 0.75);
    }
    else
    {
        static_assert(std::is_same_v<Value, boost::uuids::uuid>);
        return Value{{1, 2, 3}};
    }
}

/// "max-range" of "maxRange": the letters alone count, so that "mode4-damage" and "mode-4-damage" are one.
inline std::string lettersOf(std::string_view name)
{
    std::string letters;
    for (char const c : name)
    {
        if (c != '-')
        {
            letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return letters;
}

/// The keywords of the items that stand in the text of one record and not in that of another.
inline std::string addedKeywords(std::string const& before, std::string const& after)
{
    std::string added;
    std::istringstream lines(after);
    for (std::string line; std::getline(lines, line);)
    {
        if (line.starts_with("  (") && before.find(line.substr(0, line.find_last_not_of(')') + 1)) == std::string::npos)
        {
            added += (added.empty() ? "" : " ") + line.substr(3, line.find_first_of(" )", 3) - 3);
        }
    }
    return added;
}

/// A getter and what sets it.
struct Accessor
{
    char const* name;
    /// Sets a value other than that of a fresh object; answers whether the getter gives it.
    bool (*set)(AxReaderWriter& object, AxReaderWriter const& fresh, bool isSet);

    bool gives(AxReaderWriter const& object, AxReaderWriter const& fresh) const
    {
        return set(const_cast<AxReaderWriter&>(object), fresh, true);
    }
};

/// What can be made of an object of a class besides its text.
using Copies = std::vector<std::unique_ptr<AxReaderWriter>>;

template <class Class>
Copies copiesOf(AxReaderWriter const& object)
{
    Copies all;
    auto const& source = static_cast<Class const&>(object);
    if constexpr (std::is_copy_assignable_v<Class> && !std::is_abstract_v<Class>)
    {
        std::unique_ptr<Class> assigned = make<Class>();
        *assigned = source;
        auto const& same = *assigned;
        *assigned = same;
        all.push_back(std::move(assigned));
    }
    if constexpr (std::is_constructible_v<Class, Class const&, AxReaderWriterRegistry*>)
    {
        all.push_back(std::make_unique<Class>(source, nullptr));
    }
    if constexpr (requires { source.clone(nullptr); })
    {
        all.emplace_back(source.clone(nullptr));
    }
    return all;
}

inline void hold(std::string const& type, Accessor const& accessor, std::unique_ptr<AxReaderWriter> (*make)(),
                 Copies (*copies)(AxReaderWriter const&))
{
    SCOPED_TRACE(type + "::" + accessor.name);
    ReportedFindings const quiet;
    auto const fresh = make();
    auto const object = make();
    EXPECT_FALSE(accessor.gives(*object, *fresh));
    EXPECT_TRUE(accessor.set(*object, *fresh, false)) << "the getter answers";

    std::string const text = object->writtenText();
    auto const irregular = theKeywords.find(type + "::" + accessor.name);
    std::string const expected = irregular != theKeywords.end() ? irregular->second : accessor.name;
    EXPECT_EQ(lettersOf(addedKeywords(fresh->writtenText(), text)), lettersOf(expected)) << text;
    auto const again = make();
    readFrom(*again, text);
    EXPECT_EQ(accessor.gives(*again, *fresh), expected != "-") << "a reader finds it in " << text;
    for (auto const& copy : copies(*object))
    {
        EXPECT_TRUE(accessor.gives(*copy, *fresh)) << "copies have it";
    }
}

template <class Class>
void holdAll(char const* type, std::initializer_list<Accessor> accessors)
{
    if constexpr (!std::is_base_of_v<AxReaderWriter, Class> || std::is_abstract_v<typename Concrete<Class>::Type>)
    {
        EXPECT_EQ(accessors.size(), 0U) << type << " cannot be made";
    }
    else
    {
        auto const makeOne = []() -> std::unique_ptr<AxReaderWriter> { return make<Class>(); };
        auto const fresh = makeOne();
        auto const full = makeOne();
        for (Accessor const& accessor : accessors)
        {
            hold(type, accessor, makeOne, copiesOf<Class>);
            accessor.set(*full, *fresh, false);
        }
        for (auto const& copy : copiesOf<Class>(*full))
        {
            EXPECT_EQ(copy->writtenText(), full->writtenText()) << type;
            EXPECT_EQ(copy->readerWriterType(), std::string(full->readerWriterType()));
        }
    }
}
} // namespace accessors

#define ACCESSOR(Class, name, setName)                                                                                 \
    {                                                                                                                  \
#name, [](AxReaderWriter& object, AxReaderWriter const& fresh, bool isSet)                                     \
        {                                                                                                              \
            auto const value = accessors::another(static_cast<Class const&>(fresh).name());                            \
            if (!isSet)                                                                                                \
            {                                                                                                          \
                static_cast<Class&>(object).setName(value);                                                            \
            }                                                                                                          \
            return static_cast<Class const&>(object).name() == value;                                                  \
        }       \
    }

#define PART(Class, name)                                                                                              \
    {                                                                                                                  \
        auto const object = accessors::make<Class>();                                                                  \
        EXPECT_EQ(&object->name(), &std::as_const(*object).name()) << #Class "::" #name;                               \
    }
