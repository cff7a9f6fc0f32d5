#include "Fuzz.h"

#include "AxGroundVehicleParameters.h"

/// A record goes from text to XML and back with all that it held.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    AxGroundVehicleParameters record(AxSymbolString(), nullptr);
    if (!fuzz::read(record, fuzz::textOf(data, size)))
    {
        return 0;
    }
    AxString const xml = record.toXml();
    if (!xml.isNull() && !fuzz::wasReported("not-utf8"))
    {
        AxGroundVehicleParameters back(AxSymbolString(), nullptr);
        back.fromXml(xml);
        // A system with the name of a class has its attributes before what is kept.
        fuzz::expectEqual("XML holds what the text held", fuzz::sortedLines(record.writtenText()),
                          fuzz::sortedLines(back.writtenText()));
    }
    return 0;
}
