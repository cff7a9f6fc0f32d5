#pragma once

#include "AxComponentSystemDescriptor.h"

/// Whether a system names a definition that was not read, so that nobody knows which keywords that declares.
inline bool axHasUnreadDefinition(AxComponentSystemDescriptor const& system)
{
    AxReaderWriterFile const& file = system.systemDefinitionFile();
    return (!file.filename().isNull() || file.isVariableReference()) && file.foundFilename().isNull();
}
