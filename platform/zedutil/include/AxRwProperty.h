#pragma once

#include "AxReaderWriter.h"

#include <memory>

/// A named, typed value: `(name type value...)`, the type being a name that the reader/writer factory knows.
class ZEDOBJPARAM_API AxRwProperty : public AxReaderWriter
{
public:
    AxRwProperty(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRwProperty(AxRwProperty const& other);
    ~AxRwProperty() override;
    AxRwProperty& operator=(AxRwProperty const& other);

    /// Makes an empty value of the named type; false, and nothing changed, when the type is unknown.
    bool setType(AxString const& type);
    AxString const& type() const { return myType; }
    AxReaderWriter* rwValue() const { return myValue.get(); }

    bool equals(AxRwProperty const& other) const;
    bool operator==(AxRwProperty const& other) const { return equals(other); }

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putData(std::string& out, int indent) override;
    void reset() override;
    void bindVariables(AxBindingsList const& bindings) override;
    void bindLocalVariables(AxBindingsList const& bindings) override;
    void clearAllVariableReferenceFlags() override;
    AxUnboundVariableList unboundVariables() const override;
    bool hasVariableReference() const override;
    double recordUpdateTime() const override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;
    AxRwProperty const* property() const override;
    AxRwProperty* property() override;

private:
    AxString myType;
    std::unique_ptr<AxReaderWriter> myValue;
};
