#include "Fuzz.h"

#include "AxGroundVehicleParameters.h"

/// A record from XML: what it holds then survives both notations.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    AxGroundVehicleParameters record(AxSymbolString(), nullptr);
    record.fromXml(AxString(std::string(fuzz::textOf(data, size))));
    std::string const text = record.writtenText();

    AxGroundVehicleParameters fromText(AxSymbolString(), nullptr);
    fuzz::read(fromText, text);
    fuzz::expectEqual("a record from XML is written and read again", text, fromText.writtenText());

    AxString const xml = record.toXml();
    if (!xml.isNull())
    {
        AxGroundVehicleParameters fromXml(AxSymbolString(), nullptr);
        fromXml.fromXml(xml);
        // Attributes stand before elements there, so what is kept may come in another order.
        fuzz::expectEqual("XML holds what XML gave", fuzz::sortedLines(text), fuzz::sortedLines(fromXml.writtenText()));
    }
    return 0;
}
