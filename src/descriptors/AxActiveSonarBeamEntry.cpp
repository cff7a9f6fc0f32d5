#include "AxActiveSonarBeamEntry.h"

AxActiveSonarBeamEntry::~AxActiveSonarBeamEntry() = default;
