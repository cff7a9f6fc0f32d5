#pragma once

#include "AxRwRealAttributeList.h"

/// How strongly an object shows in each sensor domain ("visual", "infrared", ...); a sensor's sensitivity scales it.
class ZEDOBJPARAM_API AxRwSensorSignatureList : public AxRwRealAttributeList
{
public:
    using AxRwRealAttributeList::AxRwRealAttributeList;
    AxRwSensorSignatureList(AxRwSensorSignatureList const&) = default;
    ~AxRwSensorSignatureList() override;
    AxRwSensorSignatureList& operator=(AxRwSensorSignatureList const&) = default;

    /// 0.0 for a domain that is not listed.
    virtual double signature(AxString const& domain) const;
    virtual void setSignature(AxString const& domain, double strength);

    char const* readerWriterType() const override;
};
