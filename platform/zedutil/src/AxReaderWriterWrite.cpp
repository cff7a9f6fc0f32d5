#include "AxReaderWriter.h"

#include "AxPlainValue.h"
#include "AxRegistryShape.h"
#include "AxRwList.h"
#include "AxlPrint.h"

#include <algorithm>
#include <limits>

namespace
{
AxReaderWriter::PrePutSelfCallback ourCallback = nullptr;
void* ourContext = nullptr;
} // namespace

void AxReaderWriter::setPrePutSelfCallback(PrePutSelfCallback callback, void* context)
{
    ourCallback = callback;
    ourContext = context;
}

void AxReaderWriter::putIndent(std::string& out, int level)
{
    if (level > 0)
    {
        out.append(static_cast<std::size_t>(level) * 2, ' ');
    }
}

bool AxReaderWriter::isDue() const
{
    if (myFlags & (Specified | VariableReference | KeepsItems))
    {
        return true;
    }
    if (myFlags & Value)
    {
        return false;
    }
    if (AxReaderWriterRegistry const* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            if (!entry.content && !entry.keyword.isNull() && entry.member->isDue())
            {
                return true;
            }
        }
    }
    return false;
}

void AxReaderWriter::writeSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    if (flag(FileBacked) || (!all && !isDue()))
    {
        return;
    }
    out += '\n';
    putIndent(out, indent);
    putSelf(out, indent, all, file);
}

void AxReaderWriter::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    writeAs(name(), out, indent, all, file);
}

void AxReaderWriter::writeAs(AxSymbolString head, std::string& out, int indent, bool all, AxFilename const& file)
{
    if (ourCallback)
    {
        ourCallback(this, out, ourContext);
    }
    prePutSelf();
    out += '(';
    axAppendName(out, head);
    out += ' ';
    std::size_t const start = out.size();
    if (flag(VariableReference))
    {
        out += rareOrNull()->written;
    }
    else
    {
        putData(out, indent);
        if (out.size() == start)
        {
            out.pop_back();
        }
        else if (out[start] == '\n')
        {
            out.erase(start - 1, 1);
        }
    }
    if (hasRest() && (!flag(VariableReference) || flag(KeepsItems)))
    {
        writeMembers(out, indent, all, file);
    }
    if (flag(List) && !flag(VariableReference))
    {
        writeElements(out, indent + 1, all, file);
    }
    out += ')';
    postPutSelf();
}

void AxReaderWriter::writeKept(std::string& out, int indent, AxSymbolString after) const
{
    for (AxKeptItem const& item : rareOrNull()->kept)
    {
        // A list whose data hook writes the elements keeps what it could not read behind them.
        if (item.after == after && (item.element < 0 || !flag(List)) && (!item.replaces || standsFor(item)))
        {
            out += '\n';
            putIndent(out, indent);
            out += item.text;
        }
    }
}

void AxReaderWriter::writeMember(AxReaderWriter& member, AxSymbolString keyword, std::string& out, int indent, bool all,
                                 AxFilename const& file)
{
    if (keyword.isNull())
    {
        return; // never written; what is kept under no keyword stands before the first member
    }
    bool isReplaced = false;
    if (flag(KeepsItems))
    {
        for (AxKeptItem const& item : rareOrNull()->kept)
        {
            isReplaced = isReplaced || (item.after == keyword && standsFor(item));
        }
    }
    if (!isReplaced && !flag(VariableReference))
    {
        member.writeSelf(out, indent, all, file);
    }
    if (flag(KeepsItems))
    {
        writeKept(out, indent, keyword);
    }
}

void AxReaderWriter::writeMembers(std::string& out, int indent, bool all, AxFilename const& file)
{
    if (flag(KeepsItems))
    {
        writeKept(out, indent + 1, AxSymbolString());
    }
    AxReaderWriterRegistry& members = restOrNull()->registry;
    std::size_t const shared = members.table().slots.size();
    bool const isPlain = !ourCallback && !flag(KeepsItems) && !flag(VariableReference);
    {
        AxTextRoom room(out);
        for (AxRegistryTable::Slot const& slot : members.table().slots)
        {
            AxReaderWriter& member = *members.at(slot.distance);
            if (!isPlain || !AxPlainValue::write(slot, member, room, indent + 1, all))
            {
                room.append([&](std::string& text) { writeMember(member, slot.keyword, text, indent + 1, all, file); });
            }
        }
    }
    for (std::size_t i = shared; i < members.size(); ++i)
    {
        AxRegistryEntry const entry = members.entry(i);
        if (!entry.content)
        {
            writeMember(*entry.member, entry.keyword, out, indent + 1, all, file);
        }
    }
}

void AxReaderWriter::writeElements(std::string& out, int indent, bool all, AxFilename const& file)
{
    std::vector<AxKeptItem const*> kept; // in the order of the elements
    if (flag(KeepsItems))
    {
        for (AxKeptItem const& item : rareOrNull()->kept)
        {
            if (item.element >= 0)
            {
                kept.push_back(&item);
            }
        }
        std::ranges::stable_sort(kept, {}, &AxKeptItem::element);
    }
    auto next = kept.begin();
    auto const writeKeptUpTo = [&](int place)
    {
        for (; next != kept.end() && (*next)->element <= place; ++next)
        {
            out += '\n';
            putIndent(out, indent);
            out += (*next)->text;
        }
    };
    int place = 0;
    for (AxListItem const* item = static_cast<AxRwList*>(this)->first(); item; item = item->next(), ++place)
    {
        writeKeptUpTo(place);
        out += '\n';
        putIndent(out, indent);
        AxRwList::element(item)->putSelf(out, indent, all, file);
    }
    writeKeptUpTo(std::numeric_limits<int>::max());
}

void AxReaderWriter::putData(std::string&, int) {}

void AxReaderWriter::prePutSelf() {}

void AxReaderWriter::postPutSelf() {}

std::string AxReaderWriter::writtenText(bool all) const
{
    std::string out;
    const_cast<AxReaderWriter*>(this)->putSelf(out, 0, all, AxFilename::nullFilename());
    out += '\n';
    return out;
}

AxString AxReaderWriter::prettyPrint() const
{
    return AxString(writtenText());
}
