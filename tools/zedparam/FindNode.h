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
};
