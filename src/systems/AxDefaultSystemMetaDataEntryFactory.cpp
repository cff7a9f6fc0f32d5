#include "AxDefaultSystemMetaDataEntryFactory.h"

#include "AxDetectObjectTypesMetaDataEntry.h"
#include "AxDetectedObjectsMetaDataEntry.h"
#include "AxSoilFactorsMetaDataEntry.h"
#include "AxTargetSelectionMetaDataEntry.h"

AxDefaultSystemMetaDataEntryFactory::~AxDefaultSystemMetaDataEntryFactory() = default;

void AxDefaultSystemMetaDataEntryFactory::registerCreators(AxSystemMetaDataEntry::Factory* factory)
{
    if (factory == nullptr)
    {
        return;
    }
    factory->addCreator("target-selection", &AxTargetSelectionMetaDataEntry::create);
    factory->addCreator("detect-object-types-input", &AxDetectObjectTypesMetaDataEntry::create);
    factory->addCreator("detected-objects-output", &AxDetectedObjectsMetaDataEntry::create);
    factory->addCreator("soil-factors", &AxSoilFactorsMetaDataEntry::create);
}

AxDefaultSystemMetaDataEntryFactory* AxDefaultSystemMetaDataEntryFactory::create()
{
    auto* const made = new AxDefaultSystemMetaDataEntryFactory;
    registerCreators(made);
    return made;
}
