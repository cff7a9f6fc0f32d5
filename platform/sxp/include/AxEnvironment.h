#pragma once

#include <vector>

#include <boost/shared_ptr.hpp>

#include "AxEnvList.h"
#include "AxEnvNamedList.h"
#include "AxEnvObject.h"
#include "AxEnvValue.h"
#include "AxExport.h"

class AxEnvironment;
using AxEnvironmentPtr = boost::shared_ptr<AxEnvironment>;
using AxEnvObjectList = std::vector<AxEnvObjectPtr>;

/// A tree of named and typed nodes: the attribute form of records, read from and written to XML.
class ZEDOBJPARAM_API AxEnvironment
{
public:
    AxEnvironment();
    AxEnvironment(AxEnvironment const&) = delete;
    AxEnvironment& operator=(AxEnvironment const&) = delete;
    ~AxEnvironment();

    AxEnvValuePtr const& root() const { return myRoot; }
    void setRoot(AxEnvValuePtr const& root);

    /// Comments and processing instructions in front of the root and behind it.
    AxEnvListPtr const& prologue() const { return myPrologue; }
    AxEnvListPtr const& epilogue() const { return myEpilogue; }

    /// A new object below the root; the root itself when there is none. Null when the root is a plain value.
    AxEnvObjectPtr addObject(AxString const& name, AxString const& type);
    /// A new object as last child of `parent`; a null parent stands for the root, a plain value answers null.
    AxEnvObjectPtr addObject(AxString const& name, AxString const& type, AxEnvValuePtr const& parent);
    /// The same without a name.
    AxEnvObjectPtr addObject(AxString const& type);
    AxEnvObjectPtr addUnnamedObject(AxString const& type, AxEnvValuePtr const& parent);

    /// A plain text as last child of `parent`; null when that is no list.
    AxEnvValuePtr addValue(AxString const& value, AxEnvValuePtr const& parent);

    /// Sets an attribute of an object and answers its node; "name" sets the name and answers null, as does a parent
    /// that is no object.
    AxEnvValuePtr addAttribute(AxString const& name, AxString const& value, AxEnvValuePtr const& parent);
    /// The node of an attribute, null when absent. A name is answered by `AxEnvNamedList::name()`.
    AxEnvValuePtr getAttribute(AxString const& name, AxEnvValuePtr const& parent) const;

    /// The first child of `parent` (null: of the root) with this name and type; an empty one of the two fits all.
    AxEnvObjectPtr getObject(AxString const& name, AxString const& type, AxEnvValuePtr const& parent) const;
    /// Appends the children of `parent` (null: of the root) that have the name or the type.
    void getObjectsByName(AxString const& name, AxEnvObjectList& out, AxEnvValuePtr const& parent) const;
    void getObjectsByType(AxString const& type, AxEnvObjectList& out, AxEnvValuePtr const& parent) const;
    /// Appends all objects of the type in the order of the tree, the root included, but none inside another.
    void getObjectsByType(AxString const& type, AxEnvObjectList& out) const;

    /// Takes a node, root or attribute value out of its place; false when it has none.
    bool remove(AxEnvValuePtr const& node);

private:
    AxEnvValuePtr myRoot;
    AxEnvListPtr myPrologue;
    AxEnvListPtr myEpilogue;
};

/// Same kinds, types, names, texts and children in order; attributes in order. Two nulls are equal.
ZEDOBJPARAM_API bool equalTrees(AxEnvValuePtr const& a, AxEnvValuePtr const& b);
/// The same of the roots and of what stands in front of and behind them.
ZEDOBJPARAM_API bool equalTrees(AxEnvironmentPtr const& a, AxEnvironmentPtr const& b);
