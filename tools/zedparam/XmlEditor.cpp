#include "XmlEditor.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <list>
#include <string_view>
#include <utility>

#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxRwList.h"
#include "AxZedObjectParameters.h"
#include "AxZedXmlUtils.h"
#include "AxlPrint.h"
#include "EditedValue.h"
#include "Findings.h"
#include "ReadContext.h"
#include "TextPath.h"
#include "XmlText.h"

/// What an entity file says of one object.
struct XmlEditor::Document
{
    AxEnvironmentPtr tree;
    AxEnvObjectPtr element;
    AxEnvObjectPtr platform;
    std::unique_ptr<AxZedObjectParameters> record;
    std::vector<AxDiagnostic> findings;
};

/// How far a path leads.
struct XmlEditor::Target
{
    std::vector<std::string> names;
    std::vector<std::size_t> positions; ///< of the elements that share a name, from 1; 0: there is but one
    std::size_t found = 0;
    AxEnvObjectPtr owner;         ///< the innermost element found
    AxEnvValuePtr attribute;      ///< of the owner, that holds the value; null for a record or list
    bool isElement = false;       ///< whether the whole path names the owner rather than an attribute of it
    bool isFree = false;          ///< variables and types, which are no members
    AxReaderWriter* rw = nullptr; ///< what reads the last that was found; null when the library does not know it
    AxReaderWriter* outer = nullptr;

    bool isWhole() const { return found == names.size(); }
    std::string const& last() const { return names.back(); }
};

namespace
{
std::vector<AxEnvObjectPtr> childrenOf(AxEnvObject const& parent, std::string_view tag, std::string const& name)
{
    std::vector<AxEnvObjectPtr> found;
    for (AxEnvValuePtr const& node : parent.children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        if (child == nullptr || child->isReserved() || (!tag.empty() && child->type().string() != tag))
        {
            continue;
        }
        AxString const& its = child->hasName() ? child->name() : child->type();
        if (name.empty() || its == AxString(name))
        {
            found.push_back(child);
        }
    }
    return found;
}

/// The member of that name or the element, of those without a name the one at `position`.
AxReaderWriter* partOf(AxReaderWriter* rw, std::string const& name, std::size_t position = 1)
{
    AxReaderWriterRegistry const* const members = membersIn(rw);
    AxSymbolString const keyword = AxSymbolString::find(name);
    AxReaderWriter* found = members != nullptr && !keyword.isNull() ? members->find(keyword) : nullptr;
    auto const* const list = dynamic_cast<AxRwList const*>(rw);
    AxListItem const* item = list != nullptr ? list->first() : nullptr;
    for (; item != nullptr && found == nullptr; item = item->next())
    {
        AxReaderWriter* const element = AxRwList::element(item);
        bool const isMeant = element->name().isNull() ? --position == 0 : element->name() == AxString(name);
        found = isMeant ? element : nullptr;
    }
    return found;
}

/// The line end and indentation in front of a byte; empty when more than blanks stands on its line before it.
std::string_view lineStart(std::string_view text, std::size_t at)
{
    std::size_t const solid = text.find_last_not_of(" \t", at - 1);
    if (solid == std::string_view::npos || text[solid] != '\n')
    {
        return {};
    }
    std::size_t const begin = solid > 0 && text[solid - 1] == '\r' ? solid - 1 : solid;
    return text.substr(begin, at - begin);
}

std::string written(AxEnvObjectPtr const& object)
{
    AxEnvironmentPtr const tree = boost::make_shared<AxEnvironment>();
    tree->setRoot(object);
    std::string text;
    AxEnvXMLWriter().writeText(tree, text);
    text.erase(0, text.find('\n') + 1);
    return text.substr(0, text.find_last_not_of('\n') + 1);
}
} // namespace

XmlEditor::XmlEditor(std::string const& file, std::string text, std::string object, ReadContext const& context,
                     bool force)
    : FileEditor(file, std::move(text), force), myObject(std::move(object)), myContext(context)
{
    std::unique_ptr<Document> const document = read(myText);
    myKnownFindings = document != nullptr ? document->findings : std::vector<AxDiagnostic>();
}

XmlEditor::~XmlEditor() = default;

std::unique_ptr<XmlEditor::Document> XmlEditor::read(std::string const& text)
{
    if (text.find('\0') != std::string::npos || text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"))
    {
        refuse(1, 1, "xml-encoding", "XML is changed in encodings of single bytes alone");
        return nullptr;
    }
    auto document = std::make_unique<Document>();
    Findings findings(Findings::Print::Never);
    document->tree = AxEnvXMLReader::readText(text, AxFilename(file()));
    std::list<AxEnvValuePtr> elements;
    std::string names;
    if (document->tree != nullptr)
    {
        AxZedXmlUtils::getObjectElements(document->tree, elements);
        std::erase_if(elements,
                      [&](AxEnvValuePtr const& element)
                      {
                          std::string const& name = element->castToObject()->name().string();
                          names.append(names.empty() ? "" : ", ").append(name);
                          return !myObject.empty() && name != myObject;
                      });
    }
    if (elements.size() == 1)
    {
        document->element = elements.front()->castToObject();
        AxEnvValuePtr const platform = AxZedXmlUtils::getPlatform(document->tree, document->element);
        document->platform = platform ? platform->castToObject() : nullptr;
        document->record.reset(
            AxZedXmlUtils::createParameters(document->tree, document->element, myContext.files, myContext.bindings));
        AxZedXmlUtils::getObjectType(document->tree, document->element);
        std::vector<AxObjectType> types;
        AxZedXmlUtils::getMatchTypes(document->tree, document->element, types);
    }
    document->findings = findings.sorted();
    if (document->record != nullptr)
    {
        noteUnboundVariables(*document->record, file(), document->findings);
    }
    if (document->record != nullptr && document->platform != nullptr)
    {
        return document;
    }
    if (elements.size() != 1 && document->tree != nullptr)
    {
        refuse(1, 1, "no-object",
               names.empty()      ? "the file holds no object"
               : elements.empty() ? "the file holds no object \"" + myObject + "\""
                                  : "the file holds several objects",
               names.empty() ? std::string() : "name one with --object: " + names);
        return nullptr;
    }
    AxDiagnostic const fault = findings.empty() ? AxDiagnostic() : document->findings.front();
    refuse(fault.line, fault.column, "unreadable", findings.empty() ? "the object cannot be read" : fault.text);
    return nullptr;
}

bool XmlEditor::follow(Document& document, std::string const& path, Target& target)
{
    for (std::size_t begin = 0; begin <= path.size();)
    {
        std::size_t const end = std::min(path.find('/', begin), path.size());
        target.names.emplace_back(path.substr(begin, end - begin));
        begin = end + 1;
        if (!takePosition(target.names.back(), target.positions.emplace_back(0)) || target.last().empty())
        {
            return refuse(1, 1, "no-path", "\"" + path + "\" is no path; expected one such as \"max-speed\"");
        }
    }
    target.owner = document.platform;
    target.rw = document.record.get();
    std::string tag; // of the element that bears the next name
    std::string const& first = target.names.front();
    if (first == "systems" && target.names.size() > 1)
    {
        target.owner = document.element;
        target.rw = partOf(target.rw, first);
        target.found = 1;
        tag = "componentSystem";
    }
    else if (first == "variable-bindings" || first == "objectType" || first == "matchType")
    {
        target.owner = document.element;
        target.rw = nullptr;
        target.isFree = true;
    }
    for (; !target.isWhole() && target.attribute == nullptr; ++target.found)
    {
        std::string const& name = target.names[target.found];
        AxEnvValuePtr const attribute = tag.empty() ? target.owner->attributeNode(AxString(name)) : nullptr;
        std::vector<AxEnvObjectPtr> elements = childrenOf(*target.owner, tag, name);
        bool const isInSystem = target.owner->type() == AxString("componentSystem");
        if (isInSystem && elements.empty() && attribute == nullptr)
        {
            bool const isFile = name == "system-definition";
            std::vector<AxEnvObjectPtr> const sets = childrenOf(*target.owner, "variableBindings", {});
            elements = isFile         ? childrenOf(*target.owner, "systemName", {})
                       : sets.empty() ? elements
                                      : childrenOf(*sets.front(), "variable", name);
        }
        std::size_t const position = target.positions[target.found];
        if (position > elements.size() || (position == 0 && elements.size() > 1))
        {
            return refuseAt(*target.owner, "no-path",
                            std::to_string(elements.size()) + " items are \"" + name + "\"; name one as \"" + name +
                                "[1]\"");
        }
        if (attribute == nullptr && elements.empty())
        {
            return true;
        }
        tag.clear();
        target.outer = target.rw;
        target.rw = partOf(target.rw, name, std::max<std::size_t>(position, 1));
        target.isFree = target.isFree || (target.outer != nullptr && target.outer->isValue()) ||
                        name == "parameter-type" || name == "component-descriptor-type";
        target.isElement = attribute == nullptr;
        target.owner = attribute != nullptr ? target.owner : elements[std::max<std::size_t>(position, 1) - 1];
        target.attribute = attribute;
    }
    if (target.isElement && target.isWhole())
    {
        target.attribute = target.owner->attributeNode("value");
    }
    return true;
}

bool XmlEditor::set(std::string const& path, std::string const& value)
{
    std::unique_ptr<Document> const document = read(myText);
    Target target;
    return document != nullptr && follow(*document, path, target) &&
           (target.isWhole() ? setValue(*document, target, value) : insert(*document, target, value));
}

bool XmlEditor::accepts(Target const& target, AxReaderWriter* rw, std::string const& value, std::string& plain)
{
    std::string const text = valueText(value, rw);
    if (text.empty())
    {
        return refuseAt(*target.owner, "no-value", "\"" + value + "\" is no value");
    }
    plain = isText(rw) && text.starts_with('"') ? TextTree(text).root().value() : text;
    if (rw == nullptr)
    {
        return true;
    }
    std::string list = "(";
    axAppendName(list, AxSymbolString(AxString(target.last())));
    list.append(" ").append(text).append(")");
    Findings findings(Findings::Print::Never);
    bool const isTaken =
        rw->readText(list, AxFilename(file()), myContext.files, myContext.bindings) && findings.empty();
    AxDiagnostic const fault = valueFault(*rw, target.last(), value, isTaken, findings.sorted());
    AxEnvValue const& place = target.attribute != nullptr ? *target.attribute : *target.owner;
    return fault.code.empty() || force() || refuseAt(place, fault.code, fault.text, fault.hint);
}

bool XmlEditor::setValue(Document& document, Target const& target, std::string const& value)
{
    if (target.rw == nullptr && !target.isFree && !force())
    {
        return refuseUnknown(target);
    }
    std::string plain;
    if (target.attribute == nullptr)
    {
        return refuseAt(*target.owner, "no-value",
                        "\"" + target.last() + "\" is not one value; name one that is in it");
    }
    if (!accepts(target, target.rw, value, plain))
    {
        return false;
    }
    std::string const old = target.attribute->value().string();
    AxEnvValue const& place = *target.attribute;
    XmlText::Range const range = XmlText::attributeValue(myText, XmlText::offset(myText, place.line(), place.column()));
    if (old == plain)
    {
        return true;
    }
    target.attribute->setValue(AxString(plain));
    if (!apply(document, place, range.begin, range.end, XmlText::escaped(plain, myText[range.begin - 1])))
    {
        return false;
    }
    note(place.line(), place.column(), target.last() + " " + shownItem(old) + " -> " + shownItem(plain));
    return true;
}

bool XmlEditor::insert(Document& document, Target const& target, std::string const& value)
{
    std::string const& name = target.names[target.found];
    bool const isVariable = target.isFree && target.owner->type() == AxString("variableBindings");
    AxReaderWriter* const member = partOf(target.rw, name);
    if (target.found + 1 != target.names.size() || (member == nullptr && !isVariable && !force()))
    {
        return refuseUnknown(target);
    }
    if (member != nullptr && !isText(member) && holdsItems(*member))
    {
        return refuseAt(*target.owner, "no-value", "\"" + name + "\" is not one value; name one that is in it");
    }
    std::string plain;
    if (!accepts(target, member, value, plain))
    {
        return false;
    }
    AxEnvObjectPtr owner = target.owner;
    // The library itself tells whether a member is an attribute or an element.
    AxEnvironmentPtr const scratch = boost::make_shared<AxEnvironment>();
    AxEnvObjectPtr const sample = scratch->addObject("sample");
    bool const isParameter = owner->type() == AxString("componentSystem") && member != nullptr &&
                             member->description() == nullptr; // declared by the system's definition
    if (isVariable || isParameter)
    {
        std::vector<AxEnvObjectPtr> const sets = childrenOf(*owner, "variableBindings", {});
        if (!isVariable && sets.empty())
        {
            return refuseAt(*owner, "no-element", "\"" + target.names[1] + "\" has no element variableBindings",
                            "add one with the first variable by hand");
        }
        owner = isVariable ? owner : sets.front();
        AxEnvObjectPtr const variable = scratch->addObject(AxString(name), "variable", sample);
        variable->setAttribute("value", AxString(plain));
    }
    else if (member != nullptr)
    {
        member->putSelf(scratch, sample);
    }
    std::size_t const tag = XmlText::offset(myText, owner->line(), owner->column());
    std::size_t const end = XmlText::tagEnd(myText, tag);
    bool const closesItself = myText[end - 2] == '/';
    if (sample->children().empty())
    {
        std::size_t at = end - (closesItself ? 2 : 1);
        at = myText.find_last_not_of(" \t\r\n", at - 1) + 1;
        owner->appendAttribute(AxString(name), AxString(plain));
        std::string const bytes = " " + name + "=\"" + XmlText::escaped(plain, '"') + "\"";
        if (!apply(document, *owner, at, at, bytes))
        {
            return false;
        }
        note(owner->line(), owner->column(), "added" + bytes);
        return true;
    }
    AxEnvObjectPtr const child = sample->children().front()->castToObject();
    std::string const bytes = written(child);
    std::vector<AxEnvObjectPtr> const others = childrenOf(*owner, {}, {});
    if (others.empty() || bytes.find('\n') != std::string::npos)
    {
        return refuseAt(*owner, "no-element", "\"" + name + "\" is an element, which is added beside others only");
    }
    AxEnvObject const& next = *others.front();
    std::size_t const at = XmlText::offset(myText, next.line(), next.column());
    auto const index = std::ranges::find(owner->children(), others.front()) - owner->children().begin();
    owner->insert(static_cast<std::size_t>(index), child);
    unsigned const line = next.line();
    unsigned const column = next.column();
    if (!apply(document, *owner, at, at, bytes + std::string(lineStart(myText, at))))
    {
        return false;
    }
    note(line, column, "added " + shownItem(bytes));
    return true;
}

bool XmlEditor::unset(std::string const& path)
{
    std::unique_ptr<Document> const document = read(myText);
    Target target;
    if (document == nullptr || !follow(*document, path, target))
    {
        return false;
    }
    if (!target.isWhole())
    {
        return refuseUnknown(target);
    }
    AxEnvValue const& place = target.isElement ? static_cast<AxEnvValue&>(*target.owner) : *target.attribute;
    unsigned const line = place.line();
    unsigned const column = place.column();
    std::size_t begin = XmlText::offset(myText, line, column);
    std::size_t const end =
        target.isElement ? XmlText::elementEnd(myText, begin) : XmlText::attributeValue(myText, begin).end + 1;
    std::string const old = myText.substr(begin, end - begin);
    if (old.find("<!--") != std::string::npos && !force())
    {
        return refuse(line, column, "comment-lost", "a comment stands in \"" + target.last() + "\" and would be lost",
                      "--force takes it out all the same");
    }
    if (target.isElement)
    {
        begin -= lineStart(myText, begin).size();
        document->tree->remove(target.owner);
    }
    else
    {
        begin = myText.find_last_not_of(" \t\r\n", begin - 1) + 1;
        target.owner->removeAttribute(target.attribute);
    }
    if (!apply(*document, place, begin, end, {}))
    {
        return false;
    }
    note(line, column, "removed " + shownItem(old));
    return true;
}

bool XmlEditor::apply(Document const& document, AxEnvValue const& place, std::size_t begin, std::size_t end,
                      std::string const& bytes)
{
    std::string text = myText;
    text.replace(begin, end - begin, bytes);
    unsigned const line = place.line();
    unsigned const column = place.column();
    std::unique_ptr<Document> const changed = read(text);
    if (changed == nullptr || !equalTrees(document.tree, changed->tree))
    {
        return changed == nullptr ? refuse(line, column, "unreadable", fault().text)
                                  : refuse(line, column, "unreadable", "the change would alter what stands beside it");
    }
    AxDiagnostic const* const finding = firstNew(changed->findings, myKnownFindings);
    if (finding != nullptr && !force())
    {
        return refuse(line, column, finding->code, finding->text, finding->hint);
    }
    myKnownFindings = changed->findings;
    myText = std::move(text);
    return true;
}

bool XmlEditor::refuseAt(AxEnvValue const& node, std::string code, std::string text, std::string hint)
{
    return refuse(node.line(), node.column(), std::move(code), std::move(text), std::move(hint));
}

bool XmlEditor::refuseUnknown(Target const& target)
{
    bool const isThere = target.isWhole();
    AxReaderWriter const* const rw = isThere ? target.outer : target.rw;
    std::string const& name = isThere ? target.last() : target.names[target.found];
    std::string const owner = rw != nullptr ? rw->name().string().string() : target.owner->type().string();
    return refuseAt(*target.owner, "unknown-keyword",
                    "\"" + owner + "\" " + (isThere ? "knows" : "has") + " no \"" + name + "\"",
                    nearestHint(name, namesIn({}, rw)));
}
