#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxSxpParameterDbFileEntry.h"

/// The entries of a parameter database file. Elements that are no readable "parameter-entry" are reported and kept
/// for writing.
class ZEDOBJPARAM_API AxSxpParameterDbFileEntryList : public AxRwTemplatedListPtr<AxSxpParameterDbFileEntry, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    using AxRwTemplatedListPtr::operator=;
    ~AxSxpParameterDbFileEntryList() override;

    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;

    /// Texts of the elements that could not be read.
    std::vector<std::string> const& unreadElements() const { return myUnread; }
    /// Keeps `text`, an element of another list, to be written behind the entries.
    void keepUnread(std::string const& text);

private:
    struct Entry;
    static Entry const ourEntry;

    void leaveOut(AxlObj const* item, unsigned line, unsigned column);
    void keep(AxlObj const* item);

    std::vector<std::string> myUnread;
};
