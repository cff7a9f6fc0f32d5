#include "Types.h"

#include <fstream>
#include <random>
#include <stdexcept>
#include <unordered_set>

namespace
{
bool isPattern(AxObjectType const& type)
{
    for (auto const field : type.fields())
    {
        if (field == AxObjectType::theWildcard)
        {
            return true;
        }
    }
    return false;
}
} // namespace

Types generateTypes(std::size_t count)
{
    std::mt19937 source(7);
    auto const below = [&](unsigned bound) { return static_cast<int>(source() % bound); };
    std::unordered_set<AxObjectType> known;
    Types types;
    while (types.size() < count)
    {
        AxObjectType::Fields fields{1,         1 + below(9), 1 + below(5), 1 + below(110), 1 + below(40),
                                    below(20), below(12),    below(4)};
        bool const pattern = types.patterns.size() * 10 < types.exact.size();
        if (pattern)
        {
            for (std::size_t open = 2 + source() % 6; open < fields.size(); ++open)
            {
                fields[open] = AxObjectType::theWildcard;
            }
        }
        AxObjectType const type(fields);
        if (known.insert(type).second)
        {
            (pattern ? types.patterns : types.exact).push_back(type);
        }
    }
    return types;
}

Types readTypes(std::string const& file)
{
    std::ifstream stream(file);
    if (!stream)
    {
        throw std::runtime_error("cannot read " + file);
    }
    Types types;
    std::string line;
    while (std::getline(stream, line))
    {
        line.resize(std::min(line.find('\t'), line.size()));
        AxObjectType type;
        if (!AxObjectType::fromString(line, type))
        {
            throw std::runtime_error(file + ": not an object type: " + line);
        }
        (isPattern(type) ? types.patterns : types.exact).push_back(type);
    }
    return types;
}
