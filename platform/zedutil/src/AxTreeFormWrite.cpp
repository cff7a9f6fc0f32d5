#include "AxCharacters.h"
#include "AxNLengthRealVector.h"
#include "AxReaderWriterFactory.h"
#include "AxReaderWriterFile.h"
#include "AxRegistryShape.h"
#include "AxRwAttributeList.h"
#include "AxRwElement.h"
#include "AxRwEntityType.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwObjectType.h"
#include "AxRwObjectTypeList.h"
#include "AxRwProperty.h"
#include "AxRwStringList.h"
#include "AxTreeCells.h"
#include "AxTreeForm.h"
#include "AxlFunctions.h"

#include <algorithm>
#include <unordered_set>

namespace
{
/// Whether a keyword may be an attribute. The others belong to the form of elements.
bool isAttributeName(std::string_view name)
{
    auto const isStart = [](char byte) { return axIsLetter(byte) || byte == '_'; };
    auto const isPart = [&isStart](char byte)
    { return isStart(byte) || axIsDigit(byte) || byte == '-' || byte == '.'; };
    return !name.empty() && isStart(name.front()) && std::all_of(name.begin(), name.end(), isPart) && name != "name" &&
           name != "value" && name != "type" && name != "variable" && !name.starts_with("xml");
}

/// The text of one value as an attribute. `exactly`: it must be read back as a cell of the same kind without anyone
/// knowing what is expected.
bool attributeText(AxlObj const* cell, bool exactly, std::string& out)
{
    if (cell->isNumber())
    {
        out = AxTreeCells::printed(cell);
        return true;
    }
    out = cell->text();
    if (cell->isSymbol())
    {
        return cell->isReference() || !exactly;
    }
    if (out.starts_with('$') && !out.starts_with("$(") && !out.starts_with("$$("))
    {
        out.insert(0, 1, '$');
    }
    return cell->isString() && !(exactly && AxTreeCells::isNumeral(out));
}

/// The text in parentheses, colons between the numbers; empty when there is anything else.
std::string joinedNumbers(AxlObj const* items)
{
    std::string text;
    for (; items->isPair(); items = items->cdr())
    {
        if (!items->car()->isNumber())
        {
            return {};
        }
        text += (text.empty() ? "" : ":") + AxTreeCells::printed(items->car());
    }
    return text;
}

std::string unquotedWords(AxlObj const* items)
{
    std::string text;
    for (char const* separator = ""; items->isPair(); items = items->cdr(), separator = " ")
    {
        AxlObj const* const cell = items->car();
        bool const isPlain = cell->isString() && AxSymbolString(cell->text()).isBareWord() &&
                             !cell->text().starts_with('$') && !AxTreeCells::isNumeral(cell->text());
        text += separator;
        text += isPlain ? std::string(cell->text()) : AxTreeCells::printed(cell);
    }
    return text;
}

/// An item as text, for what has no other shape. `after` tells what it stands behind where its place does not.
void writeAsText(AxlObj const* item, AxSymbolString const* after, AxEnvironmentPtr const& env,
                 AxEnvValuePtr const& node)
{
    AxString const keyword(item->car()->text());
    AxEnvObjectPtr const child = keyword.isNull() ? env->addUnnamedObject(AxTreeCells::theTextTag, node)
                                                  : env->addObject(keyword, AxTreeCells::theTextTag, node);
    if (child && after)
    {
        child->setAttribute("after", after->string());
    }
    env->addValue(AxString(AxTreeCells::printed(item)), child);
}

/// The XML that an item holds; null when it holds none.
AxlObj const* xmlIn(AxlObj const* item)
{
    AxlObj const* const xml = item->cdr()->car();
    bool const isXml = item->car()->text() == AxTreeCells::theXmlHead && xml->isString() && item->cdr()->cdr()->nil();
    return isXml ? xml : nullptr;
}

void writeKept(AxlObj const* item, AxSymbolString const* after, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    AxlObj const* const xml = xmlIn(item);
    AxEnvObjectPtr const object = node->castToObject();
    if (!xml || !object || !AxXmlFragment::addTo(AxString(xml->text()), *object))
    {
        writeAsText(item, after, env, node);
    }
}

/// The only element in the XML that an item holds, which may be the rest of one that is written; else null.
AxEnvObjectPtr restIn(AxlObj const* item)
{
    AxlObj const* const xml = xmlIn(item);
    AxEnvObjectPtr const root =
        xml && xml->text().starts_with('<') ? AxXmlFragment::parsed(AxString(xml->text())) : AxEnvObjectPtr();
    return root && root->count() == 1 ? root->children().front()->castToObject() : AxEnvObjectPtr();
}

/// The element of that name among the children.
AxEnvObjectPtr elementNamed(AxString const& name, AxEnvObject const& node)
{
    for (AxEnvValuePtr const& child : node.children())
    {
        AxEnvObjectPtr const object = child->castToObject();
        if (object && object->hasName() && object->name() == name && !(object->type() == AxTreeCells::theTextTag))
        {
            return object;
        }
    }
    return {};
}

void writeHookItem(AxlObj const* item, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    std::string text;
    AxlObj const* const values = item->cdr();
    if (item->car()->isSymbol() && isAttributeName(item->car()->text()) && values->isPair() && values->cdr()->nil() &&
        attributeText(values->car(), true, text))
    {
        env->addAttribute(AxString(item->car()->text()), AxString(text), node);
        return;
    }
    AxSymbolString const first;
    writeAsText(item, &first, env, node);
}

void writeBare(AxlObj const* cell, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    AxEnvValuePtr const value = env->getAttribute("value", node);
    std::string const before = value ? value->value().string() + ' ' : std::string();
    env->addAttribute("value", AxString(before + AxTreeCells::printed(cell)), node);
}
} // namespace

std::vector<AxTreeForm::Item> AxTreeForm::sortedItems(AxReaderWriter const& rw)
{
    std::unordered_multiset<std::string> kept;
    if (rw.flag(AxReaderWriter::KeepsItems))
    {
        for (AxKeptItem const& item : rw.rareOrNull()->kept)
        {
            kept.insert(AxTreeCells::printed(AxTreeCells::parsed(item.text)->car()));
        }
    }
    std::vector<Item> items;
    std::ptrdiff_t others = 0;
    AxSymbolString last;
    AxlObjPtr const text = AxTreeCells::parsed(rw.writtenText());
    for (AxlObj const* rest = text->car()->cdr(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const* const cell = rest->car();
        Item item{Item::Kind::Bare, AxlObjPtr(cell)};
        auto const keptPlace = kept.empty() ? kept.end() : kept.find(AxTreeCells::printed(cell));
        AxReaderWriter* const member = AxTreeCells::memberFor(&rw, AxString(cell->car()->text()));
        if (keptPlace != kept.end())
        {
            kept.erase(keptPlace);
            item.kind = Item::Kind::Kept;
            item.member = member;
            item.after = last;
        }
        else if (rw.flag(AxReaderWriter::VariableReference))
        {
            continue;
        }
        else if (cell->isPair())
        {
            item.kind = member ? Item::Kind::Member : Item::Kind::Hook;
            item.member = member;
            others += member ? 0 : 1;
        }
        if (member)
        {
            last = member->name();
        }
        items.push_back(std::move(item));
    }
    if (rw.flag(AxReaderWriter::List))
    {
        // Those of the data hook come first.
        auto const& list = static_cast<AxRwList const&>(rw);
        std::ptrdiff_t hooks = others - list.count();
        AxListItem const* element = list.first();
        for (Item& item : items)
        {
            if (item.kind == Item::Kind::Hook && --hooks < 0 && element)
            {
                item.kind = Item::Kind::Element;
                item.member = AxRwList::element(element);
                element = element->next();
            }
        }
    }
    return items;
}

AxReaderWriter const* AxTreeForm::inlineContent(AxReaderWriter const& rw, AxlObj const* written)
{
    auto const* const file = dynamic_cast<AxReaderWriterFile const*>(&rw);
    AxlObj const* const items = written->cdr();
    bool const isInPlace = file && !rw.flag(AxReaderWriter::VariableReference) && file->filename().isNull() &&
                           (items->nil() || items->car()->isPair());
    return isInPlace ? file->content() : nullptr;
}

void AxTreeForm::write(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& parent)
{
    AxlObjPtr const text = AxTreeCells::parsed(rw.writtenText());
    AxlObj const* const written = text->car();
    if (AxReaderWriter const* const content = inlineContent(rw, written))
    {
        writeContent(*content, env, env->addObject(rw.name().string(), AxString(content->xmlType()), parent));
        return;
    }
    if (rw.flag(AxReaderWriter::Scalar) && parent && parent->isObject())
    {
        if (rw.flag(AxReaderWriter::VariableReference))
        {
            rw.putVariableReference(env, parent);
            if (env->getAttribute(rw.name().string(), parent))
            {
                return;
            }
        }
        if (writeAttribute(rw, written->cdr(), env, parent))
        {
            return;
        }
        if (!written->cdr()->cdr()->nil() || written->cdr()->car()->isPair())
        {
            writeAsText(written, nullptr, env, parent);
            return;
        }
    }
    writeElement(rw, AxString(written->car()->text()), env, parent);
}

void AxTreeForm::writeElement(AxReaderWriter const& rw, AxString const& head, AxEnvironmentPtr const& env,
                              AxEnvValuePtr const& parent)
{
    AxString const tag(rw.xmlType());
    AxEnvObjectPtr const node = head.isNull() ? env->addUnnamedObject(tag, parent) : env->addObject(head, tag, parent);
    if (node)
    {
        writeContent(rw, env, node);
    }
}

bool AxTreeForm::writeAttribute(AxReaderWriter const& rw, AxlObj const* items, AxEnvironmentPtr const& env,
                                AxEnvValuePtr const& parent)
{
    std::string text;
    AxString const& keyword = rw.name().string();
    return isAttributeName(keyword.string()) && items->isPair() && items->cdr()->nil() &&
           attributeText(items->car(), false, text) && env->addAttribute(keyword, AxString(text), parent);
}

void AxTreeForm::writeContent(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    bool const isScalar = rw.flag(AxReaderWriter::Scalar);
    if (rw.flag(AxReaderWriter::VariableReference) && !isScalar)
    {
        rw.putVariableReference(env, node);
    }
    else
    {
        rw.putData(env, node);
    }
    if (!rw.flag(AxReaderWriter::Value))
    {
        writeMembers(rw, env, node);
    }
}

void AxTreeForm::writeMembers(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    if (rw.property() || (!rw.registryIfAny() && !rw.flag(AxReaderWriter::KeepsItems)))
    {
        return;
    }
    std::vector<Item> items = sortedItems(rw);
    for (Item& item : items)
    {
        AxEnvObjectPtr const rest = item.kind == Item::Kind::Kept ? restIn(item.cell.get()) : AxEnvObjectPtr();
        AxReaderWriter const* const value = rest ? AxTreeCells::memberFor(&rw, *rest) : nullptr;
        item.rest = value && value->isValue() ? rest : AxEnvObjectPtr();
    }
    auto const hasRest = [&items](AxReaderWriter const& member)
    {
        return std::any_of(items.begin(), items.end(),
                           [&](Item const& item)
                           { return item.rest && item.rest->name() == member.AxReaderWriter::name().string(); });
    };
    // Attributes are read before all children, whatever the order of the text.
    AxSymbolString lastAttribute;
    AxSymbolString lastChild;
    for (Item const& item : items)
    {
        if (item.kind == Item::Kind::Member && item.member->flag(AxReaderWriter::Scalar))
        {
            if (hasRest(*item.member) && item.member->isDue())
            {
                writeElement(*item.member, AxString(item.cell->car()->text()), env, node);
            }
            else
            {
                item.member->putSelf(env, node);
            }
            bool const isAttribute = env->getAttribute(item.member->name().string(), node) != nullptr;
            (isAttribute ? lastAttribute : lastChild) = item.member->name();
        }
    }
    AxSymbolString place = lastChild.isNull() ? lastAttribute : lastChild;
    for (Item const& item : items)
    {
        if (item.kind == Item::Kind::Member)
        {
            if (!item.member->flag(AxReaderWriter::Scalar))
            {
                item.member->putSelf(env, node);
                place = item.member->name();
            }
        }
        else if (item.kind == Item::Kind::Kept && !rw.flag(AxReaderWriter::List))
        {
            AxEnvObjectPtr const object = item.rest ? node->castToObject() : AxEnvObjectPtr();
            if (AxEnvObjectPtr const value = object ? elementNamed(item.rest->name(), *object) : AxEnvObjectPtr())
            {
                AxXmlFragment::addRest(*value, *item.rest);
                continue;
            }
            writeKept(item.cell.get(), item.member || item.after == place ? nullptr : &item.after, env, node);
            place = item.member ? item.member->name() : place;
        }
    }
}

void AxTreeForm::writeData(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    if (rw.property())
    {
        writeProperty(rw, env, node);
        return;
    }
    std::string text;
    if (rw.flag(AxReaderWriter::VariableReference))
    {
        text = rw.referenceText();
    }
    else
    {
        const_cast<AxReaderWriter&>(rw).putData(text, 0);
    }
    AxlObjPtr const items = AxTreeCells::parsed(text);
    if (rw.flag(AxReaderWriter::Value))
    {
        writeValue(rw, items.get(), env, node);
        return;
    }
    for (AxlObj const* rest = items.get(); rest->isPair(); rest = rest->cdr())
    {
        (rest->car()->isPair() ? writeHookItem : writeBare)(rest->car(), env, node);
    }
}

void AxTreeForm::writeValue(AxReaderWriter const& rw, AxlObj const* items, AxEnvironmentPtr const& env,
                            AxEnvValuePtr const& node)
{
    std::string text;
    if (dynamic_cast<AxRwObjectType const*>(&rw) || dynamic_cast<AxRwEntityType const*>(&rw))
    {
        text = joinedNumbers(items);
    }
    else if (dynamic_cast<AxRwObjectTypeList const*>(&rw))
    {
        for (; items->isPair(); items = items->cdr())
        {
            env->addAttribute("value", AxString(joinedNumbers(items->car())),
                              env->addUnnamedObject("objectType", node));
        }
        return;
    }
    else if (dynamic_cast<AxRwAttributeList<AxString> const*>(&rw) ||
             dynamic_cast<AxRwAttributeList<double> const*>(&rw))
    {
        for (; items->isPair(); items = items->cdr())
        {
            AxlObj const* const named = items->car();
            attributeText(named->cdr()->car(), false, text);
            env->addAttribute("value", AxString(text),
                              env->addObject(AxString(named->car()->text()), AxString("attribute"), node));
        }
        return;
    }
    else if (dynamic_cast<AxRwStringList const*>(&rw) || dynamic_cast<AxRwNLengthStringVector const*>(&rw))
    {
        text = unquotedWords(items);
    }
    env->addAttribute("value", AxString(text.empty() ? axWrittenItems(items) : text), node);
}

void AxTreeForm::writeProperty(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    AxRwProperty const& property = *rw.property();
    AxReaderWriter const* const value = property.rwValue();
    env->addAttribute("type", property.type(), node);
    if (value)
    {
        writeContent(*value, env, node);
    }
}

void AxTreeForm::writeReference(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    if (!rw.flag(AxReaderWriter::VariableReference))
    {
        return;
    }
    std::string const& written = rw.referenceText();
    if (rw.flag(AxReaderWriter::Scalar))
    {
        writeAttribute(rw, AxTreeCells::parsed(written).get(), env, node);
        return;
    }
    bool const isWhole = written.starts_with('$') || written.starts_with("($");
    env->addAttribute(isWhole ? "variable" : "value", AxString(written), node);
}

void AxTreeForm::writeElements(AxRwList const& list, AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    AxEnvObjectPtr value; // what was written last, if it is one
    for (Item const& item : sortedItems(list))
    {
        AxEnvObjectPtr const rest = value && item.kind == Item::Kind::Kept ? restIn(item.cell.get()) : AxEnvObjectPtr();
        if (rest && rest->type() == value->type() && rest->name() == value->name())
        {
            AxXmlFragment::addRest(*value, *rest);
            continue;
        }
        value.reset();
        switch (item.kind)
        {
        case Item::Kind::Bare:
            writeBare(item.cell.get(), env, node);
            break;
        case Item::Kind::Hook:
            writeHookItem(item.cell.get(), env, node);
            break;
        case Item::Kind::Element:
            value = writeElement(list, *item.member, AxSymbolString(item.cell->car()->text()), env, node);
            break;
        case Item::Kind::Kept:
            writeKept(item.cell.get(), nullptr, env, node);
            break;
        case Item::Kind::Member:
            break;
        }
    }
}

AxEnvObjectPtr AxTreeForm::writeElement(AxRwList const& list, AxReaderWriter const& element, AxSymbolString head,
                                        AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
{
    AxEnvListPtr const elements = node->castToList();
    std::size_t const before = elements ? elements->count() : 0;
    if (element.flag(AxReaderWriter::Scalar))
    {
        if (AxEnvObjectPtr const child = env->addObject(head.string(), AxString(element.xmlType()), node))
        {
            element.putData(env, child);
        }
    }
    else
    {
        element.putSelf(env, node);
    }
    bool const isOfManyTypes = AxString(list.xmlType()) == AxTreeCells::theAnyListTag;
    if (!elements || elements->count() != before + 1)
    {
        return {};
    }
    AxEnvObjectPtr const child = elements->children().back()->castToObject();
    AxReaderWriter const* const value = element.property() ? element.property()->rwValue() : &element;
    AxEnvObjectPtr const written = value && value->isValue() ? child : AxEnvObjectPtr();
    if (!isOfManyTypes)
    {
        return written;
    }
    bool const isType = AxReaderWriter::factory()->knowsType(head.string());
    child->setType(AxTreeCells::theAnyTag);
    child->setAttribute("type", isType ? head.string() : AxString(element.readerWriterType()));
    if (isType)
    {
        child->clearName();
    }
    return written;
}
