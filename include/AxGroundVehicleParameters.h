#pragma once

#include "AxMovingObjectParameters.h"
#include "AxSoilList.h"

/// A vehicle on wheels or tracks. Its other support is the one at the rear.
class ZEDOBJPARAM_API AxGroundVehicleParameters
    : public AxObjectRecordOf<AxGroundVehicleParameters, AxMovingObjectParameters, "ground-vehicle-param">
{
public:
    AxGroundVehicleParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                              AxEnvValuePtr const* node = nullptr);
    ~AxGroundVehicleParameters() override;

    virtual AxSoilList& soilList() { return mySoilList; }
    virtual AxSoilList const& soilList() const { return mySoilList; }
    virtual void setSoilList(AxSoilList const& list) { assignSpecified(mySoilList, list); }

protected:
    AxGroundVehicleParameters(AxGroundVehicleParameters const& other, AxSymbolString name,
                              AxReaderWriterRegistry* parent)
        : AxGroundVehicleParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxSoilList mySoilList{{"soil-list", "", "What soils do to speed and acceleration; empty: nothing."}, registry()};
};
