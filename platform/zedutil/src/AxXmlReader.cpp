#include "AxXmlReader.h"

#include "AxNumberText.h"
#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxRegistryShape.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwList.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwUnsigned.h"
#include "AxRwVector.h"
#include "AxTreeCells.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace
{
using Document = AxXmlDocument;
using Kind = AxXmlDocument::Kind;

constexpr std::string_view theName = "name";
constexpr std::string_view theValue = "value";
constexpr std::string_view theVariable = "variable";
constexpr std::string_view theType = "type";

bool isDigit(char byte)
{
    return static_cast<unsigned char>(byte - '0') < 10;
}

bool isLetter(char byte)
{
    return static_cast<unsigned char>((byte | ' ') - 'a') < 26;
}

/// A word that is a string in every reading of an attribute.
bool isPlainWord(std::string_view text)
{
    return !text.empty() && isLetter(text.front()) && text != "inf" && text != "nan" &&
           std::all_of(text.begin(), text.end(),
                       [](char byte) { return isLetter(byte) || isDigit(byte) || byte == '-' || byte == '_'; });
}

/// Whether an attribute may be anything but the literal text that it looks like.
bool mayRefer(std::string_view text)
{
    return !text.empty() && (text.front() == '$' || text.find("$(") != std::string_view::npos);
}

std::string_view trimmed(std::string_view text)
{
    while (text.starts_with(' '))
    {
        text.remove_prefix(1);
    }
    while (text.ends_with(' '))
    {
        text.remove_suffix(1);
    }
    return text;
}

/// Plain decimal digits, few enough to be exact however they are read.
bool wholeOf(std::string_view text, long long low, long long& value)
{
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && text.size() < 10 && value >= low;
}

bool realsOf(std::string_view text, double (&values)[3])
{
    for (double& value : values)
    {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        std::string_view const word = text.substr(0, text.find(' '));
        if (word.empty() || !(isDigit(word.front()) || word.front() == '-') || !axParseReal(word, value))
        {
            return false;
        }
        text.remove_prefix(word.size());
    }
    return text.find_first_not_of(' ') == std::string_view::npos;
}

bool objectTypeOf(std::string_view text, AxObjectType& type)
{
    bool const isPlain =
        text.find(':') != std::string_view::npos &&
        std::all_of(text.begin(), text.end(), [](char byte) { return isDigit(byte) || byte == ':' || byte == '-'; });
    return isPlain && AxObjectType::fromString(text, type);
}

std::size_t placeOf(AxRegistryTable const& table, std::string_view keyword)
{
    AxSymbolString const symbol = AxSymbolString::find(keyword);
    return symbol.isNull() ? AxRegistryTable::none : table.find(symbol);
}

AxlCellPool::Place cellPlace(Document::Place place)
{
    return {place.line, place.column};
}
} // namespace

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
    std::size_t index = 0;

    auto* ownItem() const { return info.ops ? info.ops->ownItem : nullptr; }
    /// Whether the item to come is the type item of a class that has one.
    bool isAtLead() const { return index == 0 && ownItem() && info.ops->leadHead; }
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
    myRoot.object = object;
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
    if (!readElement(rw, element, files, bindings))
    {
        noteOdd(element);
        rw.getSelf(AxTreeCells::expression(*objectOf(element), element.head, element.guide), files, bindings);
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
    return AxTreeCells::expression(*objectOf(*myElement), myElement->head, myElement->guide);
}

std::string_view AxXmlReader::elementHead() const
{
    std::string_view const head = myElement->head.view();
    return myElement->head.isBareWord() && isPlainWord(head) ? head : std::string_view();
}

std::string_view AxXmlReader::elementType(std::string_view wanted) const
{
    std::uint32_t const node = myElement->node;
    Attribute const* const end = myDocument->attributesEnd(node);
    for (Attribute const* one = myDocument->attributesBegin(node); one != end; ++one)
    {
        std::string_view const keyword = myDocument->name(*one);
        if (keyword == theValue || keyword == theVariable)
        {
            return {};
        }
        bool const isGuided = myElement->guide && AxTreeCells::memberFor(myElement->guide, AxString(keyword));
        if (keyword == theName || keyword == theType || isGuided || (!myElement->guide && !keyword.ends_with("-type")))
        {
            continue;
        }
        std::string_view const text = myDocument->rawValue(*one);
        bool const isWanted = wanted.empty() || keyword == wanted;
        return isWanted && isPlainWord(text) ? text : std::string_view();
    }
    return {};
}

AxEnvObjectPtr const& AxXmlReader::objectOf(Element const& element) const
{
    if (!element.object)
    {
        element.object =
            boost::static_pointer_cast<AxEnvObject>(objectOf(*element.outer)->children()[element.position]);
    }
    return element.object;
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
        bool const isForm = keyword == theValue || keyword == theVariable;
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
        if (document.tag(child) == AxTreeCells::theTextTag ||
            (name && (name->isCoded || document.rawValue(*name).starts_with('$'))))
        {
            return false;
        }
    }
    return true;
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
        if (document.node(node).kind == Kind::Text)
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
            AxlObjPtr const cell = AxTreeCells::childItem(*objectOf(child), *objectOf(element), element.guide);
            list.readElement(cell.get(), frame, files, bindings);
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
    readAttributes(record);
    Document const& document = *myDocument;
    std::uint32_t const next = document.node(element.node).next;
    std::uint32_t position = 0;
    for (std::uint32_t node = element.node + 1; node < next; node = document.node(node).next, ++position)
    {
        if (document.node(node).kind != Kind::Element)
        {
            noteOdd(element);
            continue;
        }
        readChild(record, node, position);
    }
}

/// What a data hook takes comes before the members.
void AxXmlReader::readAttributes(Record& record)
{
    constexpr std::size_t none = AxRegistryTable::none;
    struct Plan
    {
        Attribute const* attribute;
        std::size_t place;
        bool leads;
    };
    Document const& document = *myDocument;
    auto const& slots = record.table.slots;
    bool const isAny = document.tag(record.element.node) == AxTreeCells::theAnyTag;
    std::size_t expected = 0;
    Attribute const* const end = document.attributesEnd(record.element.node);
    std::vector<Plan> plans;
    for (Attribute const* one = document.attributesBegin(record.element.node); one != end; ++one)
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
            if (slots[at].keyword.view() == keyword)
            {
                place = at;
                break;
            }
        }
        place = place != none ? place : placeOf(record.table, keyword);
        expected = place != none ? place + 1 : expected;
        plans.push_back({one, place, record.leads(keyword, place)});
    }
    for (bool const leads : {true, false})
    {
        for (Plan const& plan : plans)
        {
            if (plan.leads == leads)
            {
                readAttribute(record, *plan.attribute, plan.place);
            }
        }
    }
}

void AxXmlReader::readAttribute(Record& record, Attribute const& attribute, std::size_t place)
{
    Document const& document = *myDocument;
    std::string_view const keyword = document.name(attribute);
    if (record.isAtLead() && keyword == record.info.ops->leadHead && !attribute.isCoded &&
        isPlainWord(document.rawValue(attribute)))
    {
        ++record.index;
        return;
    }
    if (place != AxRegistryTable::none && !record.isAtLead() && Record::isNoted(place) && !record.wasSeen(place) &&
        (record.isOwnGuide || !record.element.guide))
    {
        AxRegistryTable::Slot const& slot = record.table.slots[place];
        AxReaderWriter& member = *record.registry.at(slot.distance);
        if (readScalar(member, slot.readingOf(member), attribute, record.isOwnGuide))
        {
            record.note(place);
            ++record.index;
            return;
        }
    }
    readCell(record, AxTreeCells::attributeItem(AxSymbolString(keyword), document.value(attribute),
                                                cellPlace(document.placeOf(attribute)), record.guided(keyword)));
}

void AxXmlReader::readCell(Record& record, AxlObjPtr const& cell)
{
    std::size_t const index = record.index++;
    if (auto* const ownItem = record.ownItem())
    {
        if (record.bindings != &record.extended)
        {
            record.extended = *record.bindings;
            record.bindings = &record.extended;
        }
        if (ownItem(record.rw, cell.get(), index, record.extended))
        {
            return;
        }
    }
    record.rw.readItem(cell.get(), record.frame, record.files, *record.bindings);
}

bool AxXmlReader::readScalar(AxReaderWriter& member, Reading reading, Attribute const& attribute, bool isGuided)
{
    std::string_view const text = myDocument->rawValue(attribute);
    if (attribute.isCoded || mayRefer(text))
    {
        return false;
    }
    // Only what is to be a number is freed of its blanks.
    std::string_view const word = isGuided ? trimmed(text) : text;
    long long whole = 0;
    switch (reading)
    {
    case Reading::Real:
    {
        double value = 0.0;
        if (!axParseReal(word, value))
        {
            return false;
        }
        static_cast<AxRwReal&>(member).takeRead(std::move(value));
        return true;
    }
    case Reading::Int:
        if (!wholeOf(word, std::numeric_limits<int>::min(), whole))
        {
            return false;
        }
        static_cast<AxRwInt&>(member).takeRead(static_cast<int>(whole));
        return true;
    case Reading::Unsigned:
        if (!wholeOf(word, 0, whole))
        {
            return false;
        }
        static_cast<AxRwUnsigned&>(member).takeRead(static_cast<unsigned>(whole));
        return true;
    case Reading::Boolean:
    {
        bool const value = text == "true" || text == "True";
        if (!value && text != "false" && text != "False")
        {
            return false;
        }
        static_cast<AxRwBoolean&>(member).takeRead(bool(value));
        return true;
    }
    case Reading::String:
        if (!isGuided && !text.empty() && !isLetter(text.front()))
        {
            return false; // it may be a number
        }
        if (!isGuided && (text == "inf" || text == "nan"))
        {
            return false;
        }
        static_cast<AxRwString&>(member).takeRead(AxSharedText(text));
        return true;
    default:
        return false;
    }
}

void AxXmlReader::readChild(Record& record, std::uint32_t node, std::uint32_t position)
{
    Document const& document = *myDocument;
    std::string_view const tag = document.tag(node);
    Attribute const* const name = document.nameOf(node); // not coded
    std::string_view const keyword = name ? document.rawValue(*name) : tag;
    Element child{node, position, nullptr, {}, &record.element};
    bool isMember = false; // for the guide
    std::size_t place = placeOf(record.table, keyword);
    if (record.isOwnGuide)
    {
        isMember = place != AxRegistryTable::none;
        child.guide = isMember ? record.registry.at(record.table.slots[place].distance) : nullptr;
    }
    else
    {
        child.guide = record.guided(keyword);
        isMember = child.guide != nullptr;
        child.guide = isMember ? child.guide : modelOf(node);
    }
    bool const isKnown = isMember || (!record.isOwnGuide && name && tag != AxTreeCells::theAnyTag);
    if (isKnown && place != AxRegistryTable::none && Record::isNoted(place) && !record.wasSeen(place) &&
        !record.isAtLead() && readMember(record, place, child))
    {
        record.note(place);
        ++record.index;
        return;
    }
    AxlObjPtr const cell = AxTreeCells::childItem(*objectOf(child), *objectOf(record.element), record.element.guide);
    AxReaderWriter const* const member =
        place != AxRegistryTable::none ? record.registry.at(record.table.slots[place].distance) : nullptr;
    if (!member || !member->isValue())
    {
        noteOdd(record.element, position);
    }
    if (!cell.nil())
    {
        readCell(record, cell);
    }
    else if (!member)
    {
        noteOdd(record.element);
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
    if (reading == Reading::Vector)
    {
        double xyz[3] = {};
        if (!realsOf(myDocument->rawValue(*value), xyz))
        {
            return false;
        }
        static_cast<AxRwVector&>(member).takeRead(AxVector64(xyz[0], xyz[1], xyz[2]));
        return true;
    }
    AxObjectType type;
    if (!objectTypeOf(myDocument->rawValue(*value), type))
    {
        return false;
    }
    static_cast<AxRwObjectType&>(member).takeRead(AxObjectType(type));
    return true;
}
