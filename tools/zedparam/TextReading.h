#pragma once

#include <memory>
#include <string>
#include <vector>

#include "AxDiagnostic.h"
#include "AxReaderWriter.h"
#include "TextTree.h"

class Database;
struct ReadContext;

/// What the library makes of a file of parameter text: the object that reads it, and those that read its lists. The
/// kind of file is told by its name and its first words.
class TextReading
{
public:
    /// Sets the library up. `database` binds variables; when none is named, one beside the file or in the folder above
    /// that lists the file. Null, after findings, when the named one cannot be opened.
    static std::unique_ptr<TextReading> open(std::string const& file, std::string const& database);
    /// Sets the library up, without a database.
    explicit TextReading(std::string const& file);
    TextReading(TextReading const&) = delete;
    TextReading& operator=(TextReading const&) = delete;
    ~TextReading();

    /// Reads the first expression. Null for a kind of file that is not known, and for one that cannot be read.
    AxReaderWriter* read(TextTree const& tree);
    /// What the library reported of the last reading; of a whole file also the variables that nothing binds.
    std::vector<AxDiagnostic> const& findings() const { return myFindings; }
    /// What it reported of the file as a whole.
    std::vector<AxDiagnostic> const& findingsOfFile() const { return myFindingsOfFile; }

    /// The member, element or content of `parent` that reads `list`, having read it anew; what was read into that
    /// member, or into other elements, before is gone. It need not where the parent read `list` last, and nothing else
    /// into that member: `isRead`. Null when the library would only keep the list.
    AxReaderWriter* part(AxReaderWriter& parent, TextItem list, bool isRead = false);
    /// Lets a member read a list in place of what it has read; false, with findings, when it does not take all of it.
    bool readInto(AxReaderWriter& member, std::string const& list);

private:
    TextReading(std::string const& file, std::unique_ptr<Database> database);
    bool readText(AxReaderWriter& rw, std::string const& text);

    std::string myFile;
    std::unique_ptr<Database> myDatabase;
    std::unique_ptr<ReadContext> myContext;
    std::unique_ptr<AxReaderWriter> myRoot;
    AxBindingsList myBindings; // of the file itself, then of the database
    std::vector<AxDiagnostic> myFindings;
    std::vector<AxDiagnostic> myFindingsOfFile;
};
