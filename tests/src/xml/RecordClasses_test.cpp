#include "AxAmmoSelectTable.h"
#include "AxComponentDescriptorFactoryEntry.h"
#include "AxComponentSystemDefinition.h"
#include "AxRangeProbabilityTable.h"
#include "src/objparams/RecordFixture.h"

#include <filesystem>
#include <fstream>

namespace
{
/// What every class that the factories make must bring through XML: all its values, a reference, an unknown item.
class RecordClassesInXml : public RecordFixture
{
protected:
    /// Every value given, the first number a reference, an item that no member takes.
    static std::string fullText(AxReaderWriter const& rw)
    {
        std::string text = rw.writtenText(true);
        std::size_t const number = text.find(".0)");
        if (number != std::string::npos)
        {
            std::size_t const start = text.find_last_of(" ", number) + 1;
            text.replace(start, number + 2 - start, "$value");
        }
        return text.insert(text.rfind(')'), "\n  (no-such-item (part 1) \"x y\")");
    }
    void expectSame(AxReaderWriter& back, AxReaderWriter const& rw, char const* what)
    {
        findings.clear();
        AxString const xml = rw.toXml();
        EXPECT_TRUE(back.fromXml(xml)) << what;
        EXPECT_EQ(back.writtenText(), rw.writtenText()) << what << '\n' << xml;
        EXPECT_TRUE(AxReaderWriter::factory()->compareReaderWriter(&back, &rw)) << what;
        EXPECT_EQ(back.toXml(), xml) << what;
    }
    template <class Content>
    void expectFileSame(char const* file)
    {
        std::ifstream in(ZEDOBJPARAM_SOURCE_DIR "/examples/force/" + std::string(file), std::ios::binary);
        std::string const text{std::istreambuf_iterator<char>(in), {}};
        Content content("content", nullptr);
        ASSERT_TRUE(readFrom(content, text)) << file;
        Content back("content", nullptr);
        expectSame(back, content, file);
        EXPECT_TRUE(findings.empty()) << file << ": " << findings[0].format();
    }
};

TEST_F(RecordClassesInXml, ObjectRecordsComeBackWithAllTheyHold)
{
    for (AxString const& type : factory.typeNames())
    {
        RecordPtr const empty = made(type.c_str());
        RecordPtr const record = made(type.c_str());
        empty->setName("one");
        readFrom(*record, fullText(*empty));
        RecordPtr const back = made(type.c_str());
        expectSame(*back, *record, type.c_str());
    }
}

TEST_F(RecordClassesInXml, ComponentDescriptorsComeBackWithAllTheyHold)
{
    for (AxListItem const* item = components.first(); item; item = item->next())
    {
        AxString const type = static_cast<AxComponentDescriptorFactoryEntry const*>(item->data())->typeToCreate();
        auto const create = [&type] {
            return std::unique_ptr<AxComponentDescriptor>(
                AxComponentDescriptor::createComponentDescriptor(type.c_str()));
        };
        std::unique_ptr<AxComponentDescriptor> const empty = create();
        std::unique_ptr<AxComponentDescriptor> const descriptor = create();
        empty->setName("one");
        readFrom(*descriptor, fullText(*empty));
        expectSame(*create(), *descriptor, type.c_str());
    }
}

TEST_F(RecordClassesInXml, DefinitionsAndTablesComeBackWithAllTheyHold)
{
    std::filesystem::path const before = std::filesystem::current_path();
    std::filesystem::current_path(ZEDOBJPARAM_SOURCE_DIR "/examples/force/systems"); // tables are named from there
    for (std::filesystem::directory_entry const& file : std::filesystem::directory_iterator("."))
    {
        expectFileSame<AxComponentSystemDefinition>(("systems" / file.path().filename()).string().c_str());
    }
    std::filesystem::current_path(before);
    expectFileSame<AxRangeProbabilityTable>("hit/gun-120mm.hit");
    expectFileSame<AxAmmoSelectTable>("ammoselect/gun-120mm.asl");
}
} // namespace
