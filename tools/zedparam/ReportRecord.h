#pragma once

#include <string>
#include <vector>

class AxZedObjectParameters;
class ReportFolder;

/// What a report tells of the values of a record and its systems, as HTML. `tables` takes the files of the tables that
/// it uses.
std::string reportValues(AxZedObjectParameters& record, std::string const& file, ReportFolder const& folder,
                         std::vector<std::string>& tables);
