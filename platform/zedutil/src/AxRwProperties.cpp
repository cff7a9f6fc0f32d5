#include "AxRwProperties.h"

#include "axAddKeyed.h"

#include <memory>

AxRwProperties::~AxRwProperties() = default;

AxRwProperty* AxRwProperties::add(AxString const& name, AxString const& type)
{
    auto property = std::make_unique<AxRwProperty>(AxSymbolString(name), nullptr);
    if (!property->setType(type))
    {
        return nullptr;
    }
    property->setValueSpecified(true, false);
    remove(name);
    AxRwList::add(property.get());
    return property.release();
}

bool AxRwProperties::remove(AxString const& name)
{
    AxRwProperty* const property = find(name);
    if (!property)
    {
        return false;
    }
    AxRwList::remove(property, nullptr);
    delete property;
    return true;
}

AxRwProperty* AxRwProperties::set(AxString const& name, AxReaderWriter const& value)
{
    auto property = std::make_unique<AxRwProperty>(AxSymbolString(name), nullptr);
    if (!property->setType(AxString(value.readerWriterType())) ||
        !factory()->copyReaderWriter(&value, property->rwValue()))
    {
        return nullptr;
    }
    property->setValueSpecified(true, false);
    remove(name); // `value` may be that of the property that is replaced, so this comes last
    AxRwList::add(property.get());
    return property.release();
}

AxlObjPtr AxRwProperties::getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (keepNameless(item.get()))
    {
        return item;
    }
    auto property = std::make_unique<AxRwProperty>(headName(item), nullptr);
    property->getSelf(item, files, bindings);
    AxReaderWriter const* const value = property->rwValue();
    if (!property->isVariableReference() && !(value && (value->valueSpecified() || value->isVariableReference())))
    {
        keepElement(item.get());
        return item;
    }
    axAddKeyed(*this, property.release(), &axNameKey);
    return item;
}

char const* AxRwProperties::readerWriterType() const
{
    return "AxRwProperties";
}

char const* AxRwProperties::xmlType() const
{
    return "properties";
}
