#pragma once

#include "AxSxpParameterDbEntry.h"

#include <boost/smart_ptr/intrusive_ref_counter.hpp>

/// What the entries of one database file have in common.
struct AxSxpParameterDbEntry::Origin : boost::intrusive_ref_counter<Origin, boost::thread_unsafe_counter>
{
    static constexpr int theCurrentVersion = 101;

    AxFilename path{};
    int version = theCurrentVersion;
    boost::shared_ptr<AxRwVariableBindings> variableBindings{};
    std::vector<AxFilename> searchPaths{};
    AxFilename databaseDirectory{};
    boost::shared_ptr<AxFilename const> databaseFile{};
    std::shared_ptr<std::string const> names{}; // of the files of its entries, one behind the other
};
