#pragma once

#include <string>

#include "AxReaderWriter.h"
#include "AxRwVariableBindings.h"

class Database;

/// What a file may refer to: files beside it, and what its database binds. The database must outlive it.
struct ReadContext
{
    ReadContext(std::string const& file, Database const& database);
    ReadContext(ReadContext const&) = delete;
    ReadContext& operator=(ReadContext const&) = delete;

    AxFilenameList files{};
    AxRwVariableBindings ofDatabase{"opd-variables"};
    AxBindingsList bindings{};
};
