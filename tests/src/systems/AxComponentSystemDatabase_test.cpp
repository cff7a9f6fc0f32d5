#include "AxComponentSystemDatabase.h"

#include "AxComponentSystemDefinition.h"
#include "AxRwVariableBindings.h"
#include "AxSinkScope.h"

#include <gtest/gtest.h>

#include <boost/filesystem.hpp>
#include <fstream>

namespace
{
namespace fs = boost::filesystem;

class AxComponentSystemDatabaseTest : public testing::Test
{
protected:
    AxComponentSystemDatabaseTest() { fs::create_directories(folder / "systems"); }
    ~AxComponentSystemDatabaseTest() override { fs::remove_all(folder); }

    AxFilename write(char const* name, std::string const& text) const
    {
        std::ofstream((folder / name).string()) << text;
        return AxFilename((folder / name).string());
    }
    AxFilename writeMeta(char const* name, std::string const& metaData) const
    {
        return write(name, "(system-definition (meta-data " + metaData + "))");
    }
    bool load(AxFilename const& file)
    {
        return database.loadSystemDefinition(file, AxReaderWriter::nullVariableReference());
    }

    fs::path folder = fs::temp_directory_path() / fs::unique_path();
    AxComponentSystemDatabase database;
};
} // namespace

TEST_F(AxComponentSystemDatabaseTest, MissingFileIsEnteredEmptyAndSilently)
{
    AxSinkScope warnings(AxWarn);
    EXPECT_TRUE(load("nowhere/radar.sys"));
    EXPECT_EQ(warnings.text(), "");
    AxComponentSystemDefinition const* const found = database.findSystemByFilename("nowhere/radar.sys");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->name(), AxString("system-definition"));
    EXPECT_TRUE(found->metaData().systemName().isNull());
}

TEST_F(AxComponentSystemDatabaseTest, FaultyFilesSayTheirStatedLine)
{
    AxSinkScope warnings(AxWarn);
    AxFilename const directory((folder / "systems").string());
    EXPECT_FALSE(load(directory));
    EXPECT_EQ(warnings.text(), "couldn't create sxp stream for " + directory.string().string() + "\n");
    EXPECT_EQ(database.findSystemByFilename(directory), nullptr);

    warnings.clear();
    AxFilename const cut = write("cut.sys", "(system-definition (meta-data (system-name \"cut\")");
    EXPECT_TRUE(load(cut));
    EXPECT_EQ(warnings.text(), "AxReaderWriterFile::getSelf failed while parsing " + cut.string().string() + "\n");
    EXPECT_EQ(database.findSystemByFilename(cut)->metaData().systemName(), "cut");

    warnings.clear();
    AxFilename const stray = write("stray.sys", ")");
    EXPECT_TRUE(load(stray));
    EXPECT_EQ(warnings.text(), "AxReaderWriterFile::getSelf failed while parsing " + stray.string().string() + "\n");

    warnings.clear();
    EXPECT_TRUE(load(write("empty.sys", " ; nothing\n")));
    EXPECT_EQ(warnings.text(), "");
    EXPECT_TRUE(load(write("twice.sys", "(system-definition) (system-definition)")));
    EXPECT_NE(warnings.text().find("twice.sys:1:21: warning: text after the end"), std::string::npos);
}

TEST_F(AxComponentSystemDatabaseTest, FindsByFileNameAndBaseName)
{
    AxFilename const radar = writeMeta("systems/radar.sys", "(system-name \"gun.sys\")");
    EXPECT_TRUE(load(radar));
    AxComponentSystemDefinition const* const found = database.findSystemByFilename(radar);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(database.findSystemBySystemName("other/dir/radar.sys"), found);
    EXPECT_EQ(database.findSystemBySystemName("gun.sys"), nullptr);
    EXPECT_EQ(database.findSystemByFilename("radar.sys"), nullptr);
}

TEST_F(AxComponentSystemDatabaseTest, FiltersByCategoryAndStateRepositoryType)
{
    load(writeMeta("any.sys", "(allowed-state-repository-types \"all\") (system-categories \"weapon\")"));
    load(writeMeta("tank.sys", "(allowed-state-repository-types \"tank\" \"apc\") (system-categories \"sensor\")"));
    load(writeMeta("none.sys", "(system-categories \"weapon\" \"all\")"));
    auto const names = [this](char const* category, char const* type)
    {
        std::string text;
        for (AxSystemDefinitionInfo const& info : database.findSystemsForCategoryAndSRType(category, type))
        {
            text += info.filename().stripPath().string().string() + ' ';
        }
        return text;
    };
    EXPECT_EQ(names("", ""), "any.sys tank.sys none.sys ");
    EXPECT_EQ(names("", "tank"), "any.sys tank.sys ");
    EXPECT_EQ(names("", "ship"), "any.sys ");
    EXPECT_EQ(names("weapon", ""), "any.sys none.sys ");
    EXPECT_EQ(names("sensor", "apc"), "tank.sys ");
    EXPECT_EQ(names("sens", ""), "");
}

TEST_F(AxComponentSystemDatabaseTest, FirstOfTwoLoadsAnswersAndReplacingMovesToTheEnd)
{
    AxFilename const gun = writeMeta("gun.sys", "(system-name \"old\")");
    load(gun);
    AxComponentSystemDefinition const* const first = database.findSystemByFilename(gun);
    writeMeta("gun.sys", "(system-name \"new\")");
    load(gun);
    EXPECT_EQ(database.findSystemByFilename(gun), first);
    EXPECT_TRUE(database.replaceSystem(gun, AxReaderWriter::nullVariableReference()));
    EXPECT_EQ(database.findSystemsForCategoryAndSRType("", "").size(), 2U);
    EXPECT_EQ(database.findSystemByFilename(gun)->metaData().systemName(), "new");

    EXPECT_TRUE(database.removeSystem(database.findSystemByFilename(gun)));
    EXPECT_TRUE(database.removeSystem(gun));
    EXPECT_FALSE(database.removeSystem(gun));
    EXPECT_FALSE(database.removeSystem(static_cast<AxComponentSystemDefinition const*>(nullptr)));
    EXPECT_TRUE(database.replaceSystem(gun, AxReaderWriter::nullVariableReference()));
    EXPECT_NE(database.findSystemByFilename(gun), nullptr);
}

TEST_F(AxComponentSystemDatabaseTest, NestedFilesAreSearchedBesideTheDefinitionWithTheBindings)
{
    write("systems/mount.sys", "(system-definition (meta-data (system-name $title)))");
    AxFilename const gun =
        write("systems/gun.sys", "(system-definition (systems (mount (system-definition \"mount.sys\"))))");
    AxRwVariableBindings bindings;
    bindings.setString("title", "big mount");
    EXPECT_TRUE(database.loadSystemDefinition(gun, {&bindings}));
    AxComponentSystemDescriptor const* const mount =
        database.findSystemByFilename(gun)->systemDescriptorList().lookupComponentSystemDescriptor("mount");
    ASSERT_NE(mount, nullptr);
    EXPECT_EQ(mount->systemDefinition()->metaData().systemName(), "big mount");
}
