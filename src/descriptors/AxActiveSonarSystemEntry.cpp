#include "AxActiveSonarSystemEntry.h"

AxActiveSonarSystemEntry::~AxActiveSonarSystemEntry() = default;
