#include "AxSymbolString.h"

#include <array>
#include <ostream>
#include <vector>

#include "AxNumberText.h"

namespace
{
constexpr std::array<bool, 256> makeBareBytes()
{
    std::array<bool, 256> bare{};
    for (char const c :
         std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_+-*/.:<>=!?%&~^@#"))
    {
        bare[static_cast<unsigned char>(c)] = true;
    }
    for (std::size_t byte = 0x80; byte < bare.size(); ++byte)
    {
        bare[byte] = true;
    }
    return bare;
}

constexpr std::array<bool, 256> theBareBytes = makeBareBytes();

bool mayStandBare(std::string_view text)
{
    for (char const c : text)
    {
        if (!theBareBytes[static_cast<unsigned char>(c)])
        {
            return false;
        }
    }
    return !axIsNumber(text);
}
} // namespace

/// Open addressing with linear probing, at most half full; a power of two of slots.
class AxSymbolString::Table
{
public:
    /// Never destroyed, because static objects of any library may hold symbols.
    static Table& instance()
    {
        static Table& table = *new Table;
        return table;
    }

    Entry const* find(std::string_view text, std::uint64_t hash) const { return mySlots[slotOf(text, hash)].entry; }

    Entry const* add(std::string_view text, std::uint64_t hash)
    {
        std::size_t slot = slotOf(text, hash);
        if (mySlots[slot].entry == nullptr)
        {
            if (2 * (myCount + 1) > mySlots.size())
            {
                grow();
                slot = slotOf(text, hash);
            }
            mySlots[slot] = {hash, new Entry{AxString(text), mayStandBare(text)}};
            ++myCount;
        }
        return mySlots[slot].entry;
    }

private:
    struct Slot
    {
        std::uint64_t hash = 0;
        Entry const* entry = nullptr;
    };

    /// The slot that holds the text, or the empty one where it belongs.
    std::size_t slotOf(std::string_view text, std::uint64_t hash) const
    {
        std::size_t const mask = mySlots.size() - 1;
        std::size_t slot = hash & mask;
        while (mySlots[slot].entry != nullptr &&
               (mySlots[slot].hash != hash || mySlots[slot].entry->text.string() != text))
        {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    void grow()
    {
        std::vector<Slot> larger(2 * mySlots.size());
        for (Slot const& old : mySlots)
        {
            std::size_t slot = old.hash & (larger.size() - 1);
            while (old.entry != nullptr && larger[slot].entry != nullptr)
            {
                slot = (slot + 1) & (larger.size() - 1);
            }
            if (old.entry != nullptr)
            {
                larger[slot] = old;
            }
        }
        mySlots.swap(larger);
    }

    std::vector<Slot> mySlots = std::vector<Slot>(4096);
    std::size_t myCount = 0;
};

AxSymbolString::Entry const* AxSymbolString::intern(std::string_view text, std::uint64_t hash)
{
    return text.empty() ? nullptr : Table::instance().add(text, hash);
}

AxSymbolString::Entry const* AxSymbolString::lookup(std::string_view text, std::uint64_t hash)
{
    return text.empty() ? nullptr : Table::instance().find(text, hash);
}

std::ostream& operator<<(std::ostream& out, AxSymbolString symbol)
{
    return out << symbol.view();
}
