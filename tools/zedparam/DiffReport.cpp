#include "DiffReport.h"

#include <cstdio>

#include "AxKeyword.h"
#include "Colour.h"
#include "ShownPath.h"

/// One difference with all that is told of it.
struct DiffReport::Told
{
    std::string subject;
    std::string path;
    Difference::What what = Difference::What::Changed;
    std::string text[2];
    std::string unit;
    std::string file[2];
    TextTree::Place place[2]{};
};

namespace
{
using What = Difference::What;

/// Long values are shown by their beginning.
std::string shown(std::string const& text)
{
    constexpr std::size_t theMost = 60;
    if (text.size() <= theMost)
    {
        return text;
    }
    std::size_t end = theMost - 4;
    while ((static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) // within a character
    {
        --end;
    }
    return text.substr(0, end) + " ...";
}

std::string unitOf(Difference const& difference, DocumentPlaces const& places, int side)
{
    Item const* const item = difference.item[side];
    bool const isNumber = item != nullptr && !item->items.empty() && item->items.front().kind == Item::Kind::Number;
    AxReaderWriter const* const object = isNumber ? places.objectAt(difference.path, side) : nullptr;
    AxKeyword const* const description = object != nullptr ? object->description() : nullptr;
    return description != nullptr ? description->unit : "";
}
} // namespace

void DiffReport::add(std::string const& subject, Document const& a, Document const& b,
                     std::vector<Difference> const& differences)
{
    DocumentPlaces places[2] = {DocumentPlaces(a), DocumentPlaces(b)};
    for (Difference const& difference : differences)
    {
        Told told{.subject = subject,
                  .path = difference.pathText(),
                  .what = difference.what,
                  .text = {difference.text[0], difference.text[1]},
                  .unit = unitOf(difference, places[0], 0),
                  .file = {shownPath(a.file), shownPath(b.file)},
                  .place = {places[0].placeOf(difference, 0), places[1].placeOf(difference, 1)}};
        told.unit = told.unit.empty() ? unitOf(difference, places[1], 1) : told.unit;
        myJson != nullptr ? write(told) : print(told);
        ++myCount;
    }
}

void DiffReport::addOnly(std::string const& subject, int side, std::string const& file)
{
    Told told;
    told.subject = subject;
    told.what = side == 0 ? What::Removed : What::Added;
    told.file[side] = shownPath(file);
    if (myJson != nullptr)
    {
        write(told);
    }
    else
    {
        std::printf("%s: %s  (%s)\n", coloured(subject, Colour::Bold).c_str(),
                    side == 0 ? coloured("removed", Colour::Red).c_str() : coloured("added", Colour::Green).c_str(),
                    told.file[side].c_str());
    }
    ++myCount;
}

void DiffReport::print(Told const& told) const
{
    std::string line = told.subject;
    (line += line.empty() || told.path.empty() ? "" : " ") += told.path;
    line = line.empty() ? line : coloured(line, Colour::Bold) + ": ";
    auto const text = [&told](int side)
    { return coloured(shown(told.text[side]), side == 0 ? Colour::Red : Colour::Green); };
    auto const value = [&](int side) { return text(side) + (told.unit.empty() ? "" : " " + told.unit); };
    switch (told.what)
    {
    case What::Changed:
        line += text(0) + " -> " + value(1);
        break;
    case What::Removed:
        line += value(0) + " -> absent";
        break;
    case What::Added:
        line += "absent -> " + value(1);
        break;
    case What::Moved:
        line += "order: " + text(0) + " -> " + text(1);
        break;
    }
    char const* separator = "  (";
    for (int side = 0; side < 2; ++side)
    {
        line += separator + told.file[side] + ':' + std::to_string(told.place[side].line) + ':' +
                std::to_string(told.place[side].column);
        separator = ", ";
    }
    std::printf("%s)\n", line.c_str());
}

void DiffReport::write(Told const& told)
{
    constexpr char const* theWords[] = {"changed", "removed", "added", "moved"};
    myJson->beginObject();
    if (!told.subject.empty())
    {
        myJson->member("subject", told.subject);
    }
    myJson->member("path", told.path).member("what", theWords[static_cast<int>(told.what)]);
    for (int side = 0; side < 2; ++side)
    {
        myJson->key(side == 0 ? "a" : "b");
        if (told.file[side].empty())
        {
            myJson->null();
            continue;
        }
        myJson->beginObject();
        bool const isThere = told.what != (side == 0 ? What::Added : What::Removed);
        myJson->key("value");
        isThere ? myJson->string(told.text[side]) : myJson->null();
        myJson->member("file", told.file[side]);
        myJson->key("line").integer(told.place[side].line);
        myJson->key("column").integer(told.place[side].column);
        myJson->endObject();
    }
    if (!told.unit.empty())
    {
        myJson->member("unit", told.unit);
    }
    myJson->endObject();
}
