#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "RecordValue.h"
#include "RecordWalk.h"
#include "Units.h"

class AxSxpParameterDbEntry;

/// What is wrong with an expression, at its column (from 1).
struct ExpressionFault
{
    std::size_t column = 0;
    std::string text;
};

/// A condition on records, such as `max-speed > 60 km/h and not parameter-type = "missile-param"`; the language is
/// described in docs/find-language.md.
class FindExpression
{
public:
    /// Null, and `fault` filled, for a text that is no expression.
    static std::unique_ptr<FindExpression> parse(std::string_view text, ExpressionFault& fault);
    ~FindExpression();

    /// Whether the record meets the condition. A unit that does not go with a value fills `fault` and gives false.
    bool holds(AxSxpParameterDbEntry const& entry, RecordWalk& walk, ExpressionFault& fault);

    /// A path in the expression, and whether any record was asked for it and had it so far.
    struct Path
    {
        KeywordPath keywords;
        bool wasAsked = false;
        bool wasFound = false;
    };
    /// In the order of the text, each once.
    std::vector<Path> const& paths() const { return myPaths; }

    /// Of each comparison of a number with texts, or the other way round, in all records that were asked: why it never
    /// holds.
    std::vector<std::string> futile() const;

private:
    friend class ExpressionParser;

    enum class Operator
    {
        Equal,
        Unequal,
        Less,
        LessOrEqual,
        Greater,
        GreaterOrEqual,
        Like
    };
    struct Operand
    {
        enum class Kind
        {
            Literal,
            Path,
            Attribute
        };
        Kind kind = Kind::Literal;
        std::size_t column = 0;
        Atom literal{};
        Unit const* unit = nullptr; ///< of a literal
        std::size_t path = 0;
        std::string attribute{};
    };
    struct Kinds
    {
        bool numbers = false;
        bool texts = false;
        bool isAny() const { return numbers || texts; }
    };
    struct Node;
    using NodePtr = std::unique_ptr<Node>;
    struct Subject;

    FindExpression();

    bool holds(Node& node, Subject& subject);
    bool compares(Node& node, Subject& subject);
    void appendFutile(Node const& node, std::vector<std::string>& out) const;
    std::string shown(Operand const& operand) const;
    std::vector<Atom> atoms(Operand const& operand, Unit const* unit, std::size_t unitColumn, Subject& subject);

    NodePtr myRoot;
    std::vector<Path> myPaths;
};
