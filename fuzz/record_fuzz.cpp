#include "Fuzz.h"

#include "AxDefaultParameterFactory.h"
#include "AxlFunctions.h"
#include "AxlInputStream.h"
#include "AxlSyntaxError.h"

#include <memory>

/// A record of any kind, by the first byte: what it reads it writes the same again, whether the text goes into it
/// directly or as cells, and a clone is equal.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    static AxDefaultParameterFactory factory;
    static std::list<AxString> const names = factory.typeNames();
    static std::vector<AxString> const kinds(names.begin(), names.end());
    if (size == 0)
    {
        return 0;
    }
    AxString const& kind = kinds[data[0] % kinds.size()];
    auto const make = [&kind]
    { return std::unique_ptr<AxZedObjectParameters>(factory.createParameters(kind, {}, nullptr)); };
    std::string_view const text = fuzz::textOf(data + 1, size - 1);
    auto const record = fuzz::readTwice(text, make);

    std::unique_ptr<AxZedObjectParameters> const clone(record->clone(record->AxReaderWriter::name(), nullptr));
    fuzz::expectEqual("a clone writes the same", record->writtenText(true), clone->writtenText(true));
    if (!record->equals(*clone))
    {
        fuzz::fail("a clone is equal", record->writtenText(true), clone->writtenText(true));
    }

    AxlInputStream stream((std::string(text)));
    auto const byCells = make();
    try
    {
        byCells->getSelf(AxcRead(stream), {}, {});
        fuzz::expectEqual("cells give what the text gives", record->writtenText(), byCells->writtenText());
    }
    catch (AxlSyntaxError const&)
    {
        // A text that breaks off has no cells.
    }
    return 0;
}
