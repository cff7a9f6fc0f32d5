#pragma once

#include "DatabaseFixture.h"

/// The protected steps of a database, for calling them alone.
struct DatabaseSteps : AxSxpParameterDb
{
    using AxSxpParameterDb::addParameterDbEntry;
    using AxSxpParameterDb::copyDependentParameterDirectories;
    using AxSxpParameterDb::getParameters;
    using AxSxpParameterDb::getPath;
};

/// A database that a test writes and loads in one go.
class LoadedDatabase : public DatabaseFixture
{
protected:
    /// A database file with the entries; loads it.
    void load(std::string const& entries, std::string const& head = "(version 101)")
    {
        ASSERT_TRUE(db.load(put("force.opd", database(entries, head))));
    }
    void loadTank(std::string const& items = "(mass 2.0)")
    {
        put("m1.ope", record(items));
        load(entry(theTank, "m1.ope"));
    }
};
