#pragma once

#include <cstdio>

#include "AxExport.h"
#include "AxlInputStream.h"

/// What is left of an open C file, read at once. The file stays open and the caller's; nothing may be expected of its
/// position afterwards. Invalid when the file is null, a directory, cannot be read or is longer than the limit.
class ZEDOBJPARAM_API AxlFileInputStream : public AxlInputStream
{
public:
    explicit AxlFileInputStream(std::FILE* file);
    ~AxlFileInputStream() override;
};
