#pragma once

#include <memory>
#include <string>

#include "FileEditor.h"

class Database;
struct ReadContext;
class TextReading;

/// The editor of a file, and what it works with.
class OpenEditor
{
public:
    /// Without an editor, after a line that says why, when the text cannot be read. The variables come from the
    /// database of that name, else from one that lists the file; of several objects the one of that name is meant.
    OpenEditor(std::string const& file, std::string const& text, std::string const& database, std::string const& object,
               bool force);
    OpenEditor(OpenEditor const&) = delete;
    OpenEditor& operator=(OpenEditor const&) = delete;
    ~OpenEditor();

    FileEditor* editor() const { return myEditor.get(); }

private:
    std::unique_ptr<TextReading> myReading;
    std::unique_ptr<Database> myDatabase;
    std::unique_ptr<ReadContext> myContext;
    std::unique_ptr<FileEditor> myEditor;
};
