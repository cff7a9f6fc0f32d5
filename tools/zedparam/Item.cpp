#include "Item.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "AxNumberText.h"
#include "AxlPrint.h"

namespace
{
std::vector<Item const*> atomsOf(Item const& item)
{
    std::vector<Item const*> atoms;
    for (Item const& child : item.items)
    {
        if (!child.isList())
        {
            atoms.push_back(&child);
        }
    }
    return atoms;
}

TextTree::Place placeOf(AxEnvValue const& node)
{
    return {node.line(), node.column()};
}

Item textItem(AxEnvValue const& node)
{
    Item item{.kind = Item::Kind::String, .place = placeOf(node)};
    axAppendQuoted(item.text, node.value().string());
    return item;
}

Item attributeItem(AxString const& name, AxEnvValue const& value)
{
    Item item{.text = name.string(), .place = placeOf(value)};
    std::istringstream words(value.value().string());
    for (std::string word; words >> word;)
    {
        Item number{.kind = Item::Kind::Number, .text = word, .place = item.place};
        if (!axParseReal(word, number.number))
        {
            item.items.clear();
            break;
        }
        item.items.push_back(std::move(number));
    }
    if (item.items.empty())
    {
        item.items.push_back(textItem(value));
    }
    return item;
}

void append(std::string& out, Item const& item)
{
    if (!item.isList())
    {
        out += item.text;
        return;
    }
    out += '(';
    if (!item.text.empty())
    {
        axAppendName(out, AxSymbolString(std::string_view(item.text)));
    }
    for (Item const& child : item.items)
    {
        out += out.back() == '(' ? "" : " ";
        append(out, child);
    }
    out += ')';
}
} // namespace

Item const* Item::find(std::string_view head) const
{
    auto const found =
        std::ranges::find_if(items, [head](Item const& item) { return item.isList() && item.text == head; });
    return found != items.end() ? &*found : nullptr;
}

bool Item::hasLists() const
{
    return std::ranges::any_of(items, &Item::isList);
}

bool Item::isRegular() const
{
    return std::ranges::is_partitioned(items, [](Item const& item) { return !item.isList(); });
}

std::string Item::atoms() const
{
    std::string out;
    for (Item const* atom : atomsOf(*this))
    {
        (out += out.empty() ? "" : " ") += atom->text;
    }
    return out;
}

std::string Item::written() const
{
    std::string out;
    append(out, *this);
    return out;
}

Item itemOf(TextItem const& source)
{
    Item item{.place = source.place(), .source = source};
    if (!source.isList())
    {
        item.kind = source.isNumber() ? Item::Kind::Number : source.isString() ? Item::Kind::String : Item::Kind::Word;
        item.text = source.source();
        axParseReal(item.text, item.number);
        return item;
    }
    TextItem const first = source.firstChild();
    bool const hasHead = first.isWord() || first.isString();
    item.text = hasHead ? first.value() : std::string();
    for (TextItem child = hasHead ? first.next() : first; child; child = child.next())
    {
        item.items.push_back(itemOf(child));
    }
    return item;
}

Item itemOf(AxEnvObject const& element)
{
    Item item{.text = (element.hasName() ? element.name() : element.type()).string(), .place = placeOf(element)};
    if (element.hasName())
    {
        Item tag{.text = "tag", .place = item.place};
        tag.items.push_back({.kind = Item::Kind::Word, .text = element.type().string(), .place = item.place});
        item.items.push_back(std::move(tag));
    }
    for (AxEnvObject::Attribute const& attribute : element.attributes())
    {
        item.items.push_back(attributeItem(attribute.name, *attribute.value));
    }
    for (AxEnvValuePtr const& child : element.children())
    {
        if (!child->isObject())
        {
            item.items.insert(item.items.begin(), textItem(*child));
        }
        else if (auto const& object = static_cast<AxEnvObject const&>(*child); !object.isReserved())
        {
            item.items.push_back(itemOf(object));
        }
    }
    return item;
}

bool isSameAtom(Item const& a, Item const& b, double tolerance)
{
    if (a.kind == Item::Kind::Number && b.kind == Item::Kind::Number)
    {
        double const larger = std::max(std::abs(a.number), std::abs(b.number));
        return a.number == b.number || std::abs(a.number - b.number) <= tolerance * larger;
    }
    return a.kind == b.kind && a.text == b.text;
}

bool hasSameAtoms(Item const& a, Item const& b, double tolerance)
{
    return std::ranges::equal(atomsOf(a), atomsOf(b),
                              [tolerance](Item const* x, Item const* y) { return isSameAtom(*x, *y, tolerance); });
}

bool isSame(Item const& a, Item const& b, double tolerance)
{
    if (a.isList() != b.isList())
    {
        return false;
    }
    return a.isList() ? std::ranges::equal(a.items, b.items,
                                           [tolerance](Item const& x, Item const& y) {
                                               return x.isList()
                                                          ? y.isList() && x.text == y.text && isSame(x, y, tolerance)
                                                          : isSameAtom(x, y, tolerance);
                                           })
                      : isSameAtom(a, b, tolerance);
}
