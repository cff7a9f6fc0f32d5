#include "AxRwProperty.h"

#include "AxDiagnostic.h"
#include "AxReaderWriterFactory.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"

#include <algorithm>

static AxTypeEntry<AxRwProperty> const propertyEntry;

AxRwProperty::AxRwProperty(AxSymbolString name, AxReaderWriterRegistry* registry) : AxReaderWriter(name, registry) {}

AxRwProperty::AxRwProperty(AxRwProperty const& other) : AxReaderWriter(other)
{
    *this = other;
}

AxRwProperty::~AxRwProperty() = default;

AxRwProperty& AxRwProperty::operator=(AxRwProperty const& other)
{
    if (this != &other)
    {
        myType = AxString();
        myValue.reset();
        if (other.myValue && setType(other.myType))
        {
            factory()->copyReaderWriter(other.myValue.get(), myValue.get());
        }
        carryState(other);
    }
    return *this;
}

bool AxRwProperty::setType(AxString const& type)
{
    AxReaderWriter* const made = factory()->createItem(type, AxReaderWriter::name().string(), nullptr);
    if (!made)
    {
        return false;
    }
    myValue.reset(made);
    myType = type;
    valueAssigned();
    return true;
}

bool AxRwProperty::equals(AxRwProperty const& other) const
{
    return AxReaderWriter::name() == other.AxReaderWriter::name() && myType == other.myType &&
           (myValue == other.myValue || factory()->compareReaderWriter(myValue.get(), other.myValue.get()));
}

AxlObjPtr AxRwProperty::getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxlObj const* const word = items->car();
    if (!word->isSymbol() && !word->isString())
    {
        reject(items.get(), "a type name and a value");
        return axcNil();
    }
    AxString const type(word->text());
    if (!setType(type))
    {
        AxDiagnostic fault;
        fault.severity = AxSeverity::Warning;
        fault.code = "unknown-type";
        fault.line = word->line();
        fault.column = word->column();
        fault.text = "no reader/writer type \"" + type.string() + '"';
        AxDiagnostics::reportStated(std::move(fault), "Unknown type \"" + type.string() + "\" of property " +
                                                          AxReaderWriter::name().string().string() + '\n');
        return axcNil();
    }
    myValue->getSelf(items, files, bindings); // the type stands where a name would; the value has one already
    return axcNil();
}

void AxRwProperty::putData(std::string& out, int indent)
{
    if (!myValue)
    {
        return;
    }
    std::string value;
    myValue->putSelf(value, indent, myValue->isValue(), AxFilename::nullFilename());
    std::string head = "(";
    axAppendName(head, myValue->name());
    axAppendName(out, AxSymbolString(myType));
    out.append(value, head.size(), value.size() - head.size() - 1);
}

void AxRwProperty::reset()
{
    AxReaderWriter::reset();
    if (myValue)
    {
        myValue->reset();
    }
}

void AxRwProperty::bindVariables(AxBindingsList const& bindings)
{
    AxReaderWriter::bindVariables(bindings);
    if (myValue)
    {
        myValue->bindVariables(bindings);
    }
}

void AxRwProperty::bindLocalVariables(AxBindingsList const& bindings)
{
    AxReaderWriter::bindLocalVariables(bindings);
    if (myValue)
    {
        myValue->bindLocalVariables(bindings);
    }
}

void AxRwProperty::clearAllVariableReferenceFlags()
{
    AxReaderWriter::clearAllVariableReferenceFlags();
    if (myValue)
    {
        myValue->clearAllVariableReferenceFlags();
    }
}

AxUnboundVariableList AxRwProperty::unboundVariables() const
{
    AxUnboundVariableList unbound = AxReaderWriter::unboundVariables();
    if (myValue)
    {
        unbound.splice(unbound.end(), myValue->unboundVariables());
    }
    return unbound;
}

bool AxRwProperty::hasVariableReference() const
{
    return AxReaderWriter::hasVariableReference() || (myValue && myValue->hasVariableReference());
}

double AxRwProperty::recordUpdateTime() const
{
    double const own = AxReaderWriter::recordUpdateTime();
    return myValue ? std::max(own, myValue->recordUpdateTime()) : own;
}

char const* AxRwProperty::readerWriterType() const
{
    return "AxRwProperty";
}

char const* AxRwProperty::xmlType() const
{
    return "property";
}

AxRwProperty const* AxRwProperty::property() const
{
    return this;
}

AxRwProperty* AxRwProperty::property()
{
    return this;
}
