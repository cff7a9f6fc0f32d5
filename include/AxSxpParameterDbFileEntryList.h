#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxSxpParameterDbFileEntry.h"

#include <string>
#include <vector>

/// The entries of a parameter database file. Elements that are no readable "parameter-entry" are reported and kept
/// for writing.
class ZEDOBJPARAM_API AxSxpParameterDbFileEntryList : public AxRwTemplatedListPtr<AxSxpParameterDbFileEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    using AxRwTemplatedListPtr::operator=;
    ~AxSxpParameterDbFileEntryList() override;

    /// An entry in the usual shape, a type and a file name without variables, that was read without an object of its
    /// own.
    struct Plain
    {
        AxObjectType type;
        std::string filename;
        unsigned line;
        unsigned column;
        int numBefore; ///< how many of the list's objects stand in front of it
    };
    /// Lets entries be read so.
    void takePlainEntries() { myTakesPlain = true; }
    std::vector<Plain> const& plainEntries() const { return myPlain; }

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;

    /// Texts of the elements that could not be read.
    std::vector<std::string> const& unreadElements() const { return myUnread; }
    /// Keeps `text`, an element of another list, to be written behind the entries.
    void keepUnread(std::string const& text);

private:
    struct Entry;
    static Entry const ourEntry;

    /// Behind the plain entry that begins there; null when there is none.
    char const* takePlain(char const* begin, unsigned line, unsigned column);
    void leaveOut(AxlObj const* item, unsigned line, unsigned column);
    void keep(AxlObj const* item);

    std::vector<std::string> myUnread;
    std::vector<Plain> myPlain;
    bool myTakesPlain = false;
};
