#pragma once

#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"
#include "AxSxpParameterDbReader.h"
#include "AxSxpParameterDbWriter.h"
#include "src/objparams/RecordFixture.h"

#include <boost/filesystem/operations.hpp>
#include <fstream>

/// A database on disk in a directory of its own.
class DatabaseFixture : public RecordFixture
{
protected:
    DatabaseFixture()
        : myDirectory(boost::filesystem::temp_directory_path() / boost::filesystem::unique_path("paramdb-%%%%%%%%"))
    {
        boost::filesystem::create_directories(myDirectory);
        db.init();
    }
    ~DatabaseFixture() override
    {
        boost::system::error_code ignored;
        boost::filesystem::remove_all(myDirectory, ignored);
    }

    std::string path(std::string const& name) const { return (myDirectory / name).string(); }
    std::string directory() const { return myDirectory.string(); }
    AxFilename put(std::string const& name, std::string const& text) const
    {
        boost::filesystem::create_directories((myDirectory / name).parent_path());
        std::ofstream(path(name), std::ios::binary) << text;
        return AxFilename(path(name));
    }
    std::string get(std::string const& name) const
    {
        std::ifstream in(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    /// Names of all files below a directory, sorted and separated by blanks.
    std::string files(std::string const& below = "") const
    {
        std::vector<std::string> names;
        boost::filesystem::path const root = myDirectory / below;
        for (auto const& found : boost::filesystem::recursive_directory_iterator(root))
        {
            if (boost::filesystem::is_regular_file(found.path()))
            {
                names.push_back(boost::filesystem::relative(found.path(), root).string());
            }
        }
        std::sort(names.begin(), names.end());
        std::string text;
        for (std::string const& name : names)
        {
            text += (text.empty() ? "" : " ") + name;
        }
        return text;
    }

    static std::string record(std::string const& items, std::string const& type = "zed-object-param")
    {
        return "(m1 (parameter-type \"" + type + "\") " + items + ")\n";
    }
    static std::string entry(std::string const& type, std::string const& file)
    {
        return "(parameter-entry (object-type " + type + ") (filename \"" + file + "\"))\n";
    }
    static std::string database(std::string const& entries, std::string const& head = "(version 101)")
    {
        return "(parameter-database " + head + "\n(parameter-files\n" + entries + "))\n";
    }
    static AxObjectType typeOf(char const* text)
    {
        AxObjectType type;
        EXPECT_TRUE(AxObjectType::fromString(text, type)) << text;
        return type;
    }
    AxSxpParameterDbEntry* entryOf(AxSxpParameterDb const& owner, AxObjectType const& type) const
    {
        return dynamic_cast<AxSxpParameterDbEntry*>(owner.lookupParameterDbEntry(type, nullptr));
    }
    /// The warnings since the last call.
    std::string warned()
    {
        std::string text = warnings.text();
        warnings.clear();
        return text;
    }

    AxSinkScope news{AxInfo};
    AxSxpParameterDb db;
    AxObjectType const tank = typeOf("1:1:1:225:1:1:3:0");
    AxObjectType const tanks = typeOf("1:1:1:225:1:1:-1:-1");
    static constexpr char const* theTank = "1 1 1 225 1 1 3 0";
    static constexpr char const* theTanks = "1 1 1 225 1 1 -1 -1";

private:
    boost::filesystem::path myDirectory;
};
