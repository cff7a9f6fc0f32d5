#include "Types.h"

#include <algorithm>
#include <fstream>
#include <numeric>
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

using Shape = unsigned; // a bit for each field that is open

Types generate(std::size_t count, std::vector<Shape> const& shapes)
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
            Shape const shape = shapes[source() % shapes.size()];
            for (std::size_t field = 0; field < fields.size(); ++field)
            {
                fields[field] = (shape >> field & 1U) != 0 ? AxObjectType::theWildcard : fields[field];
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
} // namespace

Types generateTypes(std::size_t count)
{
    std::vector<Shape> lastFields;
    for (unsigned first = 2; first < AxObjectType::theNumFields; ++first)
    {
        lastFields.push_back(0xFFU << first & 0xFFU);
    }
    return generate(count, lastFields);
}

Types generateTypes(std::size_t count, std::size_t numShapes)
{
    std::vector<Shape> shapes(0x7F);
    std::iota(shapes.begin(), shapes.end(), 1U);
    std::shuffle(shapes.begin(), shapes.end(), std::mt19937(5));
    shapes.resize(numShapes);
    for (Shape& shape : shapes)
    {
        shape <<= 1; // the super type is never open
    }
    return generate(count, shapes);
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
