#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxSxpParameterDbEntry.h"
#include "AxSxpParameterDbFileEntry.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

/// The entries of a parameter database file. Elements that are no readable "parameter-entry" are reported and kept
/// for writing.
class ZEDOBJPARAM_API AxSxpParameterDbFileEntryList : public AxRwTemplatedListPtr<AxSxpParameterDbFileEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    using AxRwTemplatedListPtr::operator=;
    ~AxSxpParameterDbFileEntryList() override;

    /// An entry in the usual shape, a type and a file name without variables, that was read without an object of this
    /// list: it waits for its database.
    struct Plain
    {
        std::unique_ptr<AxSxpParameterDbEntry> entry;
        int numBefore; ///< how many of the list's objects stand in front of it
    };
    /// Lets entries be read so.
    void takePlainEntries() { myTakesPlain = true; }
    struct PlainEntries
    {
        std::vector<Plain> entries;
        std::string names; ///< of their files, for their origin
    };
    /// Hands them over.
    PlainEntries takenEntries() const { return std::exchange(myPlain.all, {}); }

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;

    /// Texts of the elements that could not be read.
    std::vector<std::string> const& unreadElements() const { return myUnread; }
    /// Keeps `text`, an element of another list, to be written behind the entries.
    void keepUnread(std::string const& text);

private:
    /// A copy of the list has none.
    struct Waiting
    {
        Waiting() = default;
        Waiting(Waiting const&) {}
        Waiting& operator=(Waiting const&) { return *this; }
        ~Waiting() = default;

        PlainEntries all;
    };
    struct Entry;
    static Entry const ourEntry;

    /// Takes the plain entries from there on, up to another or the end. Behind the last of them; null when there is
    /// none.
    char const* takePlain(char const* begin, char const* textEnd, unsigned line, unsigned column);
    void leaveOut(AxlObj const* item, unsigned line, unsigned column);
    void keep(AxlObj const* item);

    std::vector<std::string> myUnread;
    mutable Waiting myPlain; // until their database takes them
    bool myTakesPlain = false;
};
