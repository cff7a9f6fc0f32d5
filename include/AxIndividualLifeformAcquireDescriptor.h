#pragma once

#include "AxDescriptorOf.h"
#include "AxGroundMoveToDescriptor.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// Turns and moves a lifeform until its weapon bears on the target.
class ZEDOBJPARAM_API AxIndividualLifeformAcquireDescriptor
    : public AxDescriptorOf<AxIndividualLifeformAcquireDescriptor, AxGroundMoveToDescriptor,
                            "individual-lifeform-acquire-descriptor">
{
public:
    AxIndividualLifeformAcquireDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxIndividualLifeformAcquireDescriptor(AxIndividualLifeformAcquireDescriptor const& other,
                                          AxReaderWriterRegistry* registry)
        : AxIndividualLifeformAcquireDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxIndividualLifeformAcquireDescriptor() override;

    virtual AxString const& weaponProcessStateRepositoryName() const
    {
        return myWeaponProcessStateRepositoryName.value();
    }
    virtual void setWeaponProcessStateRepositoryName(AxString const& name)
    {
        assignSpecified(myWeaponProcessStateRepositoryName, name);
    }
    virtual bool trackBySignature() const { return myTrackBySignature; }
    virtual void setTrackBySignature(bool track) { assignSpecified(myTrackBySignature, track); }
    virtual AxString const& trackSignatureDomain() const { return myTrackSignatureDomain.value(); }
    virtual void setTrackSignatureDomain(AxString const& domain) { assignSpecified(myTrackSignatureDomain, domain); }
    virtual double minTrackSignature() const { return myMinTrackSignature; }
    virtual void setMinTrackSignature(double signature) { assignSpecified(myMinTrackSignature, signature); }

private:
    AxRwString myWeaponProcessStateRepositoryName{{"weapon-process-state-repository-name", "",
                                                   "State repository that tells how far the weapon's firing has come."},
                                                  registry()};
    AxRwBoolean myTrackBySignature{
        {"track-by-signature", "", "Whether only targets with enough signature are tracked."}, registry()};
    AxRwString myTrackSignatureDomain{
        {"track-signature-domain", "", "Key of the target's signature that counts, such as \"infrared\"."}, registry()};
    AxRwReal myMinTrackSignature{{"min-track-signature", "", "Least signature that is tracked.", axNotNegative},
                                 registry()};
};
