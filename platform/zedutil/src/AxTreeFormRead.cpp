#include "AxCharacters.h"
#include "AxDiagnostic.h"
#include "AxRegistryShape.h"
#include "AxRwProperty.h"
#include "AxTreeCells.h"
#include "AxTreeForm.h"
#include "AxXmlReader.h"
#include "AxlFunctions.h"

#include <algorithm>
#include <unordered_set>

namespace
{
AxDiagnostic findingAt(AxEnvValue const* place, AxSeverity severity, char const* code, std::string text)
{
    AxDiagnostic finding;
    finding.severity = severity;
    finding.code = code;
    finding.line = place ? place->line() : 0;
    finding.column = place ? place->column() : 0;
    finding.text = std::move(text);
    return finding;
}

/// Whether the element is the scalar itself, rather than that of the record which has it as an attribute.
bool isScalarElement(AxEnvObject const& object, AxReaderWriter const& scalar)
{
    return object.attribute("value") &&
           (object.type() == scalar.xmlType() || !object.attribute(scalar.name().string()));
}

AxEnvValuePtr scalarAttribute(AxEnvObject const& object, AxReaderWriter const& scalar)
{
    AxEnvValuePtr found = object.attributeNode(scalar.name().string());
    for (AxSymbolString const alias : scalar.aliases())
    {
        found = found ? found : object.attributeNode(alias.string());
    }
    return found;
}

/// Puts the items that a record has kept into the order of the document, with those that only the tree has.
class KeptOrder
{
public:
    /// `kept` may be null.
    explicit KeptOrder(std::vector<AxKeptItem>* kept) : myKept(kept) {}

    bool isEmpty() const { return !myKept; }
    /// The next one with that text, which is behind those taken before; null when it was not kept.
    AxKeptItem* take(AxlObj const* item)
    {
        std::string const text = AxTreeCells::printed(item);
        for (std::size_t i = 0; i < myKept->size(); ++i)
        {
            std::size_t const place = (myNext + i) % myKept->size();
            if (AxKeptItem& kept = (*myKept)[place]; kept.text == text)
            {
                myOrdered.push_back(std::move(kept));
                kept.text.clear();
                myNext = place + 1;
                return &myOrdered.back();
            }
        }
        return nullptr;
    }
    void takeAs(std::string const& xml, AxlObj const* item, AxSymbolString after)
    {
        if (AxKeptItem* const kept = take(item))
        {
            kept->text = AxTreeCells::xmlItem(xml);
            kept->after = after;
        }
    }
    void add(std::string const& xml, AxSymbolString after) { myOrdered.push_back({after, AxTreeCells::xmlItem(xml)}); }
    /// What was taken and added, no longer among those kept.
    std::vector<AxKeptItem> end()
    {
        if (myKept)
        {
            std::erase_if(*myKept, [](AxKeptItem const& kept) { return kept.text.empty(); });
        }
        return std::move(myOrdered);
    }

private:
    std::vector<AxKeptItem>* myKept;
    std::vector<AxKeptItem> myOrdered;
    std::size_t myNext = 0; ///< where to look first
};
} // namespace

void AxTreeForm::reportFailure(char const* code, AxEnvValue const* place, std::string const& text)
{
    AxDiagnostics::report(findingAt(place, AxSeverity::Error, code, text));
}

void AxTreeForm::read(AxReaderWriter& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node,
                      AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxEnvObjectPtr const object = node->castToObject();
    if (rw.flag(AxReaderWriter::Scalar) && !(object && isScalarElement(*object, rw)))
    {
        AxEnvValuePtr const attribute = object ? scalarAttribute(*object, rw) : node;
        if (attribute)
        {
            AxlObjPtr const value = AxTreeCells::attributeCell(attribute->value().string(), *attribute, &rw);
            AxlObjPtr const head = AxcSymbol(rw.name().view());
            rw.getSelf(AxcCons(head, AxcCons(value, axcNil())), files, bindings);
        }
        return;
    }
    if (!object)
    {
        rw.setInvalid(true);
        reportFailure("not-an-element", node.get(), "expected an element for \"" + rw.name().string().string() + '"');
        return;
    }
    AxXmlReader reader(object);
    if (!reader.readObject(rw, files, bindings))
    {
        rw.getSelf(AxTreeCells::expression(*object, AxSymbolString(object->name()), &rw), files, bindings);
        if (rw.flag(AxReaderWriter::Value))
        {
            AxXmlFragment::restOf(*object, &rw, true); // nobody holds it
        }
        finish(rw, env, object, files, bindings);
    }
    else if (reader.isOdd() || (rw.flag(AxReaderWriter::List) && !reader.oddChildren().empty()))
    {
        finish(rw, env, object, files, bindings);
    }
    else
    {
        for (std::uint32_t const position : reader.oddChildren())
        {
            AxEnvObjectPtr const child = object->children()[position]->castToObject();
            if (AxReaderWriter* const member = AxTreeCells::memberFor(&rw, *child))
            {
                finishMember(rw, *member, env, child, files, bindings);
            }
        }
    }
}

bool AxTreeForm::readReference(AxReaderWriter& rw, AxEnvValuePtr const& node)
{
    AxEnvObjectPtr const object = node->castToObject();
    bool const isScalar = rw.flag(AxReaderWriter::Scalar);
    AxEnvValuePtr const text = !object    ? AxEnvValuePtr()
                               : isScalar ? scalarAttribute(*object, rw)
                                          : object->attributeNode("variable");
    if (!text)
    {
        return false;
    }
    AxlObjPtr const items = isScalar ? AxcCons(AxTreeCells::attributeCell(text->value().string(), *text, &rw), axcNil())
                                     : AxTreeCells::parsed(text->value().string());
    return rw.readReference(items.get(), AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
}

void AxTreeForm::finish(AxReaderWriter& rw, AxEnvironmentPtr const& env, AxEnvObjectPtr const& node,
                        AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (AxReaderWriter* const content = AxTreeCells::inlined(*node, &rw); content != &rw)
    {
        finish(*content, env, node, files, bindings);
    }
    else if (AxRwProperty* const property = rw.property())
    {
        if (property->rwValue())
        {
            finish(*property->rwValue(), env, node, files, bindings);
        }
    }
    else if (rw.flag(AxReaderWriter::List))
    {
        finishList(static_cast<AxRwList&>(rw), env, node, files, bindings);
    }
    else if (!rw.flag(AxReaderWriter::Value))
    {
        rw.getData(env, node, files, bindings);
        finishRecord(rw, env, node, files, bindings);
    }
}

void AxTreeForm::finishMember(AxReaderWriter& record, AxReaderWriter& member, AxEnvironmentPtr const& env,
                              AxEnvObjectPtr const& node, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (!member.flag(AxReaderWriter::Value) || AxTreeCells::inlined(*node, &member) != &member)
    {
        finish(member, env, node, files, bindings);
        return;
    }
    AxEnvObjectPtr const rest = AxXmlFragment::restOf(*node, &member, false);
    if (!rest)
    {
        return;
    }
    if (record.flag(AxReaderWriter::KeepsItems))
    {
        // A value that was refused is kept with all that its element says.
        AxSymbolString const keyword(node->hasName() ? node->name() : node->type());
        std::string const text = AxTreeCells::printed(AxTreeCells::expression(*node, keyword, &member).get());
        auto& kept = record.rare().kept;
        auto const refused = std::find_if(kept.begin(), kept.end(),
                                          [&](AxKeptItem const& item) {
                                              return item.after == member.AxReaderWriter::name() && item.text == text &&
                                                     item.element < 0;
                                          });
        if (refused != kept.end())
        {
            refused->text = AxTreeCells::xmlItem(AxXmlFragment::ofNode(*node));
            return;
        }
    }
    AxXmlFragment::restOf(*node, &member, true);
    record.keepItem(member.AxReaderWriter::name(), AxTreeCells::xmlItem(AxXmlFragment::ofNode(*rest)));
}

void AxTreeForm::finishRecord(AxReaderWriter& rw, AxEnvironmentPtr const& env, AxEnvObjectPtr const& node,
                              AxFilenameList const& files, AxBindingsList const& bindings)
{
    KeptOrder order(rw.flag(AxReaderWriter::KeepsItems) ? &rw.rare().kept : nullptr);
    AxSymbolString last;
    for (AxEnvObject::Attribute const& attribute : node->attributes())
    {
        if (AxReaderWriter const* const member = AxTreeCells::memberFor(&rw, attribute.name))
        {
            last = member->name();
        }
        else if (!order.isEmpty() && !AxTreeCells::isOfForm(*node, attribute.name, &rw))
        {
            AxlObjPtr const item = AxTreeCells::attributeItem(*node, attribute, nullptr);
            order.takeAs(AxXmlFragment::ofAttribute(attribute), item.get(), last);
        }
    }
    for (AxEnvValuePtr const& child : node->children())
    {
        AxEnvObjectPtr const object = child->castToObject();
        bool const isText = object && object->type() == AxTreeCells::theTextTag;
        AxReaderWriter* const member = object ? AxTreeCells::memberFor(&rw, *object) : nullptr;
        last = member ? member->name() : last;
        if (member && !isText)
        {
            finishMember(rw, *member, env, object, files, bindings);
        }
        else if (AxTreeCells::hasItem(*child, *node, &rw))
        {
            if (!order.isEmpty())
            {
                AxlObjPtr const item = AxTreeCells::childItem(*child, *node, &rw);
                isText ? void(order.take(item.get())) : order.takeAs(AxXmlFragment::ofNode(*child), item.get(), last);
            }
        }
        else if (!member && (object || !axIsBlank(child->value().string())))
        {
            AxXmlFragment::reportUnknown(*child);
            order.add(AxXmlFragment::ofNode(*child), last);
        }
    }
    if (std::vector<AxKeptItem> ordered = order.end(); !ordered.empty())
    {
        std::ranges::move(ordered, std::back_inserter(rw.rare().kept));
        rw.setFlag(AxReaderWriter::KeepsItems, true);
    }
}

void AxTreeForm::finishList(AxRwList& list, AxEnvironmentPtr const& env, AxEnvObjectPtr const& node,
                            AxFilenameList const& files, AxBindingsList const& bindings)
{
    std::unordered_multiset<std::string> kept;
    for (auto const& [after, text] : list.keptItems())
    {
        kept.insert(text);
    }
    for (AxEnvObject::Attribute const& attribute : node->attributes())
    {
        if (!AxTreeCells::memberFor(&list, attribute.name) && !AxTreeCells::isOfForm(*node, attribute.name, &list))
        {
            AxXmlFragment::reportUnknown(*node, attribute);
            keepInList(list, AxXmlFragment::ofAttribute(attribute), 0);
        }
    }
    // What nobody knows stands behind the element in front of it.
    std::vector<AxEnvObjectPtr> elements;
    std::vector<std::pair<AxEnvValuePtr, std::size_t>> unknown;
    for (AxEnvValuePtr const& child : node->children())
    {
        AxEnvObjectPtr const object = child->castToObject();
        if (AxReaderWriter* const member = object ? AxTreeCells::memberFor(&list, *object) : nullptr)
        {
            finishMember(list, *member, env, object, files, bindings);
            continue;
        }
        if (!AxTreeCells::hasItem(*child, *node, &list))
        {
            if (object || !axIsBlank(child->value().string()))
            {
                unknown.emplace_back(child, elements.size());
            }
            continue;
        }
        auto const place = kept.empty()
                               ? kept.end()
                               : kept.find(AxTreeCells::printed(AxTreeCells::childItem(*child, *node, &list).get()));
        if (place != kept.end())
        {
            kept.erase(place);
        }
        else
        {
            elements.push_back(object);
        }
    }
    // Where each of them is now, and the end.
    std::vector<int> places(elements.size() + 1, list.count());
    if (static_cast<std::size_t>(list.count()) == elements.size()) // else the list took some for parts of others
    {
        AxListItem* item = list.first();
        int place = 0;
        for (std::size_t i = 0; i < elements.size(); ++i)
        {
            AxListItem* const next = item->next();
            places[i] = place;
            place += finishElement(list, item, place, env, elements[i], files, bindings) ? 1 : 0;
            item = next;
        }
        places.back() = place;
    }
    for (auto const& [child, position] : unknown)
    {
        AxXmlFragment::reportUnknown(*child);
        keepInList(list, AxXmlFragment::ofNode(*child), places[position]);
    }
}

bool AxTreeForm::finishElement(AxRwList& list, AxListItem* item, int position, AxEnvironmentPtr const& env,
                               AxEnvObjectPtr const& node, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxReaderWriter* const element = AxRwList::element(item);
    AxString const& tag = node->type();
    if (tag == AxTreeCells::theTextTag)
    {
        return true;
    }
    if (!(tag == AxTreeCells::theAnyTag) && !(tag == element->xmlType()) &&
        !(AxTreeCells::theAnyListTag == AxString(list.xmlType())))
    {
        AxXmlFragment::reportUnknown(*node);
        keepInList(list, AxXmlFragment::ofNode(*node), position);
        list.AxRwList::remove(element, item);
        delete element;
        return false;
    }
    if (node->type() == AxTreeCells::theAnyTag && node->attribute("type") && node->hasName() &&
        !(element->name() == node->name()))
    {
        element->setName(node->name());
    }
    AxReaderWriter const* const value = element->property() ? element->property()->rwValue() : element;
    if (value && value->isValue())
    {
        if (AxEnvObjectPtr const rest = AxXmlFragment::restOf(*node, element, true))
        {
            keepInList(list, AxXmlFragment::ofNode(*rest), position + 1);
        }
        return true;
    }
    finish(*element, env, node, files, bindings);
    return true;
}

void AxTreeForm::keepInList(AxRwList& list, std::string const& xml, int position)
{
    AxKeptItem item;
    item.text = AxTreeCells::xmlItem(xml);
    item.element = position;
    list.rare().kept.push_back(std::move(item));
    list.setFlag(AxReaderWriter::KeepsItems, true);
}
