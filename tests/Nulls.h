#pragma once

#include "Accessors.h"
#include "AxEnvironment.h"
#include "AxPrbTableRangeDeterminant.h"
#include "AxRwInt.h"
#include "AxStringHashKey.h"
#include "src/objparams/RecordFixture.h"

#include <cstdio>
#include <functional>
#include <list>
#include <map>
#include <set>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include <boost/make_shared.hpp>

/// What the library answers to a null, or to a number that is none of an enumeration's: nothing (null, false, 0, an
/// empty text), with the object as it was. The calls are made from the public headers by tests/nulls.
namespace nulls
{
/// What else comes of calls with nulls that have a meaning.
inline std::map<std::string, std::string> const theAnswers = {
    // It takes all that a file holds.
    {"AxDummyParameterDb::unrecognizedItem(null, null, AxFilenameList const&, AxBindingsList const&)", "true"},
    {"AxDummyParameterDb::unrecognizedItem(null, AxEnvValuePtr const&, AxFilenameList const&, AxBindingsList const&)",
     "true"},
    {"AxDummyParameterDb::unrecognizedItem(AxEnvironmentPtr const&, null, AxFilenameList const&, AxBindingsList "
     "const&)",
     "true"},
    // An entry whose record is still to be loaded.
    {"AxSxpParameterDb::add(AxObjectType const&, AxFilename const&, bool, null)", "an object"},
    {"AxSxpParameterDbFileData::addEntry(AxObjectType const&, AxFilename const&, bool, null)", "an object, changed"},
    {"AxTargetPriorityList::priority(AxEntityType const&, null)", "-1"}, // unknown, as ever in an empty list
    // A record without a name; one that does not come from a tree.
    {"AxZedObjectParameters::clone(null, AxReaderWriterRegistry*)", "an object"},
    {"AxZedObjectParameters::creator(null, null)", "an object"},
    {"AxZedObjectParameters::creator(null, AxEnvValuePtr*)", "an object"},
    {"AxZedObjectParameters::creator(AxEnvironmentPtr, null)", "an object"},
    // At the root, or at the end.
    {"AxZedXmlUtils::addObject(AxEnvironmentPtr const&, null, AxZedObjectParameters const&)", "an object"},
    {"AxEnvironment::addObject(AxString const&, AxString const&, null)", "an object"},
    {"AxEnvironment::addUnnamedObject(AxString const&, null)", "an object"},
    {"AxRwList::addBefore(AxReaderWriter*, null)", "changed"},
    {"AxRwList::addAfter(AxReaderWriter*, null)", "changed"},
    // A null is data like all other.
    {"AxHashlist::add(AxBaseHashKey const&, null, null)", "an object"},
    {"AxHashlist::add(AxBaseHashKey const&, null, void**)", "an object"},
    {"AxHashlist::add(AxBaseHashKey const&, void*, null)", "an object"},
    {"AxList::add(null)", "an object"},
    {"AxList::addToStart(null)", "an object"},
    {"AxList::insertBefore(null, null)", "an object"},
    {"AxList::insertBefore(null, void*)", "an object"},
    {"AxList::insertBefore(AxListItem*, null)", "an object"},
    {"AxList::insertAfter(null, null)", "an object"},
    {"AxList::insertAfter(null, void*)", "an object"},
    {"AxList::insertAfter(AxListItem*, null)", "an object"},
    // Nothing equals nothing, and takes no bytes.
    {"equalTrees(null, null)", "true"},
    {"AxReaderWriterFactory::compareReaderWriter(null, null)", "true"},
    {"AxReaderWriterFactory::encode(null, char*)", "an object"},
    {"AxReaderWriterFactory::decode(null, char const*)", "an object"},
    // All that the text itself says.
    {"AxRwVariableBindings::expand(std::string_view, AxBindingsList const&, null, null)", "a value"},
    {"AxRwVariableBindings::expand(std::string_view, AxBindingsList const&, null, AxSymbolString*)", "a value"},
    {"AxRwVariableBindings::expand(std::string_view, AxBindingsList const&, bool*, null)", "a value"},
};

/// Which of those were given.
inline std::set<std::string> theAsked;

/// What stands for a class that cannot be made.
template <class Class>
struct Concrete : accessors::Concrete<Class>
{
};
template <>
struct Concrete<AxReaderWriter>
{
    using Type = AxRwInt;
};

template <>
struct Concrete<AxPrbRangeDeterminant>
{
    using Type = AxPrbTableRangeDeterminant;
};
template <>
struct Concrete<AxBaseHashKey>
{
    using Type = AxStringHashKey;
};

template <class Class>
Class* made()
{
    using Made = typename Concrete<std::remove_const_t<Class>>::Type;
    if constexpr (requires { typename Made::element_type; })
    {
        return new Made();
    }
    else if constexpr (std::is_constructible_v<Made, AxSymbolString, AxReaderWriterRegistry*>)
    {
        return new Made(AxSymbolString("given"), nullptr);
    }
    else if constexpr (std::is_constructible_v<Made, char const*, AxReaderWriterRegistry*>)
    {
        return new Made("given", nullptr);
    }
    else if constexpr (std::is_constructible_v<Made, char const*> && std::is_class_v<Made> &&
                       !std::is_polymorphic_v<Made>)
    {
        return new Made("given");
    }
    else if constexpr (std::is_default_constructible_v<Made>)
    {
        return new Made();
    }
    else if constexpr (std::is_constructible_v<Made, char const*>)
    {
        return new Made("given");
    }
    else
    {
        return new Made(nullptr);
    }
}

/// Whatever is done with it, it lives, or was taken over, to the end of the process.
template <class Class>
Class* kept()
{
    static auto& all = *new std::vector<void const*>;
    Class* const object = made<Class>();
    all.push_back(object);
    return object;
}

template <class Type>
Type null()
{
    if constexpr (std::is_reference_v<Type>)
    {
        static std::remove_cvref_t<Type> value;
        return value = {};
    }
    else
    {
        return Type();
    }
}

/// A function of that kind.
template <class Answer, class... Arguments>
auto nothingOf(Answer (*)(Arguments...))
{
    return +[](Arguments...) { return Answer(); };
}

/// An argument that is in order.
template <class Type>
Type given()
{
    using Value = std::remove_cvref_t<Type>;
    if constexpr (std::is_pointer_v<Value>)
    {
        using Pointed = std::remove_const_t<std::remove_pointer_t<Value>>;
        if constexpr (std::is_function_v<Pointed>)
        {
            return nothingOf(Type());
        }
        else if constexpr (std::is_same_v<Pointed, std::FILE>)
        {
            static std::FILE* const file = std::fopen("/dev/null", "r");
            return file;
        }
        else if constexpr (std::is_same_v<Pointed, char>)
        {
            static char text[1024] = "given";
            return text;
        }
        else if constexpr (std::is_same_v<Pointed, AxReaderWriterRegistry>)
        {
            return nullptr;
        }
        else if constexpr (std::is_void_v<Pointed>)
        {
            return kept<int>();
        }
        else
        {
            return kept<std::remove_pointer_t<Value>>();
        }
    }
    else if constexpr (std::is_arithmetic_v<Value>)
    {
        static Value one;
        return one = 1;
    }
    else if constexpr (std::is_same_v<Value, std::type_info>)
    {
        return typeid(int);
    }
    else if constexpr (std::is_same_v<Value, AxFilename>)
    {
        static AxFilename const nowhere("/dev/null/nowhere");
        return nowhere;
    }
    else if constexpr (std::is_same_v<Value, AxEnvironmentPtr>)
    {
        static Value tree;
        tree = boost::make_shared<AxEnvironment>();
        tree->setRoot(boost::make_shared<AxEnvObject>(AxString("root")));
        return tree;
    }
    else if constexpr (std::is_same_v<Value, AxEnvValuePtr> || std::is_same_v<Value, AxEnvObjectPtr>)
    {
        static Value node;
        return node = boost::make_shared<AxEnvObject>(AxString("given"));
    }
    else if constexpr (std::is_reference_v<Type>)
    {
        return *kept<std::remove_reference_t<Type>>();
    }
    else
    {
        return *std::unique_ptr<Value>(made<Value>());
    }
}

template <class Enum>
Enum number(int value)
{
    return static_cast<Enum>(value);
}

template <class Answer>
std::string shown(Answer const& answer)
{
    if constexpr (std::is_pointer_v<Answer> || std::is_same_v<Answer, AxEnvironmentPtr> ||
                  std::is_same_v<Answer, AxEnvValuePtr> || std::is_same_v<Answer, AxEnvObjectPtr>)
    {
        return answer ? "an object" : "";
    }
    else if constexpr (std::is_same_v<Answer, AxlObjPtr>)
    {
        return answer->nil() ? "" : "cells";
    }
    else if constexpr (std::is_same_v<Answer, bool>)
    {
        return answer ? "true" : "";
    }
    else if constexpr (std::is_arithmetic_v<Answer>)
    {
        return answer == 0 ? "" : std::to_string(answer);
    }
    else if constexpr (std::is_same_v<Answer, AxObjectType> || std::is_same_v<Answer, AxString>)
    {
        return answer.isNull() ? "" : "a value";
    }
    else if constexpr (requires { answer.empty(); })
    {
        return answer.empty() ? "" : "a value";
    }
    else
    {
        return "";
    }
}

/// Whether the function of the call makes the caller an object of its own.
inline bool isMaker(std::string_view call)
{
    std::string_view const function = call.substr(0, call.find('('));
    std::string_view const own = function.substr(function.rfind(':') + 1);
    return own == "clone" || own == "cloneReaderWriter" || own == "creator" || own.starts_with("create");
}

/// Calls with a number tell by coming back; those with a null have an answer.
inline void judge(std::string const& name, std::string const& answer)
{
    auto const other = theAnswers.find(name);
    if (other != theAnswers.end())
    {
        theAsked.insert(name);
    }
    if (name.find("null") != std::string::npos)
    {
        EXPECT_EQ(answer, other != theAnswers.end() ? other->second : "") << name;
    }
}

/// What comes of a call; `isChanged` asks the object.
template <class Call, class IsChanged>
void hold(char const* name, Call const& call, IsChanged const& isChanged)
{
    try
    {
        std::string answer;
        if constexpr (std::is_void_v<decltype(call())>)
        {
            call();
        }
        else
        {
            decltype(auto) result = call();
            answer = shown<std::remove_cvref_t<decltype(result)>>(result);
            if constexpr (std::is_convertible_v<decltype(result), AxReaderWriter const*>)
            {
                // What such a function makes is the caller's.
                delete (isMaker(name) ? result : nullptr);
            }
        }
        if (isChanged())
        {
            answer += answer.empty() ? "changed" : ", changed";
        }
        judge(name, answer);
    }
    catch (...)
    {
        ADD_FAILURE() << name << " throws";
    }
}

inline bool never()
{
    return false;
}

template <class Class, class Call>
void holdMember(char const* name, Call const& call)
{
    constexpr bool isDeleted = !std::is_polymorphic_v<Class> || std::has_virtual_destructor_v<Class>;
    Class* const object = isDeleted ? made<Class>() : kept<Class>();
    auto const run = [&]() -> decltype(auto) { return call(*object); };
    if constexpr (std::is_base_of_v<AxReaderWriter, Class>)
    {
        std::string const before = object->writtenText(true);
        hold(name, run, [&] { return object->writtenText(true) != before; });
    }
    else
    {
        hold(name, run, never);
    }
    if constexpr (isDeleted)
    {
        delete object;
    }
}

template <class Class, class... Arguments>
void holdMade(char const* name, Arguments&&... arguments)
{
    if constexpr (!std::is_abstract_v<Class>)
    {
        auto const run = [&] { std::make_unique<Class>(std::forward<Arguments>(arguments)...); };
        hold(name, run, never);
    }
}

class Nulls : public RecordFixture
{
protected:
    ~Nulls() override
    {
        AxReaderWriter::setPrePutSelfCallback(nullptr, nullptr);
        AxReaderWriter::setFactory(nullptr);
    }

    static void TearDownTestSuite()
    {
        testing::TestSuite const& suite = *testing::UnitTest::GetInstance()->current_test_suite();
        for (auto const& [name, answer] : theAnswers)
        {
            EXPECT_TRUE(theAsked.contains(name) || suite.test_to_run_count() < suite.total_test_count()) << name;
        }
    }
};
} // namespace nulls

using namespace nulls;

#define NULLS_CALL(Class, function, name, ...)                                                                         \
    holdMember<Class>(name, [](Class& object) -> decltype(auto) { return object.function(__VA_ARGS__); })
#define NULLS_STATIC(Class, function, name, ...)                                                                       \
    hold(                                                                                                              \
        name, []() -> decltype(auto) { return Class::function(__VA_ARGS__); }, never)
#define NULLS_FREE(function, name, ...)                                                                                \
    hold(                                                                                                              \
        name, []() -> decltype(auto) { return function(__VA_ARGS__); }, never)
#define NULLS_MAKE(Class, name, ...) holdMade<Class>(name, __VA_ARGS__)
