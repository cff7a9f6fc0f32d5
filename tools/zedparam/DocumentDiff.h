#pragma once

#include <string>
#include <vector>

#include "DiffReport.h"
#include "Document.h"

struct DiffOptions
{
    double tolerance = 0.0;
    bool defaults = false; ///< what is not there has its default
};

/// Tells how two documents differ.
void compareDocuments(std::string const& subject, Document const& a, Document const& b, DiffOptions const& options,
                      DiffReport& report);

/// The same for all that is in two files, object by object; `database` as in readDocuments. False after reports when
/// one cannot be read.
bool compareFiles(std::string const& subject, std::string const& a, std::string const& b, std::string const& database,
                  DiffOptions const& options, DiffReport& report);
