#pragma once

#include <string>
#include <vector>

class AxSxpParameterDbEntry;
class AxZedObjectParameters;
class Database;
class ReportFolder;

/// What a report tells of the values of a record and its systems, as HTML. `entry` is that of the record; `tables`
/// takes the files, as they are shown, of the tables that it uses.
std::string reportValues(AxZedObjectParameters& record, AxSxpParameterDbEntry const& entry, Database const& database,
                         ReportFolder const& folder, std::vector<std::string>& tables);
