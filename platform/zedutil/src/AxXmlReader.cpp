#include "AxXmlReader.h"

#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxRegistryShape.h"
#include "AxRwList.h"
#include "AxTreeCells.h"
#include "AxWordText.h"
#include "AxXmlValue.h"

#include <algorithm>

namespace
{
using Document = AxXmlDocument;
using Kind = AxXmlDocument::Kind;

constexpr std::string_view theName = "name";
constexpr std::string_view theValue = "value";
constexpr std::string_view theVariable = "variable";
constexpr std::string_view theType = "type";
/// What a record brings along to be used in all its items, those in front included.
constexpr std::string_view theBindings = "variable-bindings";

/// Whether an item that stands as text is to be read elsewhere, or used elsewhere.
bool isOutOfOrder(Document const& document, std::uint32_t node)
{
    std::uint32_t const text = node + 1;
    if (document.node(node).next > text && document.text(document.node(text)).find(theBindings) != std::string::npos)
    {
        return true;
    }
    Document::Attribute const* const end = document.attributesEnd(node);
    return std::any_of(document.attributesBegin(node), end,
                       [&](Document::Attribute const& one) { return document.name(one) == "after"; });
}

std::size_t placeOf(AxRegistryTable const& table, std::string_view keyword)
{
    AxSymbolString const symbol = AxSymbolString::find(keyword);
    return symbol.isNull() ? AxRegistryTable::none : table.find(symbol);
}

/// Whether the attribute belongs to the form of elements, as far as that is told without what reads them.
bool isForm(Document const& document, std::uint32_t node, Document::Attribute const& attribute)
{
    std::string_view const keyword = document.name(attribute);
    std::string_view const tag = document.tag(node);
    return keyword == theName || keyword == theValue ||
           (keyword == theVariable && document.rawValue(attribute).starts_with('$')) ||
           (keyword == theType && (tag == AxTreeCells::theAnyTag || tag == "property"));
}

AxlCellPool::Place cellPlace(Document::Place place)
{
    return {place.line, place.column};
}
} // namespace

/// An attribute or child of a record.
struct AxXmlReader::Item
{
    Item(Attribute const* itsAttribute, std::uint32_t itsNode, std::uint32_t itsPosition, std::size_t itsPlace)
        : attribute(itsAttribute), node(itsNode), position(itsPosition), place(itsPlace)
    {
    }
    Attribute const* attribute; ///< null for a child
    std::uint32_t node;
    std::uint32_t position;
    std::size_t place; ///< of the member that has its keyword, or none
    bool isTaken = false;
    bool isOffered = false; ///< to the class, which did not take it
    AxlObjPtr cell{};       ///< made when it is needed
};

/// A record whose items are being read.
struct AxXmlReader::Record
{
    AxReaderWriter& rw;
    Element const& element;
    AxReadFrame& frame;
    AxTypeInfo const& info;
    AxReaderWriterRegistry& registry;
    AxRegistryTable const& table;
    bool isOwnGuide; ///< what the guide knows is what the record knows
    AxFilenameList const& files;
    AxBindingsList const* bindings;
    AxBindingsList extended{};
    std::vector<Item> items{};

    auto* ownItem() const { return info.ops ? info.ops->ownItem : nullptr; }
    bool wasSeen(std::size_t place) const { return (frame.few[place / 64] >> (place % 64) & 1U) != 0; }
    static bool isNoted(std::size_t place) { return place < 256; }
    void note(std::size_t place)
    {
        frame.next = place + 1;
        frame.last = table.slots[place].keyword;
        frame.markSeen(place);
    }
    /// The member that the guide takes a keyword for.
    AxReaderWriter const* guided(std::string_view keyword) const
    {
        if (!element.guide)
        {
            return nullptr;
        }
        return AxTreeCells::memberFor(element.guide, AxString(keyword));
    }
    bool leads(std::string_view keyword, std::size_t place) const
    {
        if (isOwnGuide && place != AxRegistryTable::none)
        {
            return false;
        }
        return !guided(keyword) && (element.guide || keyword.ends_with("-type"));
    }
};

struct AxXmlReader::Model
{
    std::string_view name; ///< a tag or, if `isType`, a type
    bool isType;
    std::unique_ptr<AxReaderWriter> object;
};

AxXmlReader::AxXmlReader(AxEnvObjectPtr const& object) : myRoot{0}
{
    myDocument = Document::sourceOf(*object, myRoot.node);
    myRoot.head = AxSymbolString(object->name());
    if (!myDocument)
    {
        return;
    }
    // Both may have been set anew without a look at the rest.
    Attribute const* const name = myDocument->nameOf(myRoot.node);
    if (!(object->type() == myDocument->tag(myRoot.node)) || object->hasName() != (name != nullptr) ||
        (name && !(object->name() == myDocument->value(*name))))
    {
        myDocument.reset();
    }
}

AxXmlReader::~AxXmlReader() = default;

bool AxXmlReader::readObject(AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (myElement)
    {
        return readElement(rw, *myElement, files, bindings);
    }
    myRoot.guide = &rw;
    return myDocument && readElement(rw, myRoot, files, bindings);
}

void AxXmlReader::readListElement(AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings)
{
    Element const& element = *myElement;
    std::string_view const tag = myDocument->tag(element.node);
    if (tag != AxTreeCells::theAnyTag && tag != rw.xmlType())
    {
        noteOdd(element);
    }
    if (!readElement(rw, element, files, bindings))
    {
        rw.getSelf(elementCells(), files, bindings);
        if (isOdd(rw, element.node))
        {
            noteOdd(element);
        }
    }
}

void AxXmlReader::locateElement(std::uint32_t& line, std::uint32_t& column) const
{
    Document::Place const place = myDocument->placeOf(myDocument->node(myElement->node));
    line = place.line;
    column = place.column;
}

AxlObjPtr AxXmlReader::elementCells() const
{
    AxEnvValuePtr const node = Document::made(myDocument, myElement->node);
    return AxTreeCells::expression(static_cast<AxEnvObject const&>(*node), myElement->head, myElement->guide);
}

std::string_view AxXmlReader::elementHead() const
{
    std::string_view const head = myElement->head.view();
    return myElement->head.isBareWord() && AxXmlValue::isPlainWord(head) ? head : std::string_view();
}

std::string_view AxXmlReader::elementType(std::string_view wanted) const
{
    std::uint32_t const node = myElement->node;
    Attribute const* const begin = myDocument->attributesBegin(node);
    Attribute const* const end = myDocument->attributesEnd(node);
    AxReaderWriter const* const guide = myElement->guide;
    // These come before all else.
    bool const hasForm = std::any_of(begin, end,
                                     [this](Attribute const& one)
                                     {
                                         std::string_view const keyword = myDocument->name(one);
                                         return keyword == theValue || keyword == theVariable;
                                     });
    if (hasForm || myDocument->tag(node) == "property" || (guide && (guide->isValue() || guide->property())))
    {
        return {};
    }
    for (Attribute const* one = begin; one != end; ++one)
    {
        std::string_view const keyword = myDocument->name(*one);
        bool const isGuided = guide && AxTreeCells::memberFor(guide, AxString(keyword));
        if (keyword == theName || keyword == theType || isGuided || (!guide && !keyword.ends_with("-type")))
        {
            continue;
        }
        std::string_view const text = myDocument->rawValue(*one);
        bool const isWanted = wanted.empty() || keyword == wanted;
        return isWanted && AxXmlValue::isPlainWord(text) ? text : std::string_view();
    }
    return {};
}

/// The item of a child, by way of a node for it alone.
AxlObjPtr AxXmlReader::cellOf(Element const& parent, std::uint32_t node) const
{
    AxEnvObject const shell{AxString(myDocument->tag(parent.node))}; // only the tag of a parent is looked at
    return AxTreeCells::childItem(*Document::made(myDocument, node), shell, parent.guide);
}

/// Whether an object that was read from cells may differ from its node, so that the two must be compared.
bool AxXmlReader::isOdd(AxReaderWriter const& rw, std::uint32_t node) const
{
    Document const& document = *myDocument;
    if (rw.isValue() || rw.property())
    {
        return hasRest(node);
    }
    bool const isList = rw.flag(AxReaderWriter::List);
    if (isList && std::any_of(document.attributesBegin(node), document.attributesEnd(node),
                              [&](Attribute const& one) {
                                  return !isForm(document, node, one) &&
                                         !AxTreeCells::memberFor(&rw, AxString(document.name(one)));
                              }))
    {
        return true;
    }
    if (rw.flag(AxReaderWriter::KeepsItems) || AxReaderWriterFactory::typeInfo(rw).readsTrees)
    {
        return true;
    }
    std::uint32_t const next = document.node(node).next;
    for (std::uint32_t child = node + 1; child < next; child = document.node(child).next)
    {
        Attribute const* const name = document.node(child).kind == Kind::Element ? document.nameOf(child) : nullptr;
        if (!name || name->isCoded || name->valueSize == 0 || isList)
        {
            return true;
        }
        AxReaderWriter const* const member = AxTreeCells::memberFor(&rw, AxString(document.rawValue(*name)));
        if (member && document.tag(child) != AxTreeCells::theTextTag && isOdd(*member, child))
        {
            return true;
        }
    }
    return false;
}

/// Whether an element may say more than a value.
bool AxXmlReader::hasRest(std::uint32_t node) const
{
    Document const& document = *myDocument;
    auto const isPlain = [&document](std::uint32_t one)
    {
        return std::all_of(document.attributesBegin(one), document.attributesEnd(one),
                           [&](Attribute const& attribute) { return isForm(document, one, attribute); });
    };
    std::uint32_t const next = document.node(node).next;
    for (std::uint32_t child = node + 1; child < next; child = document.node(child).next)
    {
        bool const isPart = document.node(child).kind == Kind::Element &&
                            AxTreeCells::isPartOfValue(document.tag(node), document.tag(child));
        if (!isPart || document.node(child).next != child + 1 || !isPlain(child))
        {
            return true;
        }
    }
    return !isPlain(node);
}

void AxXmlReader::noteOdd(Element const& element)
{
    if (!element.outer)
    {
        myIsOdd = true;
        return;
    }
    noteOdd(*element.outer, element.position);
}

void AxXmlReader::noteOdd(Element const& parent, std::uint32_t position)
{
    if (parent.outer)
    {
        noteOdd(parent);
    }
    else if (myOddChildren.empty() || myOddChildren.back() != position)
    {
        myOddChildren.push_back(position);
    }
}

AxReaderWriter const* AxXmlReader::modelOf(std::uint32_t node)
{
    std::string_view const tag = myDocument->tag(node);
    Attribute const* named = nullptr;
    if (tag == AxTreeCells::theAnyTag)
    {
        Attribute const* const end = myDocument->attributesEnd(node);
        named = std::find_if(myDocument->attributesBegin(node), end,
                             [this](Attribute const& one) { return myDocument->name(one) == theType; });
        named = named != end ? named : nullptr;
    }
    std::string_view const key = named ? myDocument->rawValue(*named) : tag;
    auto found = std::find_if(myModels.begin(), myModels.end(),
                              [&](Model const& one) { return one.isType == (named != nullptr) && one.name == key; });
    if (found == myModels.end())
    {
        AxString const type = named ? AxString(myDocument->value(*named)) : AxString();
        myModels.push_back({key, named != nullptr, AxTreeCells::modelOf(AxString(tag), named ? &type : nullptr)});
        found = std::prev(myModels.end());
    }
    return found->object.get();
}

/// Whether the element consists of a name, attributes and children alone, in the way of records or of lists.
bool AxXmlReader::isUsual(AxReaderWriter const& rw, Element const& element, bool isList) const
{
    Document const& document = *myDocument;
    std::string_view const tag = document.tag(element.node);
    AxReaderWriter const* const guide = element.guide;
    if (tag == "property" || tag == AxTreeCells::theAttributesTag || tag == AxTreeCells::theObjectTypesTag ||
        (guide && (guide->isValue() || guide->flag(AxReaderWriter::List) != isList || guide->property())))
    {
        return false;
    }
    auto const hasMembers = [](AxReaderWriter const* list)
    { return list && list->registryIfAny() && list->registryIfAny()->size() != 0; };
    if (isList && (hasMembers(&rw) || hasMembers(guide)))
    {
        return false;
    }
    for (Attribute const* one = document.attributesBegin(element.node); one != document.attributesEnd(element.node);
         ++one)
    {
        std::string_view const keyword = document.name(*one);
        bool const isForm = keyword == theValue || keyword == theVariable || keyword == theBindings;
        bool const isOther = keyword != theName && !(keyword == theType && tag == AxTreeCells::theAnyTag);
        if (isForm || (isList && isOther))
        {
            return false;
        }
    }
    std::uint32_t const next = document.node(element.node).next;
    for (std::uint32_t child = element.node + 1; child < next; child = document.node(child).next)
    {
        if (document.node(child).kind != Kind::Element)
        {
            continue;
        }
        Attribute const* const name = document.nameOf(child);
        bool const isText = document.tag(child) == AxTreeCells::theTextTag;
        std::string_view const keyword = name ? document.rawValue(*name) : document.tag(child);
        if ((isText && (isList || isOutOfOrder(document, child))) || keyword == theBindings ||
            (name && (name->isCoded || keyword.starts_with('$'))))
        {
            return false;
        }
    }
    AxTypeOps const* const ops = isList ? nullptr : AxReaderWriterFactory::typeInfo(rw).ops;
    return !ops || !ops->ownItem || !ops->leadHead || hasLead(rw, element, ops->leadHead);
}

/// Whether the first of the items is the type item, in its usual form.
bool AxXmlReader::hasLead(AxReaderWriter const& rw, Element const& element, std::string_view head) const
{
    Attribute const* const end = myDocument->attributesEnd(element.node);
    for (Attribute const* one = myDocument->attributesBegin(element.node); one != end; ++one)
    {
        std::string_view const keyword = myDocument->name(*one);
        if (keyword == head)
        {
            bool const leads = !element.guide ? head.ends_with("-type")
                                              : element.guide == &rw && !AxTreeCells::memberFor(&rw, AxString(head));
            return leads && !one->isCoded && AxXmlValue::isPlainWord(myDocument->rawValue(*one));
        }
        bool const isMember = !element.guide ? !keyword.ends_with("-type")
                                             : AxTreeCells::memberFor(element.guide, AxString(keyword)) != nullptr;
        if (keyword != theName && !isMember)
        {
            return false;
        }
    }
    return false;
}

bool AxXmlReader::readElement(AxReaderWriter& rw, Element const& element, AxFilenameList const& files,
                              AxBindingsList const& bindings)
{
    AxTypeInfo const& info = AxReaderWriterFactory::typeInfo(rw);
    bool const isList = info.reading == Reading::List;
    if ((!isList && info.reading != Reading::Record) || !isUsual(rw, element, isList))
    {
        return false;
    }
    rw.preGetSelf();
    rw.setFlag(AxReaderWriter::Invalid, false);
    if (rw.AxReaderWriter::name().isNull() && !element.head.isNull())
    {
        rw.AxReaderWriter::setName(element.head.string());
    }
    rw.dropReference();
    rw.dropKeptItems();
    if (isList)
    {
        readElements(static_cast<AxRwList&>(rw), element, files, bindings);
    }
    else
    {
        readItems(rw, element, files, bindings);
    }
    rw.setFlag(AxReaderWriter::Specified, true);
    rw.stamp();
    if (!isList && info.ops && info.ops->afterItems)
    {
        info.ops->afterItems(rw, files, bindings);
    }
    rw.postGetSelf();
    if (rw.flag(AxReaderWriter::KeepsItems) || (!isList && info.readsTrees))
    {
        noteOdd(element);
    }
    return true;
}

void AxXmlReader::readElements(AxRwList& list, Element const& element, AxFilenameList const& files,
                               AxBindingsList const& bindings)
{
    Document const& document = *myDocument;
    AxTypeOps const& ops = *AxReaderWriterFactory::typeInfo(list).ops;
    AxReaderWriter const& guide = element.guide ? *element.guide : list;
    list.removeAndDeleteAll();
    AxReadFrame frame(list);
    std::uint32_t const next = document.node(element.node).next;
    std::uint32_t position = 0;
    for (std::uint32_t node = element.node + 1; node < next; node = document.node(node).next, ++position)
    {
        if (document.node(node).kind == Kind::Comment)
        {
            continue;
        }
        if (document.node(node).kind == Kind::Text ||
            !AxTreeCells::isElement(guide, document.tag(node), document.nameOf(node) != nullptr))
        {
            noteOdd(element);
            continue;
        }
        Element child{node, position, modelOf(node), {}, &element};
        AxString const tag(document.tag(node));
        AxString nameText;
        AxString typeText;
        AxString const* const name = attributeText(node, theName, nameText);
        AxString const* const type = tag == AxTreeCells::theAnyTag ? attributeText(node, theType, typeText) : nullptr;
        child.head = AxTreeCells::elementHead(tag, name, type);
        if (name && type)
        {
            noteOdd(child); // it gets its name from the node
        }
        Element const* const outer = myElement;
        myElement = &child;
        bool const isRead = ops.readElement(list, myFace, files, bindings);
        myElement = outer;
        if (!isRead)
        {
            noteOdd(child);
            list.readElement(cellOf(element, node).get(), frame, files, bindings);
        }
    }
}

AxString const* AxXmlReader::attributeText(std::uint32_t node, std::string_view name, AxString& text) const
{
    Attribute const* const end = myDocument->attributesEnd(node);
    Attribute const* const found = std::find_if(myDocument->attributesBegin(node), end,
                                                [&](Attribute const& one) { return myDocument->name(one) == name; });
    if (found == end)
    {
        return nullptr;
    }
    text = AxString(myDocument->value(*found));
    return &text;
}

void AxXmlReader::readItems(AxReaderWriter& rw, Element const& element, AxFilenameList const& files,
                            AxBindingsList const& bindings)
{
    AxReadFrame frame(rw);
    AxReaderWriterRegistry& registry = *rw.registry();
    AxReaderWriterRegistry const* const known = element.guide ? element.guide->registryIfAny() : nullptr;
    bool const isSame = element.guide == &rw ||
                        (known && known->myShape == registry.myShape && !known->myOwn && !registry.myOwn &&
                         AxReaderWriterFactory::functionsOf(rw) == AxReaderWriterFactory::functionsOf(*element.guide));
    Record record{rw,     element, frame,    AxReaderWriterFactory::typeInfo(rw), registry, registry.table(),
                  isSame, files,   &bindings};
    addAttributes(record);
    addChildren(record);
    offerItems(record);
    for (Item& item : record.items)
    {
        if (item.isTaken)
        {
            continue;
        }
        if (item.attribute)
        {
            readAttribute(record, item);
        }
        else
        {
            readChild(record, item);
        }
    }
}

/// What a data hook takes comes before the members.
void AxXmlReader::addAttributes(Record& record) const
{
    constexpr std::size_t none = AxRegistryTable::none;
    Document const& document = *myDocument;
    std::uint32_t const node = record.element.node;
    auto const& slots = record.table.slots;
    bool const isAny = document.tag(node) == AxTreeCells::theAnyTag;
    std::size_t expected = 0;
    std::ptrdiff_t leading = 0;
    Attribute const* const end = document.attributesEnd(node);
    record.items.reserve(static_cast<std::size_t>(end - document.attributesBegin(node)) + 8);
    for (Attribute const* one = document.attributesBegin(node); one != end; ++one)
    {
        std::string_view const keyword = document.name(*one);
        if (keyword == theName || (isAny && keyword == theType))
        {
            continue;
        }
        std::size_t place = none;
        // Members that are no attributes stand between those that are.
        for (std::size_t at = expected; at < std::min(expected + 4, slots.size()); ++at)
        {
            if (slots[at].word.size() == keyword.size() && axSameBytes(keyword.data(), slots[at].word))
            {
                place = at;
                break;
            }
        }
        place = place != none ? place : placeOf(record.table, keyword);
        expected = place != none ? place + 1 : expected;
        if (record.leads(keyword, place))
        {
            record.items.emplace(record.items.begin() + leading++, one, node, 0, place);
        }
        else
        {
            record.items.emplace_back(one, node, 0, place);
        }
    }
}

void AxXmlReader::addChildren(Record& record)
{
    Document const& document = *myDocument;
    std::uint32_t const next = document.node(record.element.node).next;
    std::uint32_t position = 0;
    for (std::uint32_t node = record.element.node + 1; node < next; node = document.node(node).next, ++position)
    {
        if (document.node(node).kind != Kind::Element)
        {
            noteOdd(record.element);
            continue;
        }
        Attribute const* const name = document.nameOf(node); // not coded
        std::string_view const keyword = name ? document.rawValue(*name) : document.tag(node);
        bool const isText = document.tag(node) == AxTreeCells::theTextTag;
        record.items.emplace_back(nullptr, node, position,
                                  isText ? AxRegistryTable::none : placeOf(record.table, keyword));
    }
}

/// A class takes its own items before any member is read.
void AxXmlReader::offerItems(Record& record)
{
    auto* const ownItem = record.ownItem();
    if (!ownItem)
    {
        return;
    }
    std::size_t index = 0;
    if (record.info.ops->leadHead)
    {
        record.items[index++].isTaken = true; // as `hasLead` found
    }
    for (; index < record.items.size(); ++index)
    {
        Item& item = record.items[index];
        if (item.place == AxRegistryTable::none)
        {
            makeCell(record, item);
            item.isTaken = !item.cell->isEof() && offer(record, item, index);
        }
    }
}

bool AxXmlReader::offer(Record& record, Item& item, std::size_t index)
{
    if (record.bindings != &record.extended)
    {
        record.extended = *record.bindings;
        record.bindings = &record.extended;
    }
    item.isOffered = true;
    return record.ownItem()(record.rw, item.cell.get(), index, record.extended);
}

void AxXmlReader::makeCell(Record const& record, Item& item) const
{
    if (!item.cell.nil())
    {
        return;
    }
    Document const& document = *myDocument;
    if (!item.attribute)
    {
        item.cell = cellOf(record.element, item.node);
        return;
    }
    std::string_view const keyword = document.name(*item.attribute);
    item.cell = AxTreeCells::attributeItem(AxSymbolString(keyword), document.value(*item.attribute),
                                           cellPlace(document.placeOf(*item.attribute)), record.guided(keyword));
}

void AxXmlReader::readAttribute(Record& record, Item& item)
{
    std::size_t const place = item.place;
    if (place != AxRegistryTable::none && Record::isNoted(place) && !record.wasSeen(place) &&
        (record.isOwnGuide || !record.element.guide) && !item.attribute->isCoded)
    {
        AxRegistryTable::Slot const& slot = record.table.slots[place];
        AxReaderWriter& member = *record.registry.at(slot.distance);
        if (AxXmlValue::readAttribute(member, slot.readingOf(member), myDocument->rawValue(*item.attribute),
                                      record.isOwnGuide))
        {
            record.note(place);
            return;
        }
    }
    readCell(record, item);
}

void AxXmlReader::readCell(Record& record, Item& item)
{
    makeCell(record, item);
    if (item.cell->isEof() || (record.ownItem() && !item.isOffered && offer(record, item, 1)))
    {
        return;
    }
    record.rw.readItem(item.cell.get(), record.frame, record.files, *record.bindings);
}

void AxXmlReader::readChild(Record& record, Item& item)
{
    Document const& document = *myDocument;
    std::string_view const tag = document.tag(item.node);
    Attribute const* const name = document.nameOf(item.node); // not coded
    Element child{item.node, item.position, nullptr, {}, &record.element};
    AxReaderWriter* const member =
        item.place != AxRegistryTable::none ? record.registry.at(record.table.slots[item.place].distance) : nullptr;
    if (member && Record::isNoted(item.place) && !record.wasSeen(item.place))
    {
        AxReaderWriter const* const known =
            record.isOwnGuide ? member : record.guided(name ? document.rawValue(*name) : tag);
        child.guide = known ? known : modelOf(item.node);
        if ((known || (name && tag != AxTreeCells::theAnyTag)) && readMember(record, item.place, child))
        {
            record.note(item.place);
            return;
        }
    }
    readCell(record, item);
    bool const isText = tag == AxTreeCells::theTextTag;
    if (!member && item.cell->isEof())
    {
        noteOdd(record.element);
    }
    else if (!isText && (!member || isOdd(*member, item.node)))
    {
        noteOdd(record.element, item.position);
    }
}

bool AxXmlReader::readMember(Record& record, std::size_t place, Element const& child)
{
    AxRegistryTable::Slot const& slot = record.table.slots[place];
    AxReaderWriter& member = *record.registry.at(slot.distance);
    Reading const reading = slot.readingOf(member);
    if (reading == Reading::Record || reading == Reading::List)
    {
        Element inner = child;
        inner.head = slot.keyword;
        return !member.flag(AxReaderWriter::FileBacked) && readElement(member, inner, record.files, *record.bindings);
    }
    bool const isValue = !child.guide || (child.guide->isValue() && !child.guide->property());
    if ((reading != Reading::Vector && reading != Reading::ObjectType) || !isValue ||
        myDocument->node(child.node).next != child.node + 1)
    {
        return false;
    }
    Attribute const* const begin = myDocument->attributesBegin(child.node);
    Attribute const* const end = myDocument->attributesEnd(child.node);
    Attribute const* value = nullptr;
    for (Attribute const* one = begin; one != end; ++one)
    {
        std::string_view const keyword = myDocument->name(*one);
        if (keyword == theValue && !one->isCoded)
        {
            value = one;
        }
        else if (keyword != theName)
        {
            return false;
        }
    }
    if (!value)
    {
        return false;
    }
    return AxXmlValue::readElement(member, reading, myDocument->rawValue(*value));
}
