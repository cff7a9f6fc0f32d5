#include "AxlFileInputStream.h"

#include <utility>

#include "AxFileBytes.h"

AxlFileInputStream::AxlFileInputStream(std::FILE* file) : AxlInputStream(std::string())
{
    std::string text;
    bool valid = axReadRest(file, text);
    setText(std::move(text), valid);
}

AxlFileInputStream::~AxlFileInputStream() = default;
