#include "AxReaderWriterFactory.h"
#include "AxRwList.h"
#include "AxRwVariableBindings.h"
#include "Machine.h"
#include "platform/zedutil/Reading.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

using machine::Machine;
using machine::Part;

TEST(AxRwList, ElementsComeAndGoWhereTheHostSays)
{
    std::vector<std::unique_ptr<Part>> parts;
    for (char const* name : {"a", "b", "c", "d", "e", "f"})
    {
        parts.push_back(std::make_unique<Part>(AxSymbolString(name), nullptr));
    }
    AxRwList list("list", nullptr);
    std::vector<AxReaderWriter*> model;
    std::mt19937 engine(11);
    for (int round = 0; round < 2000; ++round)
    {
        Part* const part = parts[engine() % parts.size()].get();
        Part* const other = parts[engine() % parts.size()].get();
        auto const at = std::find(model.begin(), model.end(), part);
        list.setValueSpecified(false, true);
        if (at != model.end())
        {
            AxListItem* item = nullptr;
            for (item = list.first(); engine() % 2 != 0 && item != nullptr && AxRwList::element(item) != part;)
            {
                item = item->next();
            }
            list.remove(part, AxRwList::element(item) == part ? item : nullptr);
            model.erase(at);
        }
        else
        {
            auto const place = std::find(model.begin(), model.end(), other); // none: at the end
            bool const isBehind = place != model.end();
            switch (engine() % 9)
            {
            case 0:
                list.add(part);
                model.push_back(part);
                break;
            case 1:
                list.addToStart(part);
                model.insert(model.begin(), part);
                break;
            case 2:
                list.addWithAlternateName(part, part->AxReaderWriter::name());
                model.push_back(part);
                break;
            case 3:
                list.addBefore(part, other);
                model.insert(place, part);
                break;
            case 4:
                list.addBefore(part, other->AxReaderWriter::name());
                model.insert(place, part);
                break;
            case 5:
                list.addBefore(part, other->AxReaderWriter::name().string());
                model.insert(place, part);
                break;
            case 6:
                list.addAfter(part, other);
                model.insert(place + isBehind, part);
                break;
            case 7:
                list.addAfter(part, other->AxReaderWriter::name());
                model.insert(place + isBehind, part);
                break;
            default:
                list.addAfter(part, other->AxReaderWriter::name().string());
                model.insert(place + isBehind, part);
            }
        }
        EXPECT_TRUE(list.valueSpecified());
        std::vector<AxReaderWriter*> found;
        for (AxListItem const* item = list.first(); item != nullptr; item = item->next())
        {
            found.push_back(AxRwList::element(item));
        }
        ASSERT_EQ(found, model);
        ASSERT_EQ(list.hasChild(part), std::find(model.begin(), model.end(), part) != model.end());
    }
}

TEST(AxRwList, NothingIsAddedOrTakenOutForNull)
{
    Part part("a", nullptr);
    Part const stranger("b", nullptr);
    AxRwList list("list", nullptr);
    AxReaderWriter* const none = nullptr;
    list.add(none);
    list.addToStart(none);
    list.addWithAlternateName(none, "x");
    list.addBefore(none, &part);
    list.addAfter(none, &part);
    EXPECT_EQ(list.count(), 0);
    EXPECT_FALSE(list.valueSpecified());
    EXPECT_EQ(list.firstElement(), nullptr);
    list.addWithAlternateName(&part, "x");
    EXPECT_EQ(part.AxReaderWriter::name(), "x");
    EXPECT_TRUE(list.hasChild(&part));
    EXPECT_TRUE(list.hasChild(&part.place)) << "nor what is below an element";
    EXPECT_FALSE(list.hasChild(&stranger));
    list.remove(const_cast<Part*>(&stranger), nullptr);
    list.remove(none, nullptr);
    EXPECT_EQ(list.count(), 1);
    list.removeAll();
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(part.AxReaderWriter::name(), "x") << "it belongs to the host";
}

TEST(AxReaderWriterFactory, AnswersForTypesThatItDoesNotKnow)
{
    AxReaderWriterFactory& known = *AxReaderWriter::factory();
    AxReaderWriterFactory none(false);
    EXPECT_TRUE(none.typeNames().empty());
    EXPECT_TRUE(none.xmlTypes().empty());
    EXPECT_FALSE(none.knowsType("AxRwReal"));
    EXPECT_EQ(none.createItem("AxRwReal", "x", nullptr), nullptr);
    std::list<AxString> const tags = known.xmlTypes();
    EXPECT_NE(std::find(tags.begin(), tags.end(), "vector"), tags.end());
    for (AxString const& tag : tags)
    {
        EXPECT_EQ(known.mapRwToXmlType(known.mapXmlToRwType(tag)), tag);
    }

    AxRwReal const real("r", nullptr);
    AxRwReal other("s", nullptr);
    AxRwInt whole("i", nullptr);
    for (AxReaderWriterFactory const* factory : {&known, &none})
    {
        EXPECT_EQ(factory->cloneReaderWriter("no-such-type", &real, nullptr), nullptr);
        EXPECT_EQ(factory->cloneReaderWriter("AxRwReal", nullptr, nullptr), nullptr);
        EXPECT_FALSE(factory->copyReaderWriter(&real, nullptr));
        EXPECT_FALSE(factory->copyReaderWriter(nullptr, &other));
        EXPECT_FALSE(factory->copyReaderWriter(&real, &whole));
        EXPECT_TRUE(factory->copyReaderWriter(&real, const_cast<AxRwReal*>(&real)));
        EXPECT_TRUE(factory->compareReaderWriter(nullptr, nullptr));
        EXPECT_TRUE(factory->compareReaderWriter(&real, &real));
        EXPECT_TRUE(factory->compareReaderWriter(&real, &other));
        EXPECT_FALSE(factory->compareReaderWriter(&real, nullptr));
        EXPECT_FALSE(factory->compareReaderWriter(nullptr, &real));
        EXPECT_FALSE(factory->compareReaderWriter(&real, &whole));
    }
}

TEST(AxReaderWriterFactory, ComparesRecordsThatItDoesNotKnowByAllTheyHold)
{
    ReportedFindings const quiet;
    AxReaderWriterFactory const& factory = *AxReaderWriter::factory();
    Machine one(AxSymbolString("m"));
    Machine other(AxSymbolString("m"));
    Part const part("m", nullptr);
    readFrom(one, machine::theWholeText);
    EXPECT_FALSE(factory.compareReaderWriter(&one, &part));
    EXPECT_FALSE(factory.compareReaderWriter(&one, &other));
    readFrom(other, machine::theWholeText);
    EXPECT_TRUE(factory.compareReaderWriter(&one, &other));
    other.itsType = "another";
    EXPECT_FALSE(factory.compareReaderWriter(&one, &other)) << "what its text has besides members";

    std::vector<char> bytes(static_cast<std::size_t>(factory.getSize(&one)));
    EXPECT_EQ(factory.encode(&one, bytes.data()), bytes.data() + bytes.size());
    Machine decoded;
    EXPECT_EQ(AxReaderWriter::factory()->decode(&decoded, bytes.data()), bytes.data() + bytes.size());
    EXPECT_EQ(decoded.writtenText(), one.writtenText());
    EXPECT_EQ(factory.getSize(nullptr), 0);
    EXPECT_EQ(factory.encode(&one, nullptr), nullptr);
    EXPECT_EQ(factory.encode(nullptr, bytes.data()), bytes.data());
    EXPECT_EQ(AxReaderWriter::factory()->decode(nullptr, bytes.data()), bytes.data());
    EXPECT_EQ(AxReaderWriter::factory()->decode(&decoded, nullptr), nullptr);
}

TEST(AxReaderWriter, TheHostMakesAndTakesReferences)
{
    ReportedFindings const quiet;
    Machine machine(AxSymbolString("m"));
    machine.mass.setVariableName("heavy");
    EXPECT_FALSE(machine.mass.isVariableReference());
    machine.mass.setIsVariableReference(true);
    machine.mass.setValueSpecified(true, true);
    EXPECT_EQ(machine.writtenText(), "(m\n  (mass $heavy))\n");
    machine.mass.setVariableName("light");
    EXPECT_EQ(machine.writtenText(), "(m\n  (mass $light))\n");

    struct Bindable : AxRwReal
    {
        using AxReaderWriter::bindToRwAsVariable;
        using AxRwReal::AxRwReal;
    };
    AxRwReal source("r", nullptr);
    source = 7.0;
    Bindable bindable("k", nullptr);
    EXPECT_FALSE(bindable.bindToRwAsVariable(&source)) << "which is no reference";
    readFrom(bindable, "(k $light)");
    EXPECT_FALSE(bindable.bindToRwAsVariable(nullptr));
    EXPECT_TRUE(bindable.bindToRwAsVariable(&source));
    EXPECT_EQ(bindable.value(), 7.0);
    EXPECT_TRUE(bindable.variableIsBound());
    EXPECT_EQ(bindable.writtenText(), "(k $light)\n") << "it stays a reference";

    readFrom(machine,
             "(m (mass $a) (engine (power $b)) (spares (x (power $c))) (properties (p AxRwReal $d)) (file $e))");
    EXPECT_TRUE(machine.hasVariableReference());
    machine.clearAllVariableReferenceFlags();
    EXPECT_FALSE(machine.hasVariableReference()) << machine.writtenText();
    machine.mass.setVariableName("heavy");
    machine.mass.setIsVariableReference(true);
    machine.mass.setIsVariableReference(false);
    EXPECT_FALSE(machine.hasVariableReference());
}
