#include "AxReadBudget.h"

#include "AxSourceScope.h"

bool AxReadBudget::grants(bool direct)
{
    unsigned long const source = AxSourceScope::outermost();
    if (source == 0 ? direct : source != mySource)
    {
        mySource = source;
        myDirectUses = 0;
        myUses = 0;
        myIsTold = false;
    }
    ++(direct ? myDirectUses : myUses);
    return myUses <= myMost + perDirectUse * myDirectUses;
}

bool AxReadBudget::isFirstRefusal()
{
    bool const isFirst = !myIsTold;
    myIsTold = true;
    return isFirst;
}
