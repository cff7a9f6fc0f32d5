#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "AxDiagnostic.h"

/// Changes single values of a file and leaves every other byte as it is. A change is refused, with `fault` and the text
/// as it was, that the library would not read, or that would lose a comment or anything else.
class FileEditor
{
public:
    FileEditor(FileEditor const&) = delete;
    FileEditor& operator=(FileEditor const&) = delete;
    virtual ~FileEditor() = default;

    /// Gives the item at the end of the path, such as "sensors/radar/detection-period", another value. One that is not
    /// there yet is inserted where the library would write it, in the layout of its neighbours. A value for a text
    /// needs no quotes.
    virtual bool set(std::string const& path, std::string const& value) = 0;
    /// Takes the item at the end of the path out, with its line when it has one for itself.
    virtual bool unset(std::string const& path) = 0;

    /// The steps that lead on from the path, or from the beginning for an empty one: what stands there already, and
    /// else what may. One behind which a path goes on ends in "/".
    virtual std::vector<std::string> stepsBehind(std::string const& path, bool onlyThere) = 0;

    std::string const& text() const { return myText; }
    AxDiagnostic const& fault() const { return myFault; }
    /// What was done, in the order in which it was asked for.
    struct Change
    {
        std::string path;
        unsigned line;
        unsigned column;
        std::string keyword; ///< of values that do not show it themselves
        std::string before;  ///< empty for what was added
        std::string after;   ///< empty for what was taken out
    };
    std::vector<Change> const& changes() const { return myChanges; }
    /// What the library finds fault with in the text as it is now.
    std::vector<AxDiagnostic> const& findings() const { return myFindings; }

protected:
    FileEditor(std::string file, std::string text, bool force)
        : myText(std::move(text)), myFile(std::move(file)), myForce(force)
    {
    }

    /// Answers false.
    bool refuse(unsigned line, unsigned column, std::string code, std::string text, std::string hint = {})
    {
        myFault = {};
        myFault.code = std::move(code);
        myFault.file = myFile;
        myFault.line = std::max(line, 1U);
        myFault.column = std::max(column, 1U);
        myFault.text = std::move(text);
        myFault.hint = std::move(hint);
        return false;
    }
    void note(Change change) { myChanges.push_back(std::move(change)); }
    std::string const& file() const { return myFile; }
    /// Whether to let pass what the library does not know, or would find fault with.
    bool force() const { return myForce; }

    std::string myText;
    std::vector<AxDiagnostic> myFindings; // of the text

private:
    std::string myFile;
    bool myForce;
    AxDiagnostic myFault;
    std::vector<Change> myChanges;
};
