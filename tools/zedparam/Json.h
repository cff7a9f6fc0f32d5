#pragma once

#include <string>
#include <string_view>

/// Writes one JSON value, two blanks to a level. Calls must nest as the value does.
class JsonWriter
{
public:
    JsonWriter& beginObject() { return open('{'); }
    JsonWriter& endObject() { return close('}'); }
    JsonWriter& beginArray() { return open('['); }
    /// An array that is written, with all that is in it, on one line.
    JsonWriter& beginRow();
    JsonWriter& endArray() { return close(']'); }
    JsonWriter& key(std::string_view name);

    /// Bytes that are no UTF-8 are taken for Latin-1.
    JsonWriter& string(std::string_view text);
    JsonWriter& integer(long long value) { return number(std::to_string(value)); }
    /// `spelling` is a number in decimal, with or without fraction and exponent.
    JsonWriter& number(std::string_view spelling);
    /// As a string when it is infinite or no number.
    JsonWriter& real(double value);
    JsonWriter& null() { return number("null"); }
    JsonWriter& boolean(bool value) { return number(value ? "true" : "false"); }

    JsonWriter& member(std::string_view name, std::string_view text) { return key(name).string(text); }

    /// The whole value, ending in a newline.
    std::string const& text();
    void print();
    /// Prints what was written so far and forgets it; the value may go on.
    void flush();

private:
    JsonWriter& open(char bracket);
    JsonWriter& close(char bracket);
    void separate();
    void newLine();

    std::string myText;
    int myLevel = 0;
    bool myIsFirst = true;
    bool myFollowsKey = false;
    int myRowLevel = 0; // of the outermost row that is open, 0 when none is
};
