#include "RecordCheck.h"

#include <set>
#include <utility>

#include "AxPrbRangeList.h"
#include "AxReaderWriterFile.h"
#include "AxZedObjectParameters.h"
#include "ElementSource.h"
#include "Findings.h"
#include "RangeText.h"
#include "RecordValue.h"
#include "RecordWalk.h"
#include "RowCheck.h"
#include "Source.h"

namespace
{
AxDiagnostic warning(char const* code, std::string file, std::string text)
{
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = code;
    finding.file = std::move(file);
    finding.text = std::move(text);
    return finding;
}

std::string placeOf(AxReaderWriter const& rw)
{
    std::string place = "\"" + rw.name().string().string() + "\"";
    AxReaderWriterRegistry const* registry = rw.parentRegistry();
    if (registry != nullptr && registry->owner() != nullptr && !registry->owner()->name().isNull())
    {
        place += " of \"" + registry->owner()->name().string().string() + "\"";
    }
    return place;
}

class RecordCheck
{
public:
    RecordCheck(std::string const& file, AxZedObjectParameters& record, Findings& findings)
        : myWalk(file, record), myElement(record.objectNode()), myFindings(findings)
    {
    }

    void run()
    {
        std::set<std::string> filesWithRows;
        myWalk.run(KeywordPath::everything(),
                   [&](RecordWalk const& at)
                   {
                       if (at.ownItem() == nullptr)
                       {
                           checkRange(at.rw());
                           noteRows(at.rw(), filesWithRows);
                       }
                   });
        for (std::string const& file : filesWithRows)
        {
            checkRows(file, myFindings);
        }
        for (auto const& [name, value] : myWalk.record().unboundVariables())
        {
            reportVariable(name.string());
        }
    }

private:
    void noteRows(AxReaderWriter const& rw, std::set<std::string>& files) const
    {
        auto const* file = dynamic_cast<AxReaderWriterFile const*>(&rw);
        AxReaderWriter const* const content = file != nullptr ? file->content() : &rw;
        if (content != nullptr && dynamic_cast<AxPrbRangeList const*>(content) != nullptr)
        {
            bool const isRead = file != nullptr && !file->foundFilename().isNull();
            files.insert(isRead ? file->foundFilename().native() : myWalk.file());
        }
    }

    void checkRange(AxReaderWriter const& rw)
    {
        if (std::string const fault = rw.valueSpecified() ? rangeFault(rw) : std::string(); !fault.empty())
        {
            AxDiagnostic finding = warning("out-of-range", myWalk.file(), placeOf(rw) + " is " + fault);
            if (myWalk.isInRecordsOwnFile() && myElement)
            {
                setPlace(finding, ElementSource(myElement).value(myWalk.stepsInFile()));
            }
            else
            {
                Source::setPlace(finding, Source(myWalk.file()).value(myWalk.stepsInFile()));
            }
            myFindings.add(std::move(finding));
        }
    }

    static void setPlace(AxDiagnostic& finding, AxEnvValue const* node)
    {
        if (node != nullptr)
        {
            finding.line = node->line();
            finding.column = node->column();
        }
    }

    void reportVariable(std::string const& name)
    {
        AxDiagnostic finding =
            warning("unbound-variable", myWalk.files().front(), "nothing binds the variable \"" + name + "\"");
        if (myElement)
        {
            setPlace(finding, ElementSource(myElement).reference(name));
        }
        for (std::string const& file : myWalk.files())
        {
            if (finding.line != 0)
            {
                break;
            }
            Source const source(file);
            if (AxlObj const* cell = source.reference(name))
            {
                finding.file = file;
                Source::setPlace(finding, cell);
                break;
            }
        }
        myFindings.add(std::move(finding));
    }

    RecordWalk myWalk;
    AxEnvValuePtr myElement; // of the record when it comes from an entity file
    Findings& myFindings;
};
} // namespace

void checkRecord(std::string const& file, AxZedObjectParameters& record, Findings& findings)
{
    RecordCheck(file, record, findings).run();
}
