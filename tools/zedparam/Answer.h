#pragma once

#include <memory>
#include <string>

#include "AxObjectType.h"
#include "Database.h"

class AxZedObjectParameters;
class JsonWriter;

/// Which entry of a database answers a type, and its record.
struct Answer
{
    std::unique_ptr<Database> database;
    AxObjectType type;
    AxSxpParameterDbEntry* entry = nullptr;
    bool exact = false;
    AxZedObjectParameters* record = nullptr;
};

/// Opens the database and asks it. Answers an exit code; unless that is Fine, a line was printed and the record may be
/// missing.
int ask(std::string const& databaseFile, std::string const& type, Answer& answer);

/// The members "type", "entry", "match", "file", and "name", "kind" and "display-name" of a record, into an object
/// that was begun. When nothing answers: "type", and "entry" as null.
void writeAnswer(JsonWriter& json, Answer const& answer);
