#include "AxlObj.h"

#include <string>

#include <gtest/gtest.h>

#include "AxlFunctions.h"

TEST(AxlObj, AnswersNilForAnythingThatIsNoPair)
{
    for (AxlObjPtr const& cell : {AxlObjPtr(), axcNil(), axcEof(), AxcNumber(1.0), AxcString("a"), AxcSymbol("a")})
    {
        EXPECT_TRUE(AxcCar(cell).nil());
        EXPECT_TRUE(AxcCdr(cell).nil());
        EXPECT_TRUE(AxcCadr(cell).nil());
        EXPECT_TRUE(AxcCaddr(cell).nil());
        EXPECT_EQ(AxcLength(cell), 0);
    }
    EXPECT_FALSE(axcEof().nil());
}

TEST(AxlObj, WalksLists)
{
    AxlObjPtr list = AxcCons(AxcSymbol("a"), AxcCons(AxcNumber(2.0), AxcCons(AxcString("c"), {})));
    EXPECT_EQ(AxcLength(list), 3);
    EXPECT_EQ(AxcCar(list)->symbol(), "a");
    EXPECT_EQ(AxcCadr(list)->flonum(), 2.0);
    EXPECT_EQ(AxcCaddr(list)->text(), "c");
}

TEST(AxlObj, ComparesAtomsByValueAndListsByIdentity)
{
    EXPECT_EQ(AxcSymbol("a"), AxcIntern("a"));
    EXPECT_EQ(AxcNumber(5.0), AxcInteger(5));
    EXPECT_EQ(AxcString("a"), AxcString("a"));
    EXPECT_NE(AxcString("a"), AxcSymbol("a"));
    EXPECT_EQ(AxlObjPtr(), axcNil());
    AxlObjPtr list = AxcCons(AxcNumber(1.0), {});
    AxlObjPtr same = list;
    EXPECT_EQ(list, same);
    EXPECT_NE(list, AxcCons(AxcNumber(1.0), {}));
}

TEST(AxlObj, KeepsWhatIsSharedAlive)
{
    AxlObjPtr tail = AxcCons(AxcString("a text that does not fit the cell"), {});
    {
        AxlObjPtr list = AxcCons(tail, tail);
    }
    EXPECT_EQ(AxcCar(tail)->text(), "a text that does not fit the cell");
    AxlObjPtr text = AxcCar(tail);
    tail = {};
    EXPECT_EQ(text->text(), "a text that does not fit the cell");
}

TEST(AxlObj, FreesDeepAndLongListsWithoutRecursion)
{
    AxlObjPtr deep;
    AxlObjPtr longList;
    for (int i = 0; i < 1000000; ++i)
    {
        deep = AxcCons(deep, AxcCons(AxcInteger(i), {}));
        longList = AxcCons(AxcInteger(i), longList);
    }
    deep = {};
    longList = {};
    EXPECT_EQ(AxcInteger(7)->flonum(), 7.0);
}

TEST(AxlObj, NumbersMadeInCodeAnswerTheUsualSpelling)
{
    EXPECT_EQ(AxcNumber(5000.0)->pname(), "5000.0");
    EXPECT_EQ(AxcInteger(-12)->pname(), "-12");
    EXPECT_EQ(AxcInteger(9223372036854775807LL)->pname(), "9223372036854775807");
    EXPECT_EQ(AxcString("12")->pname(), "12");
    EXPECT_EQ(axcNil()->pname(), "");
}
