#include "AxTreeCells.h"

#include "AxCharacters.h"
#include "AxDiagnostic.h"
#include "AxNumberText.h"
#include "AxReaderWriterFactory.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxRwProperty.h"
#include "AxRwString.h"
#include "AxlCellPool.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"
#include "AxlSyntaxError.h"

#include <algorithm>
#include <map>
#include <memory>

namespace
{
using Cells = std::vector<AxlObjPtr>;
using Place = AxlCellPool::Place;

Place placeOf(AxEnvValue const& node)
{
    return {node.line(), node.column()};
}

AxlObjPtr listOf(Cells const& items, Place place)
{
    AxlObjPtr list;
    for (auto item = items.rbegin(); item != items.rend(); ++item)
    {
        list = AxlCellPool::adopt(
            AxlCellPool::newPair(AxlCellPool::share(item->get()), AxlCellPool::share(list.get()), place));
    }
    return list;
}

/// A copy of what was read from a text of its own.
AxlObjPtr placed(AxlObj const* cell, Place place)
{
    switch (cell->tag())
    {
    case AxlObj::Tag::Pair:
    {
        Cells items;
        for (; cell->isPair(); cell = cell->cdr())
        {
            items.push_back(placed(cell->car(), place));
        }
        return listOf(items, place);
    }
    case AxlObj::Tag::Symbol:
        return AxlCellPool::adopt(AxlCellPool::newSymbol(cell->symbol(), place));
    case AxlObj::Tag::String:
        return AxlCellPool::adopt(AxlCellPool::newString(cell->text(), place));
    case AxlObj::Tag::Number:
        return AxlCellPool::adopt(
            AxlCellPool::newSpelledNumber(cell->flonum(), cell->isInteger(), cell->pname().string(), place));
    default:
        return AxlObjPtr(cell);
    }
}

/// A name as it would stand in a text.
AxlObjPtr nameCell(AxSymbolString name, Place place)
{
    return AxlCellPool::adopt(name.isBareWord() ? AxlCellPool::newSymbol(name, place)
                                                : AxlCellPool::newString(name.view(), place));
}

AxlObjPtr textCell(std::string_view text, Place place)
{
    return AxlCellPool::adopt(AxlCellPool::newString(text, place));
}

void appendParsed(Cells& items, std::string_view text, Place place)
{
    try
    {
        AxlObjPtr const read = AxTreeCells::parsed(text);
        for (AxlObj const* rest = read.get(); rest->isPair(); rest = rest->cdr())
        {
            items.push_back(placed(rest->car(), place));
        }
    }
    catch (AxlSyntaxError const&)
    {
        items.push_back(textCell(text, place)); // whoever reads it refuses it and says where
    }
}

std::string_view trimmed(std::string_view text)
{
    std::size_t const first = text.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

bool isTextKind(AxReaderWriter const* member)
{
    return dynamic_cast<AxRwString const*>(member) || dynamic_cast<AxReaderWriterFile const*>(member);
}

bool isProperty(AxEnvObject const& object, AxReaderWriter const* guide)
{
    return guide ? guide->property() != nullptr : object.type() == "property" && object.attribute("type");
}

/// The null type stands as an empty value, which as a text would be a fault.
bool isNullType(AxEnvObject const& object)
{
    AxString const* const value = object.attribute("value");
    return (object.type() == "objectType" || object.type() == "entityType") && value && axIsBlank(value->string());
}

std::unique_ptr<AxReaderWriter> modelFor(AxEnvObject const& object)
{
    return AxTreeCells::modelOf(object.type(), object.attribute("type"));
}

AxSymbolString headFor(AxEnvObject const& object)
{
    return AxTreeCells::elementHead(object.type(), object.hasName() ? &object.name() : nullptr,
                                    object.attribute("type"));
}

AxlObjPtr valueCell(std::string_view text, Place place, AxReaderWriter const* member)
{
    if (text.size() > 1 && text.front() == '$' && !text.starts_with("$(") && !text.starts_with("$$("))
    {
        return text[1] == '$' ? textCell(text.substr(1), place)
                              : AxlCellPool::adopt(AxlCellPool::newSymbol(AxSymbolString(text), place));
    }
    std::string_view const word = member ? trimmed(text) : text;
    double number = 0.0;
    if (axParseReal(word, number) && !isTextKind(member))
    {
        bool const isInteger = word.find_first_of(".eE") == std::string_view::npos;
        return AxlCellPool::adopt(AxlCellPool::newSpelledNumber(number, isInteger, word, place));
    }
    if (AxTreeCells::isNumeral(word) && !isTextKind(member))
    {
        return placed(AxTreeCells::parsed(word)->car(), place);
    }
    return textCell(text, place);
}

/// Items with a keyword that others may be put behind.
class ItemList
{
public:
    void add(AxlObjPtr const& item) { myItems.push_back(item); }
    /// Behind the item of `after` and those that were put there before; in front for the empty text.
    void add(AxlObjPtr const& item, AxString const& after)
    {
        if (after.isNull())
        {
            myItems.insert(myItems.begin() + myLeading++, item);
            return;
        }
        auto place = std::find_if(myItems.begin(), myItems.end(),
                                  [&after](AxlObjPtr const& one) { return one->car()->text() == after.string(); });
        if (place != myItems.end())
        {
            place += 1 + myBehind[after]++;
        }
        myItems.insert(place, item);
    }
    Cells& items() { return myItems; }
    void endLeading() { myLeading = static_cast<std::ptrdiff_t>(myItems.size()); }

private:
    Cells myItems;
    std::ptrdiff_t myLeading = 0;
    std::map<AxString, std::ptrdiff_t> myBehind;
};

void appendValue(Cells& items, AxEnvObject const& object)
{
    AxEnvValuePtr const node = object.attributeNode("value");
    if (!isNullType(object))
    {
        appendParsed(items, node->value().string(), placeOf(object));
    }
}

/// Whether attributes that no member takes are items; those of lists and values are not.
bool hasItemAttributes(AxEnvObject const& object, AxReaderWriter const* guide)
{
    std::string const& tag = object.type().string();
    return guide ? !guide->isValue()
                 : tag != AxTreeCells::theAnyListTag && tag != AxTreeCells::theAttributesTag &&
                       tag != AxTreeCells::theObjectTypesTag && tag != "objectType" && tag != "entityType";
}

Cells itemsOf(AxEnvObject const& object, AxReaderWriter const* guide)
{
    using namespace AxTreeCells;
    ItemList list;
    guide = inlined(object, const_cast<AxReaderWriter*>(guide));
    std::unique_ptr<AxReaderWriter> model;
    if (isProperty(object, guide))
    {
        AxString const* const type = object.attribute("type");
        list.add(nameCell(AxSymbolString(type ? *type : AxString()), placeOf(object)));
        model.reset(AxReaderWriter::factory()->createItem(type ? *type : AxString(), AxString(), nullptr));
        guide = model.get();
    }
    for (char const* const form : {"variable", "value"})
    {
        if (object.attribute(form) && isOfForm(object, form, guide))
        {
            if (AxString(form) == "variable")
            {
                appendParsed(list.items(), object.attribute(form)->string(), placeOf(object));
                break;
            }
            appendValue(list.items(), object);
        }
    }
    list.endLeading();
    bool const takesAttributes = hasItemAttributes(object, guide);
    bool const isList = dynamic_cast<AxRwList const*>(guide) != nullptr;
    // What a data hook takes comes before the members.
    for (bool const isLeading : {true, false})
    {
        for (AxEnvObject::Attribute const& attribute : object.attributes())
        {
            AxReaderWriter const* const member = memberFor(guide, attribute.name);
            bool const leads = !member && (guide || attribute.name.string().ends_with("-type"));
            if (takesAttributes && leads == isLeading && (member || !isList) &&
                !isOfForm(object, attribute.name, guide))
            {
                list.add(attributeItem(object, attribute, member));
            }
        }
        if (isLeading)
        {
            list.endLeading();
        }
    }
    for (AxEnvValuePtr const& child : object.children())
    {
        AxlObjPtr const item = childItem(*child, object, guide);
        if (item->isEof())
        {
            continue;
        }
        AxEnvObject const& element = static_cast<AxEnvObject const&>(*child);
        AxString const* const after = element.type() == theTextTag ? element.attribute("after") : nullptr;
        if (after)
        {
            list.add(item, *after);
        }
        else
        {
            list.add(item);
        }
    }
    return std::move(list.items());
}

AxlObjPtr itemWith(AxlObjPtr const& head, Cells items, Place place)
{
    items.insert(items.begin(), head);
    return listOf(items, place);
}

AxlObjPtr textItem(AxEnvObject const& object)
{
    std::string text;
    for (AxEnvValuePtr const& part : object.children())
    {
        text += part->isList() ? std::string() : part->value().string();
    }
    Cells items;
    appendParsed(items, text, placeOf(object));
    return items.size() == 1 ? items.front() : axcEof();
}
} // namespace

AxlObjPtr AxTreeCells::parsed(std::string_view text)
{
    // What is first here was not first in its file: behind a blank no byte-order mark is looked for.
    AxlInputStream stream(std::string(1, ' ').append(text));
    Cells items;
    for (AxlObjPtr cell = AxcRead(stream); !cell->isEof(); cell = AxcRead(stream))
    {
        items.push_back(cell);
    }
    return listOf(items, Place{0, 0});
}

std::string AxTreeCells::printed(AxlObj const* cell)
{
    std::string text;
    axAppendCell(text, cell);
    return text;
}

std::string AxTreeCells::xmlItem(std::string const& xml)
{
    return printed(AxcCons(AxcSymbol(theXmlHead), AxcCons(AxcString(xml), axcNil())).get());
}

bool AxTreeCells::isNumeral(std::string_view word)
{
    bool const isSigned = word.starts_with('-') || word.starts_with('+');
    std::string_view const body = word.substr(isSigned ? 1 : 0);
    return body == "inf" || (body == "nan" && !word.starts_with('+')) || axIsNumber(word);
}

AxlObjPtr AxTreeCells::cellIn(AxString const& text)
{
    try
    {
        AxlObjPtr const cells = parsed(text.string());
        return cells->cdr()->isPair() ? AxlObjPtr() : cells;
    }
    catch (AxlSyntaxError const&)
    {
        return {};
    }
}

AxReaderWriter* AxTreeCells::memberFor(AxReaderWriter const* record, AxString const& keyword)
{
    AxReaderWriterRegistry const* const members = record && !record->isValue() ? record->registryIfAny() : nullptr;
    AxSymbolString const symbol = members ? AxSymbolString::find(keyword.string()) : AxSymbolString();
    return symbol.isNull() ? nullptr : members->find(symbol);
}

AxReaderWriter* AxTreeCells::memberFor(AxReaderWriter const* record, AxEnvObject const& child)
{
    AxReaderWriter* const named = memberFor(record, child.name());
    return named || child.hasName() ? named : memberFor(record, child.type());
}

bool AxTreeCells::isOfForm(AxEnvObject const& object, AxString const& attribute, AxReaderWriter const* guide)
{
    std::string const& text = object.attribute(attribute)->string();
    if (attribute == "type")
    {
        return object.type() == theAnyTag || isProperty(object, guide) || object.type() == "property" ||
               object.type() == "variable";
    }
    if (memberFor(guide, attribute))
    {
        return false;
    }
    return attribute == "value" || (attribute == "variable" && (text.starts_with('$') || text.starts_with("($")));
}

AxlObjPtr AxTreeCells::attributeCell(std::string_view text, AxEnvValue const& place, AxReaderWriter const* member)
{
    return valueCell(text, placeOf(place), member);
}

AxlObjPtr AxTreeCells::attributeItem(AxSymbolString name, std::string_view text, Place place,
                                     AxReaderWriter const* member)
{
    return listOf({nameCell(name, place), valueCell(text, place, member)}, place);
}

AxlObjPtr AxTreeCells::attributeItem(AxEnvObject const& object, AxEnvObject::Attribute const& attribute,
                                     AxReaderWriter const* member)
{
    bool const isPlaced = attribute.value->line() != 0;
    AxEnvValue const& place = isPlaced ? *attribute.value : static_cast<AxEnvValue const&>(object);
    return attributeItem(AxSymbolString(attribute.name), attribute.value->value().string(), placeOf(place), member);
}

std::unique_ptr<AxReaderWriter> AxTreeCells::modelOf(AxString const& tag, AxString const* type)
{
    AxReaderWriterFactory* const factory = AxReaderWriter::factory();
    AxString const* const named = tag == theAnyTag ? type : nullptr;
    // Without a type these tags stand for many.
    if (!named && (tag == theAnyTag || tag == theAnyListTag))
    {
        return {};
    }
    AxString const known = named ? *named : factory->mapXmlToRwType(tag);
    std::unique_ptr<AxReaderWriter> model(known.isNull() ? nullptr : factory->createItem(known, AxString(), nullptr));
    return model && !named && !(tag == model->xmlType()) ? nullptr : std::move(model);
}

AxSymbolString AxTreeCells::elementHead(AxString const& tag, AxString const* name, AxString const* type)
{
    bool const isByType = tag == theAnyTag && type && (!name || AxReaderWriter::factory()->knowsType(*type));
    return isByType ? AxSymbolString(*type) : name ? AxSymbolString(*name) : AxSymbolString();
}

bool AxTreeCells::isPartOfValue(std::string_view parent, std::string_view tag)
{
    return (parent == theAttributesTag && tag == "attribute") || (parent == theObjectTypesTag && tag == "objectType");
}

bool AxTreeCells::isElement(AxReaderWriter const& list, std::string_view tag, bool isNamed)
{
    std::string_view const plural = list.xmlType();
    if (tag == theAnyTag || plural == theAnyListTag || !plural.ends_with('s'))
    {
        return isNamed || tag == theAnyTag || plural != theAnyListTag;
    }
    return plural == "properties" ? tag == "property" : tag == plural.substr(0, plural.size() - 1);
}

AxReaderWriter* AxTreeCells::inlined(AxEnvObject const& object, AxReaderWriter* guide)
{
    auto const* const file = dynamic_cast<AxReaderWriterFile const*>(guide);
    bool const isNamed = !file || object.type() == file->xmlType() || object.attribute("value") ||
                         object.attribute("variable") || object.type() == theTextTag;
    return isNamed || !file->content() ? guide : file->content();
}

bool AxTreeCells::hasItem(AxEnvValue const& child, AxEnvObject const& parent, AxReaderWriter const* guide)
{
    AxEnvObject const* const object = child.isObject() ? static_cast<AxEnvObject const*>(&child) : nullptr;
    if (!object || object->isReserved())
    {
        return false;
    }
    std::string const& tag = object->type().string();
    if (tag == theTextTag)
    {
        return !textItem(*object)->isEof();
    }
    if (isPartOfValue(parent.type().string(), tag))
    {
        return true;
    }
    if (memberFor(guide, *object))
    {
        return !isNullType(*object);
    }
    if (dynamic_cast<AxRwList const*>(guide))
    {
        return isElement(*guide, tag, object->hasName());
    }
    if (guide || object->hasName())
    {
        return !(guide && guide->isValue()) && !object->name().isNull();
    }
    return !headFor(*object).isNull() || parent.type() == tag + 's';
}

AxlObjPtr AxTreeCells::childItem(AxEnvValue const& child, AxEnvObject const& parent, AxReaderWriter const* guide)
{
    if (!hasItem(child, parent, guide))
    {
        return axcEof();
    }
    auto const& object = static_cast<AxEnvObject const&>(child);
    if (object.type() == theTextTag)
    {
        return textItem(object);
    }
    if (isPartOfValue(parent.type().string(), object.type().string()))
    {
        if (parent.type() == theObjectTypesTag)
        {
            Cells const items = itemsOf(object, nullptr);
            return items.size() == 1 ? items.front() : listOf(items, placeOf(child));
        }
        AxString const* const value = object.attribute("value");
        return listOf({textCell(object.name().string(), placeOf(child)),
                       attributeCell(value ? std::string_view(value->string()) : std::string_view(), child, nullptr)},
                      placeOf(child));
    }
    if (AxReaderWriter const* const member = memberFor(guide, object))
    {
        AxSymbolString const keyword(object.hasName() ? object.name() : object.type());
        return itemWith(nameCell(keyword, placeOf(child)), itemsOf(object, member), placeOf(child));
    }
    bool const isList = !guide || dynamic_cast<AxRwList const*>(guide);
    return expression(object, isList ? headFor(object) : AxSymbolString(object.name()), modelFor(object).get());
}

AxlObjPtr AxTreeCells::expression(AxEnvObject const& object, AxSymbolString name, AxReaderWriter const* guide)
{
    return itemWith(nameCell(name, placeOf(object)), itemsOf(object, guide), placeOf(object));
}
