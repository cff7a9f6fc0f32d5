#include "AxZedParameterDbEntry.h"

#include "AxZedObjectParameters.h"
#include "AxZedParameterDb.h"

AxZedParameterDbEntry::~AxZedParameterDbEntry()
{
    if (myHolder != nullptr)
    {
        myHolder->release(*this);
    }
    delete myParameters;
    myParameters = nullptr;
}

AxZedParameterDbEntry::Use::~Use()
{
    if (--myEntry.myNumUses == 0 && myEntry.myIsGone)
    {
        delete &myEntry;
    }
}

void AxZedParameterDbEntry::setObjectType(AxObjectType const& type)
{
    if (myHolder != nullptr && !(myObjectType == type))
    {
        myHolder->typeChanges();
    }
    myObjectType = type;
}

AxObjectType const& AxZedParameterDbEntry::objectType() const
{
    return myObjectType;
}

void AxZedParameterDbEntry::setParameters(AxZedObjectParameters* parameters)
{
    myParameters = parameters;
}

AxZedObjectParameters* AxZedParameterDbEntry::parameters() const
{
    return myParameters;
}

AxZedObjectParameters* AxZedParameterDbEntry::load()
{
    return myParameters;
}

AxString AxZedParameterDbEntry::uniqueIdentifier() const
{
    return myObjectType.string(":");
}
