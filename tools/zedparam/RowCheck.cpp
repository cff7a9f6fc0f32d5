#include "RowCheck.h"

#include <utility>

#include "AxDiagnostic.h"
#include "AxNumberText.h"
#include "AxlObj.h"
#include "Findings.h"
#include "Source.h"

namespace
{
std::string shown(double value)
{
    std::string text;
    axAppendReal(text, value);
    return text;
}

class RowCheck
{
public:
    RowCheck(std::string file, Findings& findings) : myFile(std::move(file)), myFindings(findings) {}

    void run()
    {
        Source(myFile).forEachList(
            [this](AxlObj const& list)
            {
                if (list.car()->text() == "range-list")
                {
                    checkRanges(list);
                }
                else
                {
                    checkAngles(list);
                }
            });
    }

private:
    void checkRanges(AxlObj const& list)
    {
        AxlObj const* last = nullptr;
        for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
        {
            AxlObj const* const range = rest->car()->cdr()->car();
            if (!range->isNumber())
            {
                continue;
            }
            checkOutcomes(range->flonum(), rest->car()->cdr()->cdr());
            if (last != nullptr && range->flonum() < last->flonum())
            {
                add("out-of-order", *range,
                    "the row of range " + shown(range->flonum()) + " stands behind that of " + shown(last->flonum()));
            }
            last = range;
        }
    }

    void checkOutcomes(double range, AxlObj const* outcomes)
    {
        for (; outcomes->isPair(); outcomes = outcomes->cdr())
        {
            AxlObj const& outcome = *outcomes->car();
            AxlObj const& value = *outcome.cdr()->car();
            if (value.isNumber() && !(value.flonum() >= 0.0 && value.flonum() <= 1.0))
            {
                add("out-of-range", value,
                    "probability of \"" + std::string(outcome.car()->text()) + "\" at " + shown(range) + " m is " +
                        shown(value.flonum()) + ", expected 0 to 1");
            }
        }
    }

    void checkAngles(AxlObj const& list)
    {
        AxlObj const* largest = nullptr;
        for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
        {
            AxlObj const* const angle = angleOf(*rest->car());
            if (angle == nullptr)
            {
                continue;
            }
            if (largest != nullptr && angle->flonum() <= largest->flonum())
            {
                add("out-of-order", *angle,
                    "the angle " + shown(angle->flonum()) + " stands behind " + shown(largest->flonum()) +
                        " and is never reached");
                continue;
            }
            largest = angle;
        }
    }

    /// The number of an item `(angle-of-incidence (angle number) ...)`, null for any other item.
    static AxlObj const* angleOf(AxlObj const& item)
    {
        if (item.car()->text() == "angle-of-incidence")
        {
            for (AxlObj const* rest = item.cdr(); rest->isPair(); rest = rest->cdr())
            {
                AxlObj const& value = *rest->car()->cdr()->car();
                if (rest->car()->car()->text() == "angle" && value.isNumber())
                {
                    return &value;
                }
            }
        }
        return nullptr;
    }

    void add(char const* code, AxlObj const& place, std::string text)
    {
        AxDiagnostic finding;
        finding.severity = AxSeverity::Warning;
        finding.code = code;
        finding.file = myFile;
        finding.text = std::move(text);
        Source::setPlace(finding, &place);
        myFindings.add(std::move(finding));
    }

    std::string myFile;
    Findings& myFindings;
};
} // namespace

void checkRows(std::string const& file, Findings& findings)
{
    RowCheck(file, findings).run();
}
