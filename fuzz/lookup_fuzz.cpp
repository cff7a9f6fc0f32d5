#include "Fuzz.h"

#include "src/paramdb/DatabaseWalk.h"

/// Entries come, go and are asked for as the bytes say, a hundred times; the index answers what the walk answers.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    WalkedDatabase database;
    Walk walk;
    for (int step = 0; step < 100 && size >= 3; ++step, data += 3, size -= 3)
    {
        AxObjectType::Fields fields{};
        unsigned bits = data[1] | unsigned(data[2]) << 8U;
        for (std::size_t i = 0; i < fields.size(); ++i, bits >>= 2U)
        {
            fields[i] = static_cast<int>(bits & 3U) - 1;
        }
        if (data[0] & 16U)
        {
            fields[data[0] % fields.size()] = -2;
        }
        AxObjectType const type(fields);
        if (data[0] < 96)
        {
            AxZedParameterDbEntry* const entry = newEntry(type, (data[0] & 1U) != 0);
            walk.insert(entry);
            database.addParameterDbEntry(entry);
        }
        else if (data[0] < 128)
        {
            walk.remove(type);
            database.remove(type);
        }
        if (database.found(type) != walk.found(type) || database.entries() != walk.entries)
        {
            fuzz::fail("the index answers as the walk does", type.string().string(), "");
        }
    }
    return 0;
}
