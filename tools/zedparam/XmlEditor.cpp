#include "XmlEditor.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <iterator>
#include <list>
#include <string_view>
#include <utility>

#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxRwList.h"
#include "AxRwProperty.h"
#include "AxSourceScope.h"
#include "AxZedObjectParameters.h"
#include "AxZedXmlUtils.h"
#include "AxlPrint.h"
#include "EditedValue.h"
#include "ElementSource.h"
#include "Findings.h"
#include "NamedElement.h"
#include "PathSteps.h"
#include "PathText.h"
#include "ReadContext.h"
#include "TextPath.h"
#include "TextPlacement.h"
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
    std::string path;
    std::vector<std::string> names;
    std::vector<KeywordStep> steps;
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
constexpr char const* theVariables = "variable-bindings";

/// Whether an element or attribute of that name is meant by `name`, or by another name of the member.
bool isMeant(AxString const& its, std::string const& name, AxReaderWriter const* member)
{
    return its == AxString(name) ||
           (member != nullptr && (member->name() == its || member->hasAlias(AxSymbolString(its))));
}

std::vector<AxEnvObjectPtr> childrenOf(AxEnvObject const& parent, std::string_view tag, std::string const& name,
                                       AxReaderWriter const* member = nullptr)
{
    std::vector<AxEnvObjectPtr> found;
    for (AxEnvValuePtr const& node : parent.children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        if (child == nullptr || child->isReserved() || (!tag.empty() && child->type().string() != tag))
        {
            continue;
        }
        if (name.empty() || isMeant(elementName(*child), name, member))
        {
            found.push_back(child);
        }
    }
    return found;
}

/// The elements that the step may mean, as TextPath finds them in parameter text.
std::vector<AxEnvObjectPtr> elementsMeant(AxEnvObject const& parent, std::string_view tag, KeywordStep const& step,
                                          AxReaderWriter const* rw)
{
    AxReaderWriter const* const member = tag.empty() ? memberOf(rw, step.name) : nullptr;
    auto const isHeaded = [&](AxEnvObjectPtr const& child) { return isMeant(elementName(*child), step.name, member); };
    auto const own = [&](AxEnvObjectPtr const& child)
    {
        bool const isElement = tag.empty() && memberOf(rw, elementName(*child).string()) == nullptr;
        return isElement ? ownName(*child) : std::string();
    };
    return elementsMeant(step, childrenOf(parent, tag, {}), isHeaded, own);
}

std::vector<std::string> ownNamesIn(AxEnvObject const& parent)
{
    std::vector<std::string> names;
    for (AxEnvObjectPtr const& child : childrenOf(parent, {}, {}))
    {
        names.push_back(ownName(*child));
    }
    std::erase(names, std::string());
    return names;
}

/// The member of that name, or the element that the step means.
AxReaderWriter* partOf(AxReaderWriter* rw, KeywordStep const& step)
{
    AxReaderWriter* const member = memberOf(rw, step.name);
    auto const* const list = dynamic_cast<AxRwList const*>(rw);
    std::vector<AxReaderWriter*> elements;
    for (AxListItem const* item = list != nullptr ? list->first() : nullptr; item != nullptr; item = item->next())
    {
        elements.push_back(AxRwList::element(item));
    }
    elements = member != nullptr ? std::vector{member} : elementsMeant(step, elements);
    std::size_t const position = member != nullptr ? 1 : std::max<std::size_t>(step.position, 1);
    return position <= elements.size() ? elements[position - 1] : nullptr;
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
    myFindings = document != nullptr ? document->findings : std::vector<AxDiagnostic>();
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
    AxSourceScope const scope{AxFilename(file())};
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
        AxEnvValuePtr const& top = document->tree->root();
        AxEnvObjectPtr const root = top != nullptr ? top->castToObject() : nullptr;
        bool const isGroup = root != nullptr && root->type() == AxString("simulationObjectGroup");
        refuse(1, 1, "no-object",
               isGroup            ? "groups of objects are not changed by paths; objects of entity files are"
               : names.empty()    ? "the file holds no object"
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
    target.path = path;
    if (!readPath(path, target.steps))
    {
        return refuse(1, 1, "no-path", "\"" + path + "\" is no path; expected one such as \"max-speed\"");
    }
    std::ranges::transform(target.steps, std::back_inserter(target.names), &KeywordStep::name);
    target.owner = document.platform;
    target.rw = document.record.get();
    std::string tag; // of the element that bears the next name
    std::string const& first = target.names.front();
    if (first == "systems" && target.names.size() > 1)
    {
        target.owner = document.element;
        target.rw = partOf(target.rw, target.steps.front());
        target.found = 1;
        tag = "componentSystem";
    }
    else if (first == theVariables || first == "objectType" || first == "matchType")
    {
        target.owner = document.element;
        target.rw = nullptr;
        target.isFree = true;
    }
    for (; !target.isWhole() && target.attribute == nullptr; ++target.found)
    {
        std::string const& name = target.names[target.found];
        AxReaderWriter const* const member = tag.empty() ? memberOf(target.rw, name) : nullptr;
        auto const& attributes = target.owner->attributes();
        auto const its = std::ranges::find_if(attributes, [&](AxEnvObject::Attribute const& each)
                                              { return tag.empty() && isMeant(each.name, name, member); });
        KeywordStep const& step = target.steps[target.found];
        bool const isAttribute = its != attributes.end() && step.identity.empty();
        AxEnvValuePtr const attribute = isAttribute ? its->value : nullptr;
        std::vector<AxEnvObjectPtr> elements = elementsMeant(*target.owner, tag, step, target.rw);
        bool const isInSystem = target.owner->type() == AxString("componentSystem");
        if (isInSystem && elements.empty() && attribute == nullptr)
        {
            bool const isFile = name == "system-definition";
            std::vector<AxEnvObjectPtr> const sets = childrenOf(*target.owner, "variableBindings", {});
            elements = isFile         ? childrenOf(*target.owner, "systemName", {})
                       : sets.empty() ? elements
                                      : childrenOf(*sets.front(), "variable", name);
        }
        std::size_t const position = step.position;
        if (attribute == nullptr && elements.empty())
        {
            if (!leadsOn(target))
            {
                return false;
            }
            if (!step.identity.empty())
            {
                return refuseAt(*target.owner, "no-path", "there is no " + stepOf(name, step.identity),
                                nearestHint(step.identity, ownNamesIn(*target.owner)));
            }
            return position <= 1 ||
                   refuseAt(*target.owner, "no-path", absent(name, position, member != nullptr ? 1 : 0));
        }
        std::size_t const count = std::max<std::size_t>(elements.size(), 1);
        if (position > count || (position == 0 && count > 1))
        {
            std::vector<NamedElement> choices;
            std::ranges::transform(elements, std::back_inserter(choices),
                                   [](AxEnvObjectPtr const& element) {
                                       return NamedElement{elementName(*element).string(), ownName(*element)};
                                   });
            return refuseAt(*target.owner, "no-path",
                            position > count ? absent(name, position, count) : ambiguous(name, choices));
        }
        tag.clear();
        target.outer = target.rw;
        target.rw = partOf(target.rw, step);
        target.isFree = target.isFree || (target.outer != nullptr && target.outer->isValue()) || isLeadingItem(name);
        target.isElement = attribute == nullptr;
        target.owner = attribute != nullptr ? target.owner : elements[std::max<std::size_t>(position, 1) - 1];
        target.attribute = attribute;
    }
    if (target.isElement && target.isWhole())
    {
        target.attribute = target.owner->attributeNode("value");
    }
    return target.isWhole() || leadsOn(target);
}

/// False, after a fault, when the path leads into another file.
bool XmlEditor::leadsOn(Target const& target)
{
    std::string_view const path = std::string_view(target.path).substr(target.steps[target.found].begin);
    auto const [text, hint] = elsewhere(target.rw, target.names[target.found], path);
    AxEnvValue const& place = target.attribute != nullptr ? *target.attribute : *target.owner;
    return text.empty() || refuseAt(place, "no-path", text, hint);
}

bool XmlEditor::set(std::string const& path, std::string const& value)
{
    std::unique_ptr<Document> const document = read(myText);
    Target target;
    return document != nullptr && follow(*document, path, target) &&
           (target.isWhole() ? setValue(*document, target, value) : insert(*document, target, value));
}

bool XmlEditor::accepts(Target const& target, AxReaderWriter* rw, AxReaderWriter const* outer, std::string const& value,
                        std::string& plain)
{
    AxRwProperty* const property = rw != nullptr ? rw->property() : nullptr; // has its type in an attribute
    std::string const type = property != nullptr ? property->type().string() + " " : std::string();
    rw = property != nullptr ? property->rwValue() : rw;
    bool const isTyped = !type.empty() && value.starts_with(type);
    AxEnvValue const& place = target.attribute != nullptr ? *target.attribute : *target.owner;
    std::string given = isTyped ? value.substr(type.size()) : value;
    std::string unitFault;
    if (!toOwnUnit(given, rw, target.last(), unitFault) && !force())
    {
        return refuseAt(place, "wrong-kind", unitFault);
    }
    std::string const text = valueText(given, rw, outer);
    if (text.empty())
    {
        return refuseAt(*target.owner, "no-value", "\"" + value + "\" is no value");
    }
    TextTree const tree(text);
    bool const isString = tree.root().isString() && !tree.root().next() && (rw == nullptr || isText(rw));
    plain = isString && !holdsNamedValues(outer) ? tree.root().value() : text;
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
    AxDiagnostic const fault = valueFault(*rw, outer, target.last(), value, isTaken, findings.sorted());
    return fault.code.empty() || force() || refuseAt(place, fault.code, fault.text, fault.hint);
}

bool XmlEditor::setValue(Document& document, Target const& target, std::string const& value)
{
    if (target.rw == nullptr && !target.isFree && !force())
    {
        return refuseUnknown(target, target.names.size() - 1, target.outer);
    }
    std::string plain;
    if (target.attribute == nullptr)
    {
        return refuseAt(*target.owner, "no-value",
                        "\"" + target.last() + "\" is not one value; name one that is in it");
    }
    if (!accepts(target, target.rw, nullptr, value, plain))
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
    note({target.path, place.line(), place.column(), target.last(), shownItem(old), shownItem(plain)});
    return true;
}

bool XmlEditor::insert(Document& document, Target const& target, std::string const& value)
{
    AxEnvironmentPtr const scratch = boost::make_shared<AxEnvironment>();
    AxEnvObjectPtr const sample = scratch->addObject("sample");
    std::string const& name = target.names[target.found];
    bool const isLast = target.found + 1 == target.names.size();
    bool const isSet = isLast && target.owner->type() == AxString("variableBindings");
    bool const isVariable = target.isFree && (isSet || (!isLast && name == theVariables && target.found == 0));
    // The members that are not there yet, and what holds the value of the last.
    AxReaderWriter* outermost = nullptr;
    AxReaderWriter* member = target.rw;
    AxReaderWriter* map = nullptr;
    for (std::size_t i = target.found; i < target.names.size(); ++i)
    {
        map = i + 1 == target.names.size() && holdsNamedValues(member) ? member : nullptr;
        AxReaderWriter* const found = partOf(member, target.steps[i]);
        if (found == nullptr && map == nullptr && !isVariable && (!isLast || !force()))
        {
            return refuseUnknown(target, i, i == target.found ? target.rw : member);
        }
        outermost = outermost == nullptr ? found : outermost;
        member = found;
    }
    if (member != nullptr && !isText(member) && holdsItems(*member))
    {
        return refuseAt(*target.owner, "no-value",
                        "\"" + target.last() + "\" is not one value; name one that is in it");
    }
    std::string plain;
    if (!accepts(target, member, map, value, plain))
    {
        return false;
    }
    bool const isParameter = isLast && target.owner->type() == AxString("componentSystem") && member != nullptr &&
                             member->description() == nullptr; // declared by the system's definition
    AxEnvObjectPtr owner = target.owner;
    AxEnvObjectPtr child;
    if (isVariable || isParameter)
    {
        std::vector<AxEnvObjectPtr> const sets = childrenOf(*owner, "variableBindings", {});
        bool const isThere = isSet || (isParameter && !sets.empty());
        AxEnvObjectPtr const set =
            isThere ? sample : scratch->addObject(AxString(theVariables), "variableBindings", sample);
        scratch->addObject(AxString(target.last()), "variable", set)->setAttribute("value", AxString(plain));
        owner = isThere && !isSet ? sets.front() : owner;
    }
    else if (map != nullptr)
    {
        // The library itself tells what the element looks like.
        std::string text;
        map->putSelf(text, 0, false, AxFilename::nullFilename());
        text = text.empty() ? "(" + map->name().string().string() + ")" : text;
        text.insert(text.rfind(')'), " " + namedValueText(*map, target.last(), plain));
        map->readText(text, AxFilename(file()), myContext.files, myContext.bindings);
        (outermost != nullptr ? outermost : map)->putSelf(scratch, sample);
    }
    else if (outermost != nullptr)
    {
        outermost->putSelf(scratch, sample);
    }
    if (!sample->children().empty())
    {
        child = sample->children().front()->castToObject();
        std::vector<AxEnvObjectPtr> const values = childrenOf(*child, {}, target.last());
        child = map == nullptr || outermost != nullptr ? child : values.empty() ? nullptr : values.front();
    }
    if (child != nullptr)
    {
        return insertElement(document, target, *owner, child);
    }
    std::size_t const end = XmlText::tagEnd(myText, XmlText::offset(myText, owner->line(), owner->column()));
    std::size_t at = end - (myText[end - 2] == '/' ? 2 : 1);
    at = myText.find_last_not_of(" \t\r\n", at - 1) + 1;
    owner->appendAttribute(AxString(name), AxString(plain));
    std::string const bytes = " " + name + "=\"" + XmlText::escaped(plain, '"') + "\"";
    if (!apply(document, *owner, at, at, bytes))
    {
        return false;
    }
    note({target.path, owner->line(), owner->column(), {}, {}, bytes.substr(1)});
    return true;
}

/// Puts an element where the library would write it: behind the last of those that it writes before it.
bool XmlEditor::insertElement(Document& document, Target const& target, AxEnvObject& owner, AxEnvObjectPtr const& child)
{
    std::size_t const tag = XmlText::offset(myText, owner.line(), owner.column());
    std::size_t const tagEnd = XmlText::tagEnd(myText, tag);
    std::vector<AxEnvObjectPtr> const others = childrenOf(owner, {}, {});
    AxReaderWriterRegistry const* const members = membersIn(target.rw);
    bool const isForAll = target.rw == nullptr && child->type() == AxString("variableBindings");
    std::size_t const order = isForAll ? 0 : orderOf(members, elementName(*child).string());
    AxEnvObjectPtr before;
    for (AxEnvObjectPtr const& other : others)
    {
        bool const isBefore = orderOf(members, elementName(*other).string()) <= order;
        before = isBefore ? other : before;
    }
    std::string const outer(lineStart(myText, tag));
    std::string const start =
        !others.empty()
            ? std::string(lineStart(myText, XmlText::offset(myText, others.front()->line(), others.front()->column())))
        : outer.empty() ? std::string()
                        : outer + "  ";
    std::string bytes = start;
    for (char const byte : written(child))
    {
        bytes += byte == '\n' && !start.empty() ? start : std::string(1, byte);
    }
    std::size_t begin = tagEnd;
    std::size_t end = tagEnd;
    std::size_t index = 0;
    if (before != nullptr)
    {
        begin = end = XmlText::elementEnd(myText, XmlText::offset(myText, before->line(), before->column()));
        index = static_cast<std::size_t>(std::ranges::find(owner.children(), before) - owner.children().begin()) + 1;
        // A comment on its line stays with it.
        std::size_t const next = myText.find_first_not_of(" \t", end);
        if (next != std::string::npos && myText.compare(next, 4, "<!--") == 0)
        {
            begin = end = myText.find("-->", next) + 3;
            ++index;
        }
    }
    else if (myText[tagEnd - 2] == '/')
    {
        begin = myText.find_last_not_of(" \t\r\n", tagEnd - 3) + 1;
        bytes = ">" + bytes + outer + "</" + owner.type().string() + ">";
    }
    owner.insert(index, child);
    if (!apply(document, owner, begin, end, bytes))
    {
        return false;
    }
    std::size_t const at = myText.find('<', begin);
    auto const line =
        static_cast<unsigned>(std::count(myText.begin(), myText.begin() + static_cast<long>(at), '\n') + 1);
    unsigned const column = static_cast<unsigned>(at - (myText.rfind('\n', at) + 1) + 1);
    note({target.path, line, column, {}, {}, shownItem(written(child))});
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
        return refuseUnknown(target, target.found, target.rw);
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
    note({path, line, column, {}, shownItem(old), {}});
    return true;
}

std::vector<std::string> XmlEditor::stepsBehind(std::string const& path, bool onlyThere)
{
    std::unique_ptr<Document> const document = read(myText);
    bool const areSystems = path == "systems";
    Target target;
    if (document == nullptr || (!path.empty() && !areSystems && !follow(*document, path, target)))
    {
        return {};
    }
    if (path.empty() || areSystems)
    {
        target.owner = areSystems ? document->element : document->platform;
        target.rw = areSystems ? nullptr : document->record.get();
    }
    else if (!target.isWhole() || !target.isElement)
    {
        return {};
    }
    PathSteps steps;
    auto const add = [&](AxEnvObject const& child, std::string const& name)
    {
        AxReaderWriter const* const member = memberOf(target.rw, name);
        steps.add(name, ownName(child), member, child.attribute("value") == nullptr);
    };
    for (AxEnvObject::Attribute const& attribute : target.owner->attributes())
    {
        std::string const& name = attribute.name.string();
        AxReaderWriter const* const member = memberOf(target.rw, name);
        if (member != nullptr || (!onlyThere && isClassWord(name)))
        {
            steps.add(name, {}, member, false);
        }
    }
    bool const isSystem = target.owner->type() == AxString("componentSystem");
    for (AxEnvObjectPtr const& child : childrenOf(*target.owner, areSystems ? "componentSystem" : "", {}))
    {
        bool const areParameters = isSystem && child->type() == AxString("variableBindings");
        bool const isDefinition = isSystem && child->type() == AxString("systemName");
        for (AxEnvObjectPtr const& each : areParameters ? childrenOf(*child, {}, {}) : std::vector{child})
        {
            add(*each, isDefinition ? "system-definition" : elementName(*each).string());
        }
    }
    // What stands beside the platform.
    for (AxEnvObjectPtr const& child :
         path.empty() ? childrenOf(*document->element, {}, {}) : std::vector<AxEnvObjectPtr>())
    {
        std::string const& tag = child->type().string();
        if (tag == "objectType" || tag == "matchType" || tag == "variableBindings" || tag == "componentSystem")
        {
            add(*child, tag == "variableBindings" ? theVariables : tag == "componentSystem" ? "systems" : tag);
        }
    }
    return steps.all(onlyThere ? nullptr : target.rw);
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
    AxDiagnostic const* const finding = firstNew(changed->findings, myFindings);
    if (finding != nullptr && !force())
    {
        return refuse(line, column, finding->code, finding->text, finding->hint);
    }
    myFindings = changed->findings;
    myText = std::move(text);
    return true;
}

bool XmlEditor::refuseAt(AxEnvValue const& node, std::string code, std::string text, std::string hint)
{
    return refuse(node.line(), node.column(), std::move(code), std::move(text), std::move(hint));
}

bool XmlEditor::refuseUnknown(Target const& target, std::size_t place, AxReaderWriter const* rw)
{
    bool const isThere = target.isWhole();
    std::string const& name = target.names[place];
    std::string const owner = rw != nullptr ? rw->name().string().string() : target.owner->type().string();
    std::vector<std::string> known = namesIn({}, rw);
    std::ranges::copy(ownNamesIn(*target.owner), std::back_inserter(known));
    return refuseAt(*target.owner, "unknown-keyword",
                    "\"" + owner + "\" " + (isThere ? "knows" : "has") + " no \"" + name + "\"",
                    nearestHint(name, known));
}
