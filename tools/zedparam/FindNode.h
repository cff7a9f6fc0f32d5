#pragma once

#include "FindExpression.h"

/// One operation of an expression.
struct FindExpression::Node
{
    enum class Kind
    {
        And,
        Or,
        Not,
        Exists,
        Specified,
        Compare
    };
    Kind kind;
    std::vector<NodePtr> parts{}; ///< of And, Or, Not
    Operand left{};               ///< of the others
    Operator op = Operator::Equal;
    Operand right{};
    /// What records had on either side up to now, and whether one and the other could be compared.
    Kinds leftKinds{};
    Kinds rightKinds{};
    bool wasComparable = false;
};
