#pragma once

#include "AxDiagnostic.h"
#include "AxReaderWriter.h"
#include "AxSinkScope.h"

#include <string>
#include <string_view>
#include <vector>

/// Collects what is reported while it lives, and keeps the warning stream quiet.
class ReportedFindings
{
public:
    ReportedFindings()
        : myPrevious(AxDiagnostics::setSink([this](AxDiagnostic const& found) { all.push_back(found); })),
          myWarnings(AxWarn)
    {
    }
    ~ReportedFindings() { AxDiagnostics::setSink(myPrevious); }

    /// "code@line:column", separated by blanks.
    std::string codes() const
    {
        std::string text;
        for (AxDiagnostic const& found : all)
        {
            text += (text.empty() ? "" : " ") + found.code + '@' + std::to_string(found.line) + ':' +
                    std::to_string(found.column);
        }
        return text;
    }
    std::string const& warnings() { return myWarnings.text(); }

    std::vector<AxDiagnostic> all;

private:
    AxDiagnostics::Sink myPrevious;
    AxSinkScope myWarnings;
};

inline bool readFrom(AxReaderWriter& rw, std::string_view text, AxBindingsList const& bindings = {},
                     AxFilenameList const& files = {})
{
    return rw.readText(text, AxFilename("test.ope"), files, bindings);
}
