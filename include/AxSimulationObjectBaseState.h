#pragma once

#include "AxRecordOf.h"
#include "AxRwForceType.h"
#include "AxRwObjectType.h"
#include "AxRwString.h"
#include "AxRwTaitBryan.h"
#include "AxRwUUID.h"
#include "AxRwVector.h"

/// How one object of a saved group is created: what it is, whose it is and where it stands.
class ZEDOBJPARAM_API AxSimulationObjectBaseState
    : public AxRecordOf<AxSimulationObjectBaseState, "AxSimulationObjectBaseState">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxSimulationObjectBaseState() override;

    /// The tag of such objects in a group file.
    static char const* theXmlType() { return "AxSimulationObjectBaseState"; }
    virtual AxSimulationObjectBaseState* clone() const { return copy(); }

    boost::uuids::uuid const& uuid() const { return myUuid.value(); }
    void setUuid(boost::uuids::uuid const& uuid) { assignSpecified(myUuid, uuid); }
    AxString const& label() const { return myLabel.value(); }
    void setLabel(AxString const& label) { assignSpecified(myLabel, label); }
    AxObjectType const& objectType() const { return myObjectType.value(); }
    void setObjectType(AxObjectType const& type) { assignSpecified(myObjectType, type); }
    AxForceType force() const { return myForce; }
    void setForce(AxForceType force) { assignSpecified(myForce, force); }
    AxVector64 const& location() const { return myLocation.value(); }
    void setLocation(AxVector64 const& location) { assignSpecified(myLocation, location); }
    AxTaitBryan const& orientation() const { return myOrientation.value(); }
    void setOrientation(AxTaitBryan const& orientation) { assignSpecified(myOrientation, orientation); }
    /// The object of the group that commands this one; null: none.
    boost::uuids::uuid const& superior() const { return mySuperior.value(); }
    void setSuperior(boost::uuids::uuid const& uuid) { assignSpecified(mySuperior, uuid); }

private:
    AxRwUUID myUuid{{"uuid", "", "What other objects of the group know it by."}, registry()};
    AxRwString myLabel{{"label", "", "Name shown to people."}, registry()};
    AxRwObjectType myObjectType{{"object-type", "", "What it is."}, registry()};
    AxRwForceType myForce{{"force", "", "Its side."}, registry()};
    AxRwVector myLocation{{"location", "m", "Place from the origin of the group."}, registry()};
    AxRwTaitBryan myOrientation{{"orientation", "rad", "How it is turned."}, registry()};
    AxRwUUID mySuperior{{"superior", "", "Object of the group that commands it."}, registry()};
};
