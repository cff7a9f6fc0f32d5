#pragma once

#include "AxHashlist.h"
#include "AxZedObjectParameters.h"

/// Makes object records by their exact type names. Owns its entries.
class ZEDOBJPARAM_API AxZedObjectParameterFactory : public AxHashlist
{
public:
    AxZedObjectParameterFactory();
    /// Enters what the other has, in its order.
    AxZedObjectParameterFactory(AxZedObjectParameterFactory const& other);
    ~AxZedObjectParameterFactory() override;
    AxZedObjectParameterFactory& operator=(AxZedObjectParameterFactory const& other);

    // ---- The order of the virtual operations is part of the interface. ----
    /// Enters a name; a name that is known gets the new creator and keeps its place.
    virtual void addCreatorFcn(AxString const& name, AxZedObjectParameters::CreatorFcn creator);
    /// A new record that the caller owns and initialises, its parameter type set to `name`; null after a warning for an
    /// unknown name.
    virtual AxZedObjectParameters* createParameters(AxString const& name, AxEnvironmentPtr env, AxEnvValuePtr* node);
    // ---- End of the virtual operations. ----

    bool knows(AxString const& name) const;
    /// The names in the order in which they were entered.
    std::list<AxString> typeNames() const;
    /// What is printed for a name without a creator.
    static std::string unknownTypeLine(AxString const& name);

    static AxZedObjectParameterFactory* create();

private:
    void addEntriesOf(AxZedObjectParameterFactory const& other);
    void deleteEntries();
};
