#pragma once

#include <map>
#include <string>
#include <string_view>

#include "AxEnvironment.h"
#include "ElementSource.h"
#include "Source.h"

class JsonWriter;
class RecordWalk;

/// A place in a file; both numbers count from 1 and are 0 where they are not known.
struct Place
{
    std::string file;
    unsigned line = 0;
    unsigned column = 0;

    /// "file:line:column", without what is not known.
    std::string text() const;
    /// The members "file", "line" and "column", into an object that was begun.
    void write(JsonWriter& json) const;
};

/// Tells where the values of records stand. Keeps the files it has read.
class Places
{
public:
    /// For a record of that file: keeps that file alone, so that what is kept does not grow from record to record.
    void goTo(std::string const& recordFile);
    /// The value at which the walk stands; the file alone when it does not stand there.
    Place of(RecordWalk const& at);
    /// What follows the keywords in a file of parameter text.
    AxlObj const* valueIn(std::string const& file, std::span<SourceStep const> path);
    /// Where the record begins.
    Place ofRecord(RecordWalk const& walk);
    /// Whether the file in which the walk stands could be searched at all.
    bool hasRead(RecordWalk const& at);
    /// The same of a file of parameter text.
    bool hasRead(std::string const& file) { return source(file).isRead(); }
    static Place at(std::string const& file, AxlObj const* cell);
    /// Of a record that was read from it; until another is asked for.
    ElementSource const& element(AxEnvValuePtr const& element);

private:
    Source const& source(std::string const& file);

    std::map<std::string, Source> mySources;
    AxEnvValuePtr myElement;
    ElementSource myElementSource{myElement};
};
