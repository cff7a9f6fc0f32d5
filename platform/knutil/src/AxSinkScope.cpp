#include "AxSinkScope.h"

#include <utility>

AxSinkScope::AxSinkScope(AxLogStream& stream) : AxSinkScope(stream, [this](std::string const& line) { myText += line; })
{
}

AxSinkScope::AxSinkScope(AxLogStream& stream, AxLogStream::Sink sink) : myStream(stream)
{
    myStream.flush();
    myPrevious = myStream.setSink(std::move(sink));
}

AxSinkScope::~AxSinkScope()
{
    myStream.flush();
    myStream.setSink(std::move(myPrevious));
}

std::string const& AxSinkScope::text()
{
    myStream.flush();
    return myText;
}

void AxSinkScope::clear()
{
    myStream.flush();
    myText.clear();
}
