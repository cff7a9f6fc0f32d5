#include "AxEnvironment.h"

#include <algorithm>

#include <boost/make_shared.hpp>

namespace
{
/// Calls `visit` for each object among the children of `parent`, until it answers false.
template <typename Visit>
void forEachObject(AxEnvValue const* parent, Visit visit)
{
    if (parent == nullptr || !parent->isList())
    {
        return;
    }
    for (AxEnvValuePtr const& child : static_cast<AxEnvList const*>(parent)->children())
    {
        if (child->isObject() && !visit(boost::static_pointer_cast<AxEnvObject>(child)))
        {
            return;
        }
    }
}

void collectOutermost(AxEnvValuePtr const& node, AxString const& type, AxEnvObjectList& out)
{
    if (node->isObject() && static_cast<AxEnvObject const*>(node.get())->type() == type)
    {
        out.push_back(node->castToObject());
    }
    else if (node->isList())
    {
        for (AxEnvValuePtr const& child : static_cast<AxEnvList const*>(node.get())->children())
        {
            collectOutermost(child, type, out);
        }
    }
}

bool equalAttributes(AxEnvObject const& a, AxEnvObject const& b)
{
    return std::equal(a.attributes().begin(), a.attributes().end(), b.attributes().begin(), b.attributes().end(),
                      [](AxEnvObject::Attribute const& one, AxEnvObject::Attribute const& other)
                      { return one.name == other.name && one.value->value() == other.value->value(); });
}

bool equalNodes(AxEnvValue const& a, AxEnvValue const& b)
{
    if (a.isObject() != b.isObject() || a.isNamedList() != b.isNamedList() || a.isList() != b.isList() ||
        a.value() != b.value())
    {
        return false;
    }
    if (a.isNamedList())
    {
        auto const& one = static_cast<AxEnvNamedList const&>(a);
        auto const& other = static_cast<AxEnvNamedList const&>(b);
        if (one.hasName() != other.hasName() || one.name() != other.name())
        {
            return false;
        }
    }
    if (a.isObject())
    {
        auto const& one = static_cast<AxEnvObject const&>(a);
        auto const& other = static_cast<AxEnvObject const&>(b);
        if (one.type() != other.type() || !equalAttributes(one, other))
        {
            return false;
        }
    }
    if (!a.isList())
    {
        return true;
    }
    auto const& ones = static_cast<AxEnvList const&>(a).children();
    auto const& others = static_cast<AxEnvList const&>(b).children();
    return std::equal(ones.begin(), ones.end(), others.begin(), others.end(),
                      [](AxEnvValuePtr const& one, AxEnvValuePtr const& other) { return equalNodes(*one, *other); });
}
} // namespace

AxEnvironment::AxEnvironment()
    : myPrologue(boost::make_shared<AxEnvList>()), myEpilogue(boost::make_shared<AxEnvList>())
{
}

AxEnvironment::~AxEnvironment() = default;

void AxEnvironment::setRoot(AxEnvValuePtr const& root)
{
    AxEnvValuePtr kept = root;
    if (kept != nullptr)
    {
        remove(kept);
    }
    myRoot = kept;
}

AxEnvObjectPtr AxEnvironment::addObject(AxString const& name, AxString const& type)
{
    return addObject(name, type, {});
}

AxEnvObjectPtr AxEnvironment::addObject(AxString const& name, AxString const& type, AxEnvValuePtr const& parent)
{
    AxEnvObjectPtr object = addUnnamedObject(type, parent);
    if (object != nullptr)
    {
        object->setName(name);
    }
    return object;
}

AxEnvObjectPtr AxEnvironment::addObject(AxString const& type)
{
    return addUnnamedObject(type, {});
}

AxEnvObjectPtr AxEnvironment::addUnnamedObject(AxString const& type, AxEnvValuePtr const& parent)
{
    auto object = boost::make_shared<AxEnvObject>(type);
    AxEnvValuePtr const& above = parent != nullptr ? parent : myRoot;
    if (above == nullptr)
    {
        myRoot = object;
        return object;
    }
    AxEnvListPtr list = above->castToList();
    return list != nullptr && list->add(object) ? object : AxEnvObjectPtr();
}

AxEnvValuePtr AxEnvironment::addValue(AxString const& value, AxEnvValuePtr const& parent)
{
    AxEnvListPtr list = parent != nullptr ? parent->castToList() : AxEnvListPtr();
    if (list == nullptr)
    {
        return {};
    }
    auto node = boost::make_shared<AxEnvValue>(value);
    list->add(node);
    return node;
}

AxEnvValuePtr AxEnvironment::addAttribute(AxString const& name, AxString const& value, AxEnvValuePtr const& parent)
{
    AxEnvObjectPtr object = parent != nullptr ? parent->castToObject() : AxEnvObjectPtr();
    return object != nullptr ? object->setAttribute(name, value) : AxEnvValuePtr();
}

AxEnvValuePtr AxEnvironment::getAttribute(AxString const& name, AxEnvValuePtr const& parent) const
{
    return parent != nullptr && parent->isObject() ? static_cast<AxEnvObject const*>(parent.get())->attributeNode(name)
                                                   : AxEnvValuePtr();
}

AxEnvObjectPtr AxEnvironment::getObject(AxString const& name, AxString const& type, AxEnvValuePtr const& parent) const
{
    AxEnvObjectPtr found;
    forEachObject((parent != nullptr ? parent : myRoot).get(),
                  [&](AxEnvObjectPtr object)
                  {
                      if ((name.isNull() || object->name() == name) && (type.isNull() || object->type() == type))
                      {
                          found = std::move(object);
                      }
                      return found == nullptr;
                  });
    return found;
}

void AxEnvironment::getObjectsByName(AxString const& name, AxEnvObjectList& out, AxEnvValuePtr const& parent) const
{
    forEachObject((parent != nullptr ? parent : myRoot).get(),
                  [&](AxEnvObjectPtr object)
                  {
                      if (object->hasName() && object->name() == name)
                      {
                          out.push_back(std::move(object));
                      }
                      return true;
                  });
}

void AxEnvironment::getObjectsByType(AxString const& type, AxEnvObjectList& out, AxEnvValuePtr const& parent) const
{
    forEachObject((parent != nullptr ? parent : myRoot).get(),
                  [&](AxEnvObjectPtr object)
                  {
                      if (object->type() == type)
                      {
                          out.push_back(std::move(object));
                      }
                      return true;
                  });
}

void AxEnvironment::getObjectsByType(AxString const& type, AxEnvObjectList& out) const
{
    if (myRoot != nullptr)
    {
        collectOutermost(myRoot, type, out);
    }
}

bool AxEnvironment::remove(AxEnvValuePtr const& node)
{
    if (node == nullptr)
    {
        return false;
    }
    if (node == myRoot)
    {
        myRoot.reset();
        return true;
    }
    AxEnvValuePtr parent = node->parent();
    if (parent == nullptr)
    {
        return false;
    }
    AxEnvObjectPtr object = parent->castToObject();
    return parent->castToList()->remove(node) || (object != nullptr && object->removeAttribute(node));
}

bool equalTrees(AxEnvValuePtr const& a, AxEnvValuePtr const& b)
{
    return a == nullptr || b == nullptr ? a == b : equalNodes(*a, *b);
}

bool equalTrees(AxEnvironmentPtr const& a, AxEnvironmentPtr const& b)
{
    if (a == nullptr || b == nullptr)
    {
        return a == b;
    }
    return equalTrees(a->root(), b->root()) && equalNodes(*a->prologue(), *b->prologue()) &&
           equalNodes(*a->epilogue(), *b->epilogue());
}
