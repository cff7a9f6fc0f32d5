#include "AxObjectSurroundings.h"

#include "AxElement.h"
#include "AxObjectElement.h"
#include "AxTreeCells.h"
#include "AxZedObjectParameters.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace
{
constexpr char const* theFileTag = "file";

bool isObject(AxEnvValue const& node)
{
    return node.isObject() && static_cast<AxEnvObject const&>(node).type() == AxObjectElement::theTag;
}

bool isReserved(AxEnvValue const& node)
{
    return node.isObject() && static_cast<AxEnvObject const&>(node).isReserved();
}

bool holdsObject(AxEnvValue const& node)
{
    auto const* const parent = node.isObject() ? static_cast<AxEnvObject const*>(&node) : nullptr;
    return parent && std::ranges::any_of(parent->children(), [](AxEnvValuePtr const& child)
                                         { return isObject(*child) || holdsObject(*child); });
}

/// The first object in the tree; null when there is none.
AxEnvObjectPtr firstObject(AxEnvValuePtr const& node)
{
    AxEnvObjectPtr const object = node->castToObject();
    AxEnvObjectPtr found = isObject(*node) ? object : AxEnvObjectPtr();
    for (std::size_t i = 0; !found && object && i < object->count(); ++i)
    {
        found = firstObject(object->children()[i]);
    }
    return found;
}

void addCopies(AxEnvObject& to, AxEnvList const& from)
{
    for (AxEnvValuePtr const& node : from.children())
    {
        to.add(AxXmlFragment::copyOf(*node));
    }
}
} // namespace

AxObjectSurroundings::AxObjectSurroundings() = default;
AxObjectSurroundings::~AxObjectSurroundings() = default;

AxObjectSurroundings::Level const& AxObjectSurroundings::levelOf(AxEnvObjectPtr const& list)
{
    auto const known = myLevels.find(list.get());
    if (known != myLevels.end())
    {
        return known->second;
    }
    Level level{list, list->hasName() || !list->attributes().empty()};
    for (std::size_t place = 0; place < list->count(); ++place)
    {
        AxEnvValuePtr const& child = list->children()[place];
        if (isObject(*child) || holdsObject(*child))
        {
            level.places.emplace(child.get(), place);
        }
        else
        {
            level.isNews = level.isNews || !isReserved(*child);
            level.others.emplace_back(place, child);
        }
    }
    return myLevels.emplace(list.get(), std::move(level)).first->second;
}

/// A copy of the list with `inner` for `child` and without other objects.
AxEnvObjectPtr AxObjectSurroundings::copyAround(AxEnvObjectPtr const& list, AxEnvValue const& child,
                                                AxEnvObjectPtr const& inner)
{
    auto const copy = boost::make_shared<AxEnvObject>(list->type());
    if (list->hasName())
    {
        copy->setName(list->name());
    }
    for (AxEnvObject::Attribute const& attribute : list->attributes())
    {
        copy->setAttribute(attribute.name, attribute.value->value());
    }
    Level const& level = levelOf(list);
    auto const place = level.places.find(&child);
    bool isPlaced = false;
    for (auto const& [at, other] : level.others)
    {
        if (!isPlaced && place != level.places.end() && at > place->second)
        {
            copy->add(inner);
            isPlaced = true;
        }
        copy->add(AxXmlFragment::copyOf(*other));
    }
    if (!isPlaced)
    {
        copy->add(inner);
    }
    return copy;
}

/// Null when that is neither attributes, elements nor texts, and nothing stands in front of the root or behind it.
AxEnvObjectPtr AxObjectSurroundings::fileOf(AxEnvironmentPtr const& env, AxEnvValuePtr const& element)
{
    bool isNews = false;
    AxEnvValuePtr root = element;
    while (AxEnvValuePtr const parent = root ? root->parent() : AxEnvValuePtr())
    {
        AxEnvObjectPtr const list = parent->castToObject();
        if (!list)
        {
            return {};
        }
        isNews = isNews || levelOf(list).isNews;
        root = parent;
    }
    bool const isWhole = env && root && env->root() == root;
    if (!isNews && (!isWhole || (env->prologue()->count() == 0 && env->epilogue()->count() == 0)))
    {
        return {};
    }
    auto inner = boost::make_shared<AxEnvObject>(AxObjectElement::theTag);
    AxEnvValuePtr node = element;
    while (AxEnvValuePtr const parent = node->parent())
    {
        inner = copyAround(parent->castToObject(), *node, inner);
        node = parent;
    }
    auto file = boost::make_shared<AxEnvObject>(theFileTag);
    if (isWhole)
    {
        addCopies(*file, *env->prologue());
    }
    file->add(inner);
    if (isWhole)
    {
        addCopies(*file, *env->epilogue());
    }
    return file;
}

void AxObjectSurroundings::keepWith(AxZedObjectParameters& record, bool isOneOfMany)
{
    AxEnvValuePtr const element = record.objectNode();
    if (!element || std::ranges::any_of(record.keptItems(),
                                        [](auto const& kept) { return AxObjectElement::isOthersItem(kept.second); }))
    {
        return;
    }
    AxEnvObjectPtr others = AxObjectElement::othersOf(element);
    if (AxEnvObjectPtr const file = fileOf(record.xmlEnvironment(), element))
    {
        others = others ? others : boost::make_shared<AxEnvObject>(AxObjectElement::theTag);
        others->add(file);
    }
    if (!others)
    {
        return;
    }
    if (isOneOfMany)
    {
        AxObjectType type = AxObjectElement::objectTypeOf(element, false);
        if (type.isNull())
        {
            std::vector<AxObjectType> const types = AxObjectElement::matchTypesOf(element, false);
            type = types.empty() ? type : types.front();
        }
        AxObjectElement::removeFurtherTypes(*others);
        if (!(type == record.objectType()) || AxObjectElement::isEmpty(*others))
        {
            return;
        }
    }
    AxReaderWriterRegistry const& members = *record.registry();
    record.keepItem(members.entry(members.size() - 1).keyword, AxTreeCells::xmlItem(AxXmlFragment::ofNode(*others)));
}

void AxObjectSurroundings::restore(AxEnvironment& env, AxEnvObjectPtr const& element, AxEnvObject& others)
{
    AxEnvObjectPtr const file = AxElement::first(others.shared_from_this(), theFileTag);
    std::vector<AxEnvValuePtr> const nodes = file ? file->children() : std::vector<AxEnvValuePtr>();
    auto const rootNode = std::ranges::find_if_not(nodes, [](AxEnvValuePtr const& node) { return isReserved(*node); });
    if (rootNode == nodes.end() ||
        !std::all_of(rootNode + 1, nodes.end(), [](AxEnvValuePtr const& node) { return isReserved(*node); }))
    {
        return;
    }
    AxEnvObjectPtr const root = (*rootNode)->castToObject();
    AxEnvObjectPtr const vacated = root ? firstObject(root) : AxEnvObjectPtr();
    bool const isWhole = vacated && (!(vacated == root) || nodes.size() > 1);
    if (!isWhole || !AxObjectElement::isEmpty(*vacated) || !(env.root() == element))
    {
        return;
    }
    others.remove(file);
    std::for_each(nodes.begin(), rootNode, [&env](AxEnvValuePtr const& node) { env.prologue()->add(node); });
    std::for_each(rootNode + 1, nodes.end(), [&env](AxEnvValuePtr const& node) { env.epilogue()->add(node); });
    if (vacated == root)
    {
        return;
    }
    env.setRoot({});
    AxEnvListPtr const siblings = vacated->parent()->castToList();
    auto const place = std::ranges::find(siblings->children(), vacated) - siblings->children().begin();
    siblings->insert(static_cast<std::size_t>(place), element);
    siblings->remove(vacated);
    file->remove(root);
    env.setRoot(root);
}
