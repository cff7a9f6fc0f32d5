#include "ElementSource.h"

#include <boost/make_shared.hpp>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "AxDiagnostic.h"
#include "AxReaderWriter.h"
#include "AxSinkScope.h"
#include "AxStreams.h"

namespace
{
bool matches(SourceStep const& step, AxString const& name)
{
    return step.keyword.isNull() || step.keyword.string() == name || step.rw->hasAlias(AxSymbolString(name));
}

AxEnvObject const* objectIn(AxEnvValuePtr const& node)
{
    return node->isObject() ? static_cast<AxEnvObject const*>(node.get()) : nullptr;
}

constexpr char const* theVariableSet = "variableBindings";

bool isVariableSet(AxEnvObject const& element)
{
    return element.type() == theVariableSet;
}

bool isLong(AxEnvObject const& element)
{
    return element.children().size() >= NameIndex<AxEnvObject const>::theShortest;
}

/// What names the definition of a system.
AxEnvValue const* definitionOf(AxEnvObject const& system)
{
    for (AxEnvValuePtr const& node : system.children())
    {
        AxEnvObject const* const child = objectIn(node);
        if (child != nullptr && child->type() == "systemName")
        {
            return child;
        }
    }
    return nullptr;
}

/// Takes the cells that the library would read a record of no known class from.
class CellsOfElement : public AxReaderWriter
{
public:
    CellsOfElement() : AxReaderWriter(AxSymbolString(), nullptr) {}

    using AxReaderWriter::getSelf;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const&, AxBindingsList const&) override
    {
        myCells = expression;
    }
    AxlObjPtr const& cells() const { return myCells; }

private:
    AxlObjPtr myCells;
};

/// The element with elements of any type called by their names, as the reader calls them in the end.
AxEnvObjectPtr withNames(AxEnvObject const& element)
{
    auto const copy = boost::make_shared<AxEnvObject>(element.type());
    if (element.hasName())
    {
        copy->setName(element.name());
    }
    copy->setPlace(element.line(), element.column());
    bool const isNamed = element.type() == "readerWriter" && element.hasName();
    for (AxEnvObject::Attribute const& attribute : element.attributes())
    {
        if (!isNamed || !(attribute.name == "type"))
        {
            copy->setAttribute(attribute.name, attribute.value->value())
                ->setPlace(attribute.value->line(), attribute.value->column());
        }
    }
    for (AxEnvValuePtr const& node : element.children())
    {
        AxEnvObject const* const child = objectIn(node);
        copy->add(child != nullptr ? AxEnvValuePtr(withNames(*child)) : boost::make_shared<AxEnvValue>(node->value()));
    }
    return copy;
}

void visitRepeatedNames(AxEnvObject const& list, std::string_view tag,
                        std::function<void(AxEnvObject const& element)> const& visit)
{
    std::set<std::string> known;
    for (AxEnvValuePtr const& node : list.children())
    {
        AxEnvObject const* const child = objectIn(node);
        if (child != nullptr && child->hasName() && child->type().string() == tag &&
            !known.insert(child->name().string()).second)
        {
            visit(*child);
        }
    }
}

/// The first attribute that `accept` takes.
template <class Accept>
AxEnvValue const* attributeBelow(AxEnvObject const& object, Accept const& accept)
{
    for (AxEnvObject::Attribute const& attribute : object.attributes())
    {
        if (accept(attribute.name.string(), *attribute.value))
        {
            return attribute.value.get();
        }
    }
    for (AxEnvValuePtr const& node : object.children())
    {
        AxEnvObject const* const child = objectIn(node);
        AxEnvValue const* const found = child != nullptr ? attributeBelow(*child, accept) : nullptr;
        if (found != nullptr)
        {
            return found;
        }
    }
    return nullptr;
}
} // namespace

AxString const& elementName(AxEnvObject const& element)
{
    AxString const* const type = element.type() == "readerWriter" ? element.attribute("type") : nullptr;
    return element.hasName() ? element.name() : type != nullptr ? *type : element.type();
}

AxEnvValue const* ElementSource::value(std::span<SourceStep const> path) const
{
    if (path.empty() || myElement == nullptr)
    {
        return nullptr;
    }
    if (path.size() == 2 && path.front().keyword == "variable-bindings")
    {
        return variable(path[1].keyword.view());
    }
    // Systems are elements beside that of the record.
    bool const isInSystem = path.size() > 1 && path.front().keyword == "systems";
    for (AxEnvValuePtr const& node : myElement->children())
    {
        AxEnvObject const* const child = objectIn(node);
        std::span<SourceStep const> const rest = path;
        AxEnvValue const* found = nullptr;
        if (child != nullptr && isInSystem && child->type() == "componentSystem" &&
            matches(path[1], elementName(*child)))
        {
            found = path.size() == 2 ? child : valueBelow(*child, rest.subspan(2));
            if (found == nullptr && path.size() == 3 && path[2].keyword == "system-definition")
            {
                found = definitionOf(*child);
            }
        }
        else if (child != nullptr && child->type() == "platform")
        {
            found = valueBelow(*child, rest);
        }
        if (found != nullptr)
        {
            return found;
        }
    }
    return nullptr;
}

AxEnvValue const* ElementSource::variable(std::string_view name) const
{
    if (myElement == nullptr)
    {
        return nullptr;
    }
    for (AxEnvValuePtr const& node : myElement->children())
    {
        AxEnvObject const* const set = objectIn(node);
        if (set == nullptr || !isVariableSet(*set))
        {
            continue;
        }
        if (isLong(*set))
        {
            std::vector<AxEnvObject const*> const& named = children(*set, name);
            if (!named.empty())
            {
                return named.front();
            }
            continue;
        }
        for (AxEnvValuePtr const& variable : set->children())
        {
            AxEnvObject const* const its = objectIn(variable);
            if (its != nullptr && its->name().string() == name)
            {
                return its;
            }
        }
    }
    return nullptr;
}

AxEnvValue const* ElementSource::reference(std::string_view variable) const
{
    std::string const whole = "$" + std::string(variable);
    std::string const embedded = "$(" + std::string(variable) + ")";
    return myElement == nullptr ? nullptr
                                : attributeBelow(*myElement,
                                                 [&](std::string const&, AxEnvValue const& attribute)
                                                 {
                                                     std::string const& text = attribute.value().string();
                                                     return text == whole || text.find(embedded) != std::string::npos;
                                                 });
}

void ElementSource::forEachAttribute(
    std::function<void(std::string_view name, AxEnvValue const& attribute)> const& visit) const
{
    if (myElement != nullptr)
    {
        attributeBelow(*myElement,
                       [&visit](std::string const& name, AxEnvValue const& attribute)
                       {
                           visit(name, attribute);
                           return false;
                       });
    }
}

void ElementSource::forEachRepeatedName(std::function<void(AxEnvObject const& element)> const& visit) const
{
    visitRepeatedNames(*myElement, "componentSystem", visit);
    for (AxEnvValuePtr const& node : myElement->children())
    {
        AxEnvObject const* const platform = objectIn(node);
        if (platform == nullptr || !(platform->type() == "platform"))
        {
            continue;
        }
        for (AxEnvValuePtr const& member : platform->children())
        {
            AxEnvObject const* const list = objectIn(member);
            if (list != nullptr && list->type() == "componentDescriptors")
            {
                visitRepeatedNames(*list, "componentDescriptor", visit);
            }
        }
    }
}

std::vector<AxEnvObject const*> const& ElementSource::children(AxEnvObject const& object, std::string_view name) const
{
    auto const addAll = [&object](auto const& add)
    {
        for (AxEnvValuePtr const& node : object.children())
        {
            if (AxEnvObject const* const child = objectIn(node))
            {
                add(elementName(*child).string(), child);
                if (isVariableSet(*child))
                {
                    add(theVariableSet, child);
                }
            }
        }
    };
    return myByName.find(&object, name, addAll);
}

AxEnvValue const* ElementSource::valueBelow(AxEnvObject const& object, std::span<SourceStep const> path) const
{
    SourceStep const& step = path.front();
    if (path.size() == 1)
    {
        for (AxEnvObject::Attribute const& attribute : object.attributes())
        {
            if (matches(step, attribute.name))
            {
                return attribute.value.get();
            }
        }
    }
    auto const valueIn = [&](AxEnvObject const& child) -> AxEnvValue const*
    { return path.size() == 1 ? &child : valueBelow(child, path.subspan(1)); };
    // Values of systems may stand in the sets of variables among their children.
    bool const isOfOneName = !step.keyword.isNull() && step.rw->aliases().empty();
    if (isOfOneName && isLong(object) && children(object, theVariableSet).empty())
    {
        std::vector<AxEnvObject const*> const& named = children(object, step.keyword.view());
        if (step.occurrence != SourceStep::theLast)
        {
            auto const wanted = static_cast<std::size_t>(step.occurrence);
            return wanted < named.size() ? valueIn(*named[wanted]) : nullptr;
        }
        AxEnvValue const* found = nullptr;
        for (auto child = named.begin(); found == nullptr && child != named.end(); ++child)
        {
            found = valueIn(**child);
        }
        return found;
    }
    int occurrence = 0;
    for (AxEnvValuePtr const& node : object.children())
    {
        AxEnvObject const* const child = objectIn(node);
        AxEnvValue const* found = nullptr;
        if (child != nullptr && matches(step, elementName(*child)))
        {
            bool const isWanted = step.occurrence == SourceStep::theLast || occurrence++ == step.occurrence;
            found = isWanted ? valueIn(*child) : nullptr;
        }
        else if (child != nullptr && isVariableSet(*child))
        {
            found = valueBelow(*child, path);
        }
        if (found != nullptr)
        {
            return found;
        }
    }
    return nullptr;
}

Source ElementSource::text() const
{
    CellsOfElement reader;
    AxSinkScope const noWarnings(AxWarn);
    AxDiagnostics::Sink previous = AxDiagnostics::setSink({}); // all was told when the record was read
    reader.getSelf(AxEnvironmentPtr(), withNames(*myElement), AxReaderWriter::nullFilenames(),
                   AxReaderWriter::nullVariableReference());
    AxDiagnostics::setSink(std::move(previous));
    return Source(reader.cells());
}
