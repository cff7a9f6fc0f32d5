#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// A controller that turns a turret to the selected target and keeps it there.
class ZEDOBJPARAM_API AxTurretAcquireControllerDescriptor
    : public AxDescriptorOf<AxTurretAcquireControllerDescriptor, AxComponentDescriptor,
                            "turret-acquire-controller-descriptor">
{
public:
    AxTurretAcquireControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTurretAcquireControllerDescriptor(AxTurretAcquireControllerDescriptor const& other,
                                        AxReaderWriterRegistry* registry)
        : AxTurretAcquireControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxTurretAcquireControllerDescriptor() override;

    virtual bool trackBySignature() const { return myTrackBySignature; }
    virtual void setTrackBySignature(bool track) { assignSpecified(myTrackBySignature, track); }
    virtual AxString const& trackSignatureDomain() const { return myTrackSignatureDomain.value(); }
    virtual void setTrackSignatureDomain(AxString const& domain) { assignSpecified(myTrackSignatureDomain, domain); }
    virtual double minTrackSignature() const { return myMinTrackSignature; }
    virtual void setMinTrackSignature(double signature) { assignSpecified(myMinTrackSignature, signature); }
    virtual double maxAlignmentAngle() const { return myMaxAlignmentAngle; }
    virtual void setMaxAlignmentAngle(double angle) { assignSpecified(myMaxAlignmentAngle, angle); }

private:
    AxRwBoolean myTrackBySignature{
        {"track-by-signature", "", "Whether a target is tracked only while its signature is strong enough."},
        registry()};
    AxRwString myTrackSignatureDomain{
        {"track-signature-domain", "", "Domain of the signature that is tracked, as in the target's signatures."},
        registry()};
    AxRwReal myMinTrackSignature{{"min-track-signature", "", "Weakest signature that is still tracked."}, registry()};
    AxRwReal myMaxAlignmentAngle{
        {"max-alignment-angle", "rad", "Error of the turret below which it counts as on target.", axHalfTurn},
        axRadians(1.0),
        registry()};
};
