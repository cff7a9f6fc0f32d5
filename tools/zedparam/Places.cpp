#include "Places.h"

#include "AxZedObjectParameters.h"
#include "Json.h"
#include "RecordWalk.h"
#include "ShownPath.h"

std::string Place::text() const
{
    std::string text = file;
    if (line != 0)
    {
        text.append(":").append(std::to_string(line)).append(":").append(std::to_string(column));
    }
    return text;
}

void Place::write(JsonWriter& json) const
{
    json.member("file", file);
    if (line != 0)
    {
        json.key("line").integer(line).key("column").integer(column);
    }
}

void Places::goTo(std::string const& recordFile)
{
    std::erase_if(mySources, [&](auto const& source) { return source.first != recordFile; });
}

Place Places::of(RecordWalk const& at)
{
    AxEnvValuePtr const& element = at.record().objectNode();
    if (at.isInRecordsOwnFile() && element)
    {
        AxEnvValue const* const node = Places::element(element).value(at.stepsInFile());
        return {shownPath(at.file()), node != nullptr ? node->line() : 0, node != nullptr ? node->column() : 0};
    }
    return Places::at(at.file(), valueIn(at.file(), at.stepsInFile()));
}

Place Places::ofRecord(RecordWalk const& walk)
{
    std::string const& file = walk.files().front();
    AxEnvValuePtr const& element = walk.record().objectNode();
    if (element)
    {
        return {shownPath(file), element->line(), element->column()};
    }
    // Of a record in a list it is the first item that can be found by steps.
    AxlObj const* const first =
        walk.stepsToRecord().empty() ? &source(file).expression() : source(file).value(walk.stepsToRecord());
    return at(file, first);
}

AxlObj const* Places::valueIn(std::string const& file, std::span<SourceStep const> path)
{
    return source(file).value(path);
}

Place Places::at(std::string const& file, AxlObj const* cell)
{
    return {shownPath(file), cell != nullptr ? cell->line() : 0, cell != nullptr ? cell->column() : 0};
}

bool Places::hasRead(RecordWalk const& at)
{
    return (at.isInRecordsOwnFile() && at.record().objectNode()) || source(at.file()).isRead();
}

ElementSource const& Places::element(AxEnvValuePtr const& element)
{
    if (element != myElement)
    {
        myElement = element;
        myElementSource = ElementSource(element);
    }
    return myElementSource;
}

Source const& Places::source(std::string const& file)
{
    auto known = mySources.find(file);
    if (known == mySources.end())
    {
        known = mySources.emplace(file, Source::again(file)).first;
    }
    return known->second;
}
