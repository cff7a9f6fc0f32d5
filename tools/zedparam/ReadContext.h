#pragma once

#include <memory>
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

/// The named database; when none is named, one in the file's folder, or in the one above, that lists the file; else one
/// without entries. Null, after findings, when the named one cannot be opened.
std::unique_ptr<Database> databaseFor(std::string const& file, std::string const& named);
