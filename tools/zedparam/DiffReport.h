#pragma once

#include <string>
#include <vector>

#include "Document.h"
#include "Json.h"

/// Tells differences as they are found: a line each, or in JSON.
class DiffReport
{
public:
    /// `json` is one object that was begun; null: lines on the standard output.
    explicit DiffReport(JsonWriter* json) : myJson(json) {}

    /// Of two documents that hold the same thing, `subject` being its object type or file where that must be told.
    void add(std::string const& subject, Document const& a, Document const& b,
             std::vector<Difference> const& differences);
    /// Something whole that only one side (0 or 1) has, and the file that it stands in.
    void addOnly(std::string const& subject, int side, std::string const& file);

    bool empty() const { return myCount == 0; }

private:
    struct Told;
    void print(Told const& told) const;
    void write(Told const& told);

    JsonWriter* myJson;
    std::size_t myCount = 0;
};
