#pragma once

class AxReaderWriter;
class JsonWriter;
class RecordWalk;

/// Writes a record, list or value as JSON: a record as an object by keyword, a list as an array of objects with the
/// member "name", a value as a number, boolean, string or array, named values as an object. A file member is the name
/// of its file. With `all`, members that hold their default are written too.
void writeJson(JsonWriter& json, AxReaderWriter& rw, bool all);
/// The members of `rw`, into an object that was begun.
void writeJsonMembers(JsonWriter& json, AxReaderWriter& rw, bool all);
/// The object or word at which the walk stands.
void writeJson(JsonWriter& json, RecordWalk const& at, bool all);
