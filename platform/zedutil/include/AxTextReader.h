#pragma once

#include "AxReaderWriterFactory.h"
#include "AxlInputStream.h"

#include <string>
#include <string_view>

class AxXmlReader;

/// Reads records straight from characters into their members. Cells are made only for what needs them: values in an
/// unusual shape, items that no member takes, and classes that override a hook of cells. What it reads, keeps and
/// reports is what `getSelf` does with the cells of the same text.
///
/// A list in XML reads its elements through one of these too, which passes the questions on.
class ZEDOBJPARAM_API AxTextReader
{
public:
    /// The stream stands where reading begins, and is moved on.
    explicit AxTextReader(AxlInputStream& stream);

    /// Reads one object, at its opening parenthesis. False, and nothing taken, when its class needs cells.
    /// Throws AxlSyntaxError.
    bool readObject(AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings);
    /// Reads one object either way.
    void read(AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings);

    /// What the warning stream gets when the text ends inside a list, instead of the place. Must outlive the reader.
    void setLineForCutOff(std::string const& line) { myLineForCutOff = &line; }

    /// Where reading goes on, for `cellsSince`.
    char const* place() const { return myAt; }
    /// The zero byte behind the text.
    char const* end() const { return myEnd; }
    /// Goes on there, behind what the caller has read himself.
    void moveTo(char const* place) { myAt = place; }
    /// Line and column of a place that was read, from 1. Places that are asked for in their order cost one pass.
    void locate(char const* place, std::uint32_t& line, std::uint32_t& column);
    /// What was read since `place`, one list, as cells that know no file place of their own.
    AxlObjPtr cellsSince(char const* place) const;
    /// Puts the stream behind what was read.
    void finish();

    /// The head of the list that begins here, when it is a bare word; empty otherwise. Takes nothing.
    std::string_view peekHead();
    /// The text of the second element of the second element of the list that begins here, when it is a plain string
    /// behind a bare word: the type item of a descriptor or record. Empty otherwise. Takes nothing.
    /// With `head`, only of an item of that head.
    std::string_view peekType(std::string_view head = {});

    /// True when the text ended inside a list or string. That was reported, and what follows from it is not.
    bool unclosed() const { return myUnclosed; }

private:
    friend class AxXmlReader;

    /// For the elements of a list in XML.
    explicit AxTextReader(AxXmlReader& xml) : myXml(&xml) {}

    /// False when variables became known behind references to them: the record is to be read anew, by cells.
    bool readItems(AxReaderWriter& rw, char const* open, AxFilenameList const& files, AxBindingsList const& bindings);
    void readElements(AxReaderWriter& rw, char const* open, AxFilenameList const& files,
                      AxBindingsList const& bindings);
    bool readMember(AxReaderWriter& member, AxTypeInfo::Reading reading, AxFilenameList const& files,
                    AxBindingsList const& bindings);
    /// The list that begins at `from`, as cells; goes on behind it.
    AxlObjPtr cellsAt(char const* from);
    /// The same for what stands in a list; the end of the text for a string that is cut off there.
    AxlObjPtr itemAt(char const* from);
    void skipBlanks();
    bool closes();
    bool skipLead(char const* head);
    bool scanReal(double& value);
    void noteUnclosed(char const* open);

    AxlInputStream* myStream = nullptr;
    char const* myBegin = nullptr;
    char const* myEnd = nullptr; // a zero byte
    char const* myAt = nullptr;
    bool myUnclosed = false;
    char const* myLineStart = nullptr; // of the line located last
    std::uint32_t myLine = 1;
    AxXmlReader* myXml = nullptr; ///< answers instead
    std::string const* myLineForCutOff = &AxString::nullString().string();
};
