#pragma once

#include <vector>

#include "AxEnvNamedList.h"
#include "AxExport.h"

/// A node with a type, perhaps a name, attributes in order and children: an XML element with its tag as type. Two
/// reserved types carry what is no element: `commentType()`, whose only child is the comment's text, and
/// `instructionType()`, a processing instruction with its target as name and its data as only child.
class ZEDOBJPARAM_API AxEnvObject : public AxEnvNamedList
{
public:
    struct Attribute
    {
        AxString name;
        AxEnvValuePtr value;
    };

    explicit AxEnvObject(AxString type) : myType(std::move(type)) {}
    AxEnvObject(AxString name, AxString type) : AxEnvNamedList(std::move(name)), myType(std::move(type)) {}
    ~AxEnvObject() override;

    bool isObject() const override { return true; }

    AxString const& type() const { return myType; }
    void setType(AxString const& type) { myType = type; }

    /// All attributes but the name.
    std::vector<Attribute> const& attributes() const
    {
        expand();
        return myAttributes;
    }

    /// Text of an attribute, "name" included; null when it is absent. Valid until it is set or removed.
    AxString const* attribute(AxString const& name) const;

    /// Adds the attribute, or gives the one that is there another value in its place; "name" sets the name. Answers the
    /// value's node, null for "name".
    AxEnvValuePtr setAttribute(AxString const& name, AxString const& value);
    /// The same for a name that is not there yet, which is not looked for.
    AxEnvValuePtr appendAttribute(AxString name, AxString value);
    bool removeAttribute(AxString const& name);
    /// Removes the attribute whose node this is.
    bool removeAttribute(AxEnvValuePtr const& value);
    AxEnvValuePtr attributeNode(AxString const& name) const;

    static AxString const& commentType();
    static AxString const& instructionType();
    /// Whether the type is one of the two reserved ones.
    bool isReserved() const;

private:
    std::vector<Attribute> myAttributes;
    AxString myType;
};
