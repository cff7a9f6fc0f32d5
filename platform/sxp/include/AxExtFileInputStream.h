#pragma once

#include <cstdio>

#include "AxExport.h"
#include "AxFilename.h"
#include "AxlFileInputStream.h"

/// A file's text that knows the name it was opened by.
class ZEDOBJPARAM_API AxExtFileInputStream : public AxlFileInputStream
{
public:
    AxExtFileInputStream(std::FILE* file, AxFilename filename);
    ~AxExtFileInputStream() override;

    AxFilename const& filename() const { return myFilename; }

private:
    AxFilename myFilename;
};
