#include "AxFilename.h"

#include <gtest/gtest.h>

TEST(AxFilename, TakesPathsApartAtBothSeparators)
{
    struct Case
    {
        char const* path;
        char const* name;
        char const* directory;
        char const* extension;
    };
    for (auto const& [path, name, directory, extension] : {
             Case{"", "", "", ""},
             Case{"tanks.opd", "tanks.opd", "", "opd"},
             Case{"data/tanks.opd", "tanks.opd", "data", "opd"},
             Case{".\\damage\\m1.dmg", "m1.dmg", ".\\damage", "dmg"},
             Case{"a\\b/c", "c", "a\\b", ""},
             Case{"a//b", "b", "a", ""},
             Case{"a/b/", "", "a/b", ""},
             Case{"/tanks.opd", "tanks.opd", "/", "opd"},
             Case{"//x", "x", "/", ""},
             Case{"C:\\x.tar.gz", "x.tar.gz", "C:\\", "gz"},
             Case{"a.b/c", "c", "a.b", ""},
             Case{"c.", "c.", "", ""},
         })
    {
        AxFilename const file(path);
        EXPECT_EQ(file.stripPath(), AxFilename(name)) << path;
        EXPECT_EQ(file.directory(), AxFilename(directory)) << path;
        EXPECT_EQ(file.extension(), extension) << path;
    }
}

TEST(AxFilename, CombinesWithTheSeparatorInUse)
{
    struct Case
    {
        char const* base;
        char const* name;
        char const* combined;
    };
    for (auto const& [base, name, combined] : {
             Case{"", "b", "b"},
             Case{"a", "b", "a/b"},
             Case{"a/", "b", "a/b"},
             Case{"a\\", "b", "a\\b"},
             Case{"a/b\\c", "d", "a/b\\c\\d"},
             Case{"a\\b/c", "d", "a\\b/c/d"},
             Case{"a", "/b", "/b"},
             Case{"a", "\\b", "\\b"},
             Case{"a", "C:/b", "C:/b"},
             Case{"a", "C:b", "a/C:b"},
             Case{"/", "b", "/b"},
             Case{"a", "", "a/"},
         })
    {
        EXPECT_EQ(AxFilename(base).combine(name), AxFilename(combined)) << base << " + " << name;
    }
}

TEST(AxFilename, OpensWithSlashesAndWithoutDots)
{
    struct Case
    {
        char const* path;
        char const* native;
    };
    for (auto const& [path, native] : {
             Case{"", ""},
             Case{".", "."},
             Case{".\\", "."},
             Case{".\\tanks\\m1.ope", "tanks/m1.ope"},
             Case{"/d/.\\tanks\\m1.ope", "/d/tanks/m1.ope"},
             Case{".//x", "x"},
             Case{"/./x", "/x"},
             Case{"a/../b", "a/../b"},
             Case{".hidden/..x", ".hidden/..x"},
             Case{"a/", "a/"},
             Case{"\\", "/"},
         })
    {
        EXPECT_EQ(AxFilename(path).native(), native) << path;
    }
}

TEST(AxFilename, ComparesTheTextAsItWasRead)
{
    EXPECT_NE(AxFilename("a/b"), AxFilename("a\\b"));
    EXPECT_EQ(AxFilename("a/b"), AxFilename(AxString("a/b")));
    EXPECT_TRUE(AxFilename::nullFilename().isNull());
}

TEST(AxFilename, ExistsOnlyWhenFound)
{
    EXPECT_TRUE(AxFilename(".").exists());
    EXPECT_FALSE(AxFilename("no/such\\file").exists());
    EXPECT_FALSE(AxFilename(std::string(5000, 'x')).exists());
}
