#include "AxExtFileInputStream.h"

#include <utility>

AxExtFileInputStream::AxExtFileInputStream(std::FILE* file, AxFilename filename)
    : AxlFileInputStream(file), myFilename(std::move(filename))
{
}

AxExtFileInputStream::~AxExtFileInputStream() = default;
