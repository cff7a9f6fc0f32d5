#pragma once

#include <string>

#include "AxEnvironment.h"
#include "AxExport.h"
#include "AxFilename.h"

/// An environment tree as XML in UTF-8, with "\n" for line ends; read again, it gives an equal tree, if no two plain
/// values are neighbours. Text that is not UTF-8 is taken as windows-1252, with a warning. A text or name that XML
/// cannot hold makes the write fail, with a report that names the attribute or element.
class ZEDOBJPARAM_API AxEnvXMLWriter
{
public:
    /// Blanks for each level, 2 unless set.
    void setIndentation(unsigned blanks) { myIndentation = blanks; }
    unsigned indentation() const { return myIndentation; }

    /// Writes beside the file and renames, so that after a failure an old file is as it was.
    bool writeFile(AxEnvironmentPtr const& env, AxFilename const& file) const;
    /// Replaces `out`; empty on failure.
    bool writeText(AxEnvironmentPtr const& env, std::string& out) const;

private:
    unsigned myIndentation = 2;
};
