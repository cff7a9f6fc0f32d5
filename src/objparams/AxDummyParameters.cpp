#include "AxDummyParameters.h"

#include "AxlFunctions.h"

AxDummyParameters::~AxDummyParameters() = default;

AxlObjPtr AxDummyParameters::getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&)
{
    for (AxlObj const* rest = items.get(); rest->isPair(); rest = rest->cdr())
    {
        if (rest->car()->car()->text() == "parameter-type")
        {
            return AxcCons(AxlObjPtr(rest->car()), axcNil());
        }
    }
    return axcNil();
}
