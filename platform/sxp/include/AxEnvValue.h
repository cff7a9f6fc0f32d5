#pragma once

#include <cstdint>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include "AxExport.h"
#include "AxString.h"

class AxEnvList;
class AxEnvNamedList;
class AxEnvObject;
class AxEnvValue;

using AxEnvValuePtr = boost::shared_ptr<AxEnvValue>;
using AxEnvListPtr = boost::shared_ptr<AxEnvList>;
using AxEnvNamedListPtr = boost::shared_ptr<AxEnvNamedList>;
using AxEnvObjectPtr = boost::shared_ptr<AxEnvObject>;

/// A node of an environment tree; by itself a plain text. A node is held by its parent and knows it; it outlives the
/// parent, without one, while others hold it.
class ZEDOBJPARAM_API AxEnvValue : public boost::enable_shared_from_this<AxEnvValue>
{
public:
    AxEnvValue() = default;
    explicit AxEnvValue(AxString value) : myValue(std::move(value)) {}
    AxEnvValue(AxEnvValue const&) = delete;
    AxEnvValue& operator=(AxEnvValue const&) = delete;
    virtual ~AxEnvValue();

    AxString const& value() const { return myValue; }
    void setValue(AxString const& value) { myValue = value; }

    /// Null for a root and for a node that was removed.
    AxEnvValuePtr parent() const;

    virtual bool isObject() const { return false; }
    virtual bool isNamedList() const { return false; }
    virtual bool isList() const { return false; }

    /// This node as what it is, or null.
    AxEnvObjectPtr castToObject();
    AxEnvNamedListPtr castToNamedList();
    AxEnvListPtr castToList();

    /// Where the node was read, from 1; 0 for one made in code.
    std::uint32_t line() const { return myLine; }
    std::uint32_t column() const { return myColumn; }
    void setPlace(std::uint32_t line, std::uint32_t column)
    {
        myLine = line;
        myColumn = column;
    }

private:
    friend class AxEnvList;
    friend class AxEnvObject;

    AxString myValue;
    AxEnvValue* myParent = nullptr;
    std::uint32_t myLine = 0;
    std::uint32_t myColumn = 0;
};
