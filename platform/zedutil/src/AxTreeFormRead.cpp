#include "AxDiagnostic.h"
#include "AxRegistryShape.h"
#include "AxTreeCells.h"
#include "AxTreeForm.h"
#include "AxXmlReader.h"
#include "AxlFunctions.h"

#include <algorithm>

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
                finish(*member, env, child, files, bindings);
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
    if (rw.flag(AxReaderWriter::Value) || rw.property())
    {
        return;
    }
    if (rw.flag(AxReaderWriter::List))
    {
        finishList(static_cast<AxRwList&>(rw), env, node, files, bindings);
        return;
    }
    rw.getData(env, node, files, bindings);
    finishRecord(rw, env, node, files, bindings);
}

void AxTreeForm::finishRecord(AxReaderWriter& rw, AxEnvironmentPtr const& env, AxEnvObjectPtr const& node,
                              AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxSymbolString last;
    for (AxEnvObject::Attribute const& attribute : node->attributes())
    {
        if (AxReaderWriter const* const member = AxTreeCells::memberFor(&rw, attribute.name))
        {
            last = member->name();
        }
        else if (!AxTreeCells::isOfForm(*node, attribute.name, &rw) && rw.flag(AxReaderWriter::KeepsItems))
        {
            keepXml(rw, AxTreeCells::printed(AxTreeCells::attributeItem(*node, attribute, nullptr).get()),
                    AxXmlFragment::ofAttribute(attribute), last);
        }
    }
    for (AxEnvValuePtr const& child : node->children())
    {
        AxEnvObjectPtr const object = child->castToObject();
        bool const isText = object && object->type() == AxTreeCells::theTextTag;
        if (AxReaderWriter* const member = object ? AxTreeCells::memberFor(&rw, *object) : nullptr)
        {
            last = member->name();
            if (!isText)
            {
                finish(*member, env, object, files, bindings);
            }
            continue;
        }
        if (AxTreeCells::hasItem(*child, *node, &rw))
        {
            if (!isText && rw.flag(AxReaderWriter::KeepsItems))
            {
                AxlObjPtr const item = AxTreeCells::childItem(*child, *node, &rw);
                keepXml(rw, AxTreeCells::printed(item.get()), AxXmlFragment::ofNode(*child), last);
            }
            continue;
        }
        if (!object || !object->isReserved())
        {
            AxDiagnostics::report(findingAt(child.get(), AxSeverity::Warning, "unknown-element",
                                            object ? "unknown element \"" + object->type().string() + '"'
                                                   : "unexpected text \"" + child->value().string() + '"'));
        }
        rw.keepItem(last, AxTreeCells::xmlItem(AxXmlFragment::ofNode(*child)));
    }
}

void AxTreeForm::keepXml(AxReaderWriter& record, std::string const& text, std::string const& xml, AxSymbolString after)
{
    auto& kept = record.rare().kept;
    auto const found = std::find_if(kept.begin(), kept.end(),
                                    [&text](AxKeptItem const& item) { return !item.replaces && item.text == text; });
    if (found != kept.end())
    {
        found->text = AxTreeCells::xmlItem(xml);
        found->after = after;
    }
}

void AxTreeForm::finishList(AxRwList& list, AxEnvironmentPtr const& env, AxEnvObjectPtr const& node,
                            AxFilenameList const& files, AxBindingsList const& bindings)
{
    std::vector<std::string> kept;
    for (auto const& [after, text] : list.keptItems())
    {
        kept.push_back(text);
    }
    std::vector<AxEnvObjectPtr> elements;
    for (AxEnvValuePtr const& child : node->children())
    {
        AxEnvObjectPtr const object = child->castToObject();
        if (AxReaderWriter* const member = object ? AxTreeCells::memberFor(&list, *object) : nullptr)
        {
            finish(*member, env, object, files, bindings);
            continue;
        }
        if (!AxTreeCells::hasItem(*child, *node, &list))
        {
            if (!object)
            {
                AxDiagnostics::report(findingAt(child.get(), AxSeverity::Warning, "unexpected-text",
                                                "unexpected text \"" + child->value().string() + "\" is dropped"));
            }
            continue;
        }
        auto const place = kept.empty()
                               ? kept.end()
                               : std::find(kept.begin(), kept.end(),
                                           AxTreeCells::printed(AxTreeCells::childItem(*child, *node, &list).get()));
        if (place != kept.end())
        {
            kept.erase(place);
        }
        else
        {
            elements.push_back(object);
        }
    }
    if (static_cast<std::size_t>(list.count()) != elements.size())
    {
        return; // the list took some of them for parts of others
    }
    AxListItem* item = list.first();
    for (AxEnvObjectPtr const& object : elements)
    {
        AxReaderWriter* const element = AxRwList::element(item);
        bool const isNamedByType = object->type() == AxTreeCells::theAnyTag && object->attribute("type");
        if (isNamedByType && object->hasName() && !(element->name() == object->name()))
        {
            element->setName(object->name());
        }
        if (object->type() != AxString(AxTreeCells::theTextTag))
        {
            finish(*element, env, object, files, bindings);
        }
        item = item->next();
    }
}
