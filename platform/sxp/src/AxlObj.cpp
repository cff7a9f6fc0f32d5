#include "AxlObj.h"

#include "AxlCellPool.h"
#include "AxlFunctions.h"

constinit AxlObj AxlObj::theNil(AxlObj::Tag::Nil);
constinit AxlObj AxlObj::theEof(AxlObj::Tag::Eof);

AxString AxlObj::pname() const
{
    if (myTag != Tag::Number)
    {
        return AxString(text());
    }
    std::string number;
    AxlCellPool::appendNumber(number, this);
    return AxString(std::move(number));
}

void AxlObj::destroy(AxlObj const* cell)
{
    AxlCellPool::destroy(cell);
}

bool operator==(AxlObjPtr const& a, AxlObjPtr const& b)
{
    return AxcEq(a, b);
}
