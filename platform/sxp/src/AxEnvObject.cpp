#include "AxEnvObject.h"

#include <algorithm>

#include <boost/make_shared.hpp>

namespace
{
bool isNameAttribute(AxString const& name)
{
    return name == "name";
}

template <typename Attributes>
auto findAttribute(Attributes& attributes, AxString const& name)
{
    return std::find_if(attributes.begin(), attributes.end(), [&](auto const& one) { return one.name == name; });
}
} // namespace

AxEnvObject::~AxEnvObject()
{
    for (Attribute const& attribute : myAttributes)
    {
        attribute.value->myParent = nullptr;
    }
}

AxString const* AxEnvObject::attribute(AxString const& name) const
{
    if (isNameAttribute(name))
    {
        return hasName() ? &this->name() : nullptr;
    }
    auto found = findAttribute(attributes(), name);
    return found != myAttributes.end() ? &found->value->value() : nullptr;
}

AxEnvValuePtr AxEnvObject::setAttribute(AxString const& name, AxString const& value)
{
    if (isNameAttribute(name))
    {
        setName(value);
        return {};
    }
    expand();
    auto found = findAttribute(myAttributes, name);
    if (found != myAttributes.end())
    {
        found->value->setValue(value);
        return found->value;
    }
    return appendAttribute(name, value);
}

AxEnvValuePtr AxEnvObject::appendAttribute(AxString name, AxString value)
{
    if (isNameAttribute(name))
    {
        setName(value);
        return {};
    }
    expand();
    AxEnvValuePtr node = boost::make_shared<AxEnvValue>(std::move(value));
    myAttributes.push_back({std::move(name), node});
    node->myParent = this;
    return node;
}

bool AxEnvObject::removeAttribute(AxString const& name)
{
    if (isNameAttribute(name))
    {
        bool had = hasName();
        clearName();
        return had;
    }
    return removeAttribute(attributeNode(name));
}

bool AxEnvObject::removeAttribute(AxEnvValuePtr const& value)
{
    expand();
    auto found = std::find_if(myAttributes.begin(), myAttributes.end(),
                              [&](Attribute const& attribute) { return attribute.value == value; });
    if (found == myAttributes.end())
    {
        return false;
    }
    found->value->myParent = nullptr;
    myAttributes.erase(found);
    return true;
}

AxEnvValuePtr AxEnvObject::attributeNode(AxString const& name) const
{
    auto found = findAttribute(attributes(), name);
    return found != myAttributes.end() ? found->value : AxEnvValuePtr();
}

AxString const& AxEnvObject::commentType()
{
    static AxString const type("#comment");
    return type;
}

AxString const& AxEnvObject::instructionType()
{
    static AxString const type("#pi");
    return type;
}

bool AxEnvObject::isReserved() const
{
    return myType == commentType() || myType == instructionType();
}
