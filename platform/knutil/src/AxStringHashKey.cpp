#include "AxStringHashKey.h"

bool AxStringHashKey::equals(AxBaseHashKey const& other) const
{
    auto const* key = dynamic_cast<AxStringHashKey const*>(&other);
    return key != nullptr && key->myText == myText;
}
