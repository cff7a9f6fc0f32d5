#pragma once

#include "AxReaderWriterFileExtensible.h"
#include "AxRwBoolean.h"

#include <memory>

class AxComponentSystemDefinition;

/// The use of a component system in an object or in another system: which definition file, and what is set for this
/// use. The parameters that the definition declares are keywords of this record, from when the definition is read.
///
/// A reference `$name` in the definition that nothing else binds takes the value of the member of that name, so one
/// definition serves several objects with different values.
class ZEDOBJPARAM_API AxComponentSystemDescriptor : public AxReaderWriter
{
public:
    AxComponentSystemDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxComponentSystemDescriptor(AxString const& name, AxReaderWriterRegistry* registry);
    AxComponentSystemDescriptor(char const* name, AxReaderWriterRegistry* registry);
    AxComponentSystemDescriptor(AxSymbolString name, AxComponentSystemDescriptor const& other,
                                AxReaderWriterRegistry* registry);
    AxComponentSystemDescriptor(AxComponentSystemDescriptor const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxComponentSystemDescriptor() override;

    /// Takes definition file, definition and the members made for declared parameters, then every value.
    AxComponentSystemDescriptor& operator=(AxComponentSystemDescriptor const& other);
    bool equals(AxComponentSystemDescriptor const& other) const { return AxReaderWriter::operator==(other); }
    bool operator==(AxComponentSystemDescriptor const& other) const { return equals(other); }

    AxReaderWriterFileExtensible const& systemDefinitionFile() const { return mySystemDefinitionFile; }
    AxReaderWriterFileExtensible& systemDefinitionFile() { return mySystemDefinitionFile; }
    /// Names the file; nothing is loaded.
    void setSystemDefinitionFile(AxFilename const& file);
    bool isEnabled() const { return myIsEnabled.value(); }
    void setIsEnabled(bool enabled);
    bool partOfRollUp() const { return myPartOfRollUp.value(); }
    void setPartOfRollUp(bool part);

    /// Lives until the descriptor dies or resets it.
    AxComponentSystemDefinition const* systemDefinition() const { return myDefinition.get(); }
    AxComponentSystemDefinition* systemDefinition() { return myDefinition.get(); }
    /// Deletes the definition and puts an empty one in its place, unchanged as if just read.
    void resetSystemDefinition();
    /// Makes a member for each parameter that the definition declares and this record lacks, with the default of the
    /// declaration and not specified. A name that a member of another type has already is reported and left.
    void addVariableBindingsFromMetaData();

    /// A copy under the same name; null when there is no memory for it.
    virtual AxComponentSystemDescriptor* clone(AxReaderWriterRegistry* registry) const;

    using AxReaderWriter::getData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void postGetSelf() override;
    void bindVariables(AxBindingsList const& bindings) override;
    void bindLocalVariables(AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;

private:
    void attachDefinition();
    static bool isReadForAnother();
    template <class Bind>
    void bindParameters(Bind const& bind);
    void bindReferencesInDefinition(AxBindingsList const& others);

    AxReaderWriterFileExtensible mySystemDefinitionFile{{"system-definition", "", "File that defines the system."},
                                                        registry()};
    AxRwBoolean myIsEnabled{{"is-enabled", "", "Whether the system takes part from the start."}, true, registry()};
    AxRwBoolean myPartOfRollUp{
        {"part-of-roll-up", "", "Whether its parameters count when systems are aggregated."}, false, registry()};
    std::unique_ptr<AxComponentSystemDefinition> myDefinition;
};
