#include "PathSteps.h"

#include "AxReadWholeFile.h"
#include "Collection.h"
#include "Findings.h"
#include "OpenEditor.h"
#include "RecordValue.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
std::string const theExampleFolder = ZEDOBJPARAM_SOURCE_DIR "/examples/force/";

/// Every path that the editor offers to a user who takes one step after the other.
std::vector<std::string> offered(FileEditor& editor, bool onlyThere, std::string const& begin = {})
{
    std::vector<std::string> paths;
    for (std::string step : editor.stepsBehind(begin, onlyThere))
    {
        bool const leadsOn = step.ends_with('/');
        step.resize(step.size() - (leadsOn ? 1 : 0));
        std::string const path = begin.empty() ? step : begin + "/" + step;
        std::vector<std::string> const behind = leadsOn ? offered(editor, onlyThere, path) : std::vector{path};
        paths.insert(paths.end(), behind.begin(), behind.end());
    }
    return paths;
}

/// What one of the walks through a record found of a path, as text; a value that suits most members where it is none.
struct Found
{
    bool isThere = false;
    std::vector<std::string> values{"1",
                                    "0.5",
                                    "true",
                                    "1 2 3",
                                    "1:1:1:1:1:1:1",
                                    "sight:detected-objects main-gun:target-list",
                                    "AxRwInt 1",
                                    "x",
                                    "../rules/ground-tasks.rules"};
};

Found find(RecordWalk& walk, std::string const& path)
{
    Found found;
    KeywordPath keywords;
    std::string fault;
    EXPECT_TRUE(KeywordPath::parse(path, keywords, fault)) << fault;
    walk.run(keywords,
             [&found](RecordWalk const& at)
             {
                 found.isThere = true;
                 found.values.insert(found.values.begin(), valueText(at));
             });
    return found;
}

/// Neither the record's nor any other's.
bool isOfFile(std::string const& path)
{
    return path.starts_with("variable-bindings/") || path == "objectType" || path == "matchType";
}
} // namespace

TEST(PathSteps, WhatIsOfferedIsTaken)
{
    struct
    {
        char const* database;
        char const* file;
    } const cases[] = {{"force.opd", "force/m1a2.ope"},
                       {"force.opd", "force/howitzer_battery.ope"},
                       {"entities.opd", "entities/m1a2.entity"},
                       {"entities.opd", "entities/howitzer_battery.entity"}};
    Findings const silence(Findings::Print::Never);
    for (auto const& [database, file] : cases)
    {
        std::string text;
        int error = 0;
        ASSERT_TRUE(axReadWholeFile(AxFilename(theExampleFolder + file), text, error)) << file;
        std::unique_ptr<Database> const opened = Database::open(theExampleFolder + database);
        AxSxpParameterDbEntry* const entry = opened->entriesOf(theExampleFolder + file).front();
        RecordWalk walk(theExampleFolder + file, *opened->getParameters(entry));

        OpenEditor const toSet(theExampleFolder + file, text, {}, {}, false);
        std::vector<std::string> const toBeSet = offered(*toSet.editor(), false);
        EXPECT_GT(toBeSet.size(), 100U) << file;
        for (std::string const& path : toBeSet)
        {
            std::vector<std::string> const values = find(walk, path).values;
            EXPECT_TRUE(
                std::ranges::any_of(values, [&](std::string const& value) { return toSet.editor()->set(path, value); }))
                << file << " " << path << ": " << toSet.editor()->fault().text;
        }

        OpenEditor const toUnset(theExampleFolder + file, text, {}, {}, false);
        std::vector<std::string> const toBeUnset = offered(*toUnset.editor(), true);
        EXPECT_GT(toBeUnset.size(), 20U) << file;
        for (auto path = toBeUnset.rbegin(); path != toBeUnset.rend(); ++path)
        {
            EXPECT_TRUE(isOfFile(*path) || find(walk, *path).isThere) << file << " " << *path;
            EXPECT_TRUE(toUnset.editor()->unset(*path))
                << file << " " << *path << ": " << toUnset.editor()->fault().text;
        }
    }
}
