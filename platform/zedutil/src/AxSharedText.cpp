#include "AxSharedText.h"

#include "AxSymbolString.h"

#include <vector>

/// Open addressing with linear probing, at most half full; a power of two of slots.
class AxSharedText::Table
{
public:
    /// Never destroyed, because static objects may hold texts.
    static Table& instance()
    {
        static Table& table = *new Table;
        return table;
    }

    Entry* enter(std::string_view text)
    {
        auto const hash = static_cast<std::uint32_t>(AxSymbolString::hashOf(text));
        std::size_t slot = hash & mask();
        for (; Entry* const entry = mySlots[slot]; slot = next(slot))
        {
            if (entry->hash == hash && entry->text.string() == text)
            {
                ++entry->uses;
                return entry;
            }
        }
        auto* const made = new Entry{AxString(text), 1, hash};
        mySlots[slot] = made;
        if (2 * ++myCount > mySlots.size())
        {
            grow();
        }
        return made;
    }

    void remove(Entry const* entry)
    {
        std::size_t gap = entry->hash & mask();
        while (mySlots[gap] != entry)
        {
            gap = next(gap);
        }
        delete entry;
        --myCount;
        // What was pushed on by the entry moves back, so that every text stays reachable from its own slot.
        for (std::size_t slot = next(gap); Entry* const moved = mySlots[slot]; slot = next(slot))
        {
            if (((slot - moved->hash) & mask()) >= ((slot - gap) & mask()))
            {
                mySlots[gap] = moved;
                gap = slot;
            }
        }
        mySlots[gap] = nullptr;
    }

private:
    std::size_t mask() const { return mySlots.size() - 1; }
    std::size_t next(std::size_t slot) const { return (slot + 1) & mask(); }

    void grow()
    {
        std::vector<Entry*> const old = std::exchange(mySlots, std::vector<Entry*>(2 * mySlots.size()));
        for (Entry* const entry : old)
        {
            std::size_t slot = entry ? entry->hash & mask() : 0;
            while (entry && mySlots[slot])
            {
                slot = next(slot);
            }
            if (entry)
            {
                mySlots[slot] = entry;
            }
        }
    }

    std::vector<Entry*> mySlots = std::vector<Entry*>(1024);
    std::size_t myCount = 0;
};

AxSharedText::Entry* AxSharedText::enter(std::string_view text)
{
    return Table::instance().enter(text);
}

void AxSharedText::remove(Entry* entry) noexcept
{
    Table::instance().remove(entry);
}
