#include "AxRwSensorSignatureList.h"

AxRwSensorSignatureList::~AxRwSensorSignatureList() = default;

double AxRwSensorSignatureList::signature(AxString const& domain) const
{
    return get(domain);
}

void AxRwSensorSignatureList::setSignature(AxString const& domain, double strength)
{
    set(domain, strength);
}

char const* AxRwSensorSignatureList::readerWriterType() const
{
    return "AxRwSensorSignatureList";
}
