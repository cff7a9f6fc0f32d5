#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

#include "AxNumberText.h"
#include "FindNode.h"
#include "PathText.h"

/// Reads an expression: `or` binds least, then `and`, `not`, and comparisons.
class ExpressionParser
{
public:
    ExpressionParser(std::string_view text, FindExpression& expression) : myText(text), myExpression(expression)
    {
        advance();
    }

    FindExpression::NodePtr whole()
    {
        NodePtr root = either();
        if (myToken.kind != Token::Kind::End)
        {
            fail("expected \"and\", \"or\" or the end, found " + shown());
        }
        return root;
    }

    struct Failure
    {
        ExpressionFault fault;
    };

private:
    using Node = FindExpression::Node;
    using NodePtr = FindExpression::NodePtr;
    using Operand = FindExpression::Operand;

    struct Token
    {
        enum class Kind
        {
            End,
            Word,
            Text,
            Sign
        };
        Kind kind = Kind::End;
        std::size_t column = 1;
        std::string text{};
    };

    static constexpr int theDeepest = 200;
    static constexpr std::string_view theSigns = "()=!<>~";

    [[noreturn]] void fail(std::string text) const { throw Failure{{myToken.column, std::move(text)}}; }

    std::string shown() const
    {
        return myToken.kind == Token::Kind::End ? std::string("the end") : "\"" + myToken.text + "\"";
    }

    void advance()
    {
        auto const isBlank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
        while (myAt < myText.size() && isBlank(myText[myAt]))
        {
            ++myAt;
        }
        myToken = {Token::Kind::End, myAt + 1, {}};
        if (myAt == myText.size())
        {
            return;
        }
        char const first = myText[myAt];
        std::size_t end = myAt + 1;
        if (first == '"' || first == '\'')
        {
            end = myText.find(first, end);
            if (end == std::string_view::npos)
            {
                fail(std::string("expected ") + first + " at the end of the text that begins here");
            }
            myToken.kind = Token::Kind::Text;
            myToken.text = myText.substr(myAt + 1, end - myAt - 1);
            myAt = end + 1;
            return;
        }
        if (theSigns.find(first) != std::string_view::npos)
        {
            bool const isDouble =
                (first == '<' || first == '>' || first == '!') && end < myText.size() && myText[end] == '=';
            end += isDouble;
            myToken.kind = Token::Kind::Sign;
        }
        else
        {
            end = myAt;
            while (end < myText.size() && !isBlank(myText[end]) &&
                   theSigns.find(myText[end]) == std::string_view::npos && myText[end] != '"' && myText[end] != '\'')
            {
                end = std::max(end + 1, behindQuoted(myText, end));
            }
            myToken.kind = Token::Kind::Word;
        }
        myToken.text = myText.substr(myAt, end - myAt);
        myAt = end;
    }

    bool take(Token::Kind kind, std::string_view text)
    {
        bool const isNext = myToken.kind == kind && myToken.text == text;
        if (isNext)
        {
            advance();
        }
        return isNext;
    }
    bool takeWord(std::string_view word) { return take(Token::Kind::Word, word); }

    NodePtr chain(Node::Kind kind, std::string_view word, NodePtr (ExpressionParser::*part)())
    {
        NodePtr first = (this->*part)();
        if (!takeWord(word))
        {
            return first;
        }
        auto node = std::make_unique<Node>(Node{kind});
        node->parts.push_back(std::move(first));
        do
        {
            node->parts.push_back((this->*part)());
        } while (takeWord(word));
        return node;
    }

    NodePtr either() { return chain(Node::Kind::Or, "or", &ExpressionParser::both); }
    NodePtr both() { return chain(Node::Kind::And, "and", &ExpressionParser::term); }

    NodePtr term()
    {
        if (++myDepth > theDeepest)
        {
            fail("expected at most " + std::to_string(theDeepest) + " parentheses and \"not\" inside each other");
        }
        NodePtr node;
        if (takeWord("not"))
        {
            node = std::make_unique<Node>(Node{Node::Kind::Not});
            node->parts.push_back(term());
        }
        else if (take(Token::Kind::Sign, "("))
        {
            node = either();
            if (!take(Token::Kind::Sign, ")"))
            {
                fail("expected \")\", found " + shown());
            }
        }
        else if (takeWord("exists"))
        {
            node = std::make_unique<Node>(Node{Node::Kind::Exists, {}, pathOnly()});
        }
        else if (takeWord("specified"))
        {
            node = std::make_unique<Node>(Node{Node::Kind::Specified, {}, pathOnly()});
        }
        else
        {
            node = comparison();
        }
        --myDepth;
        return node;
    }

    NodePtr comparison()
    {
        using Operator = FindExpression::Operator;
        constexpr std::array<std::pair<std::string_view, Operator>, 7> theOperators{{{"=", Operator::Equal},
                                                                                     {"!=", Operator::Unequal},
                                                                                     {"<", Operator::Less},
                                                                                     {"<=", Operator::LessOrEqual},
                                                                                     {">", Operator::Greater},
                                                                                     {">=", Operator::GreaterOrEqual},
                                                                                     {"~", Operator::Like}}};
        auto node = std::make_unique<Node>(Node{Node::Kind::Compare, {}, operand()});
        auto const found = std::ranges::find(theOperators, myToken.text, &std::pair<std::string_view, Operator>::first);
        if (myToken.kind != Token::Kind::Sign || found == theOperators.end())
        {
            fail("expected =, !=, <, <=, >, >= or ~, found " + shown());
        }
        node->op = found->second;
        advance();
        node->right = operand();
        Operand const& right = node->right;
        bool const ranks = node->op != Operator::Equal && node->op != Operator::Unequal && node->op != Operator::Like;
        if (right.kind == Operand::Kind::Literal && !right.literal.isNumber && ranks)
        {
            throw Failure{{right.column, "expected a number or a keyword, found a text"}};
        }
        if (node->op == Operator::Like && (right.kind != Operand::Kind::Literal || right.literal.isNumber))
        {
            throw Failure{{right.column, "expected a text in quotes, which may hold * and ?"}};
        }
        return node;
    }

    Operand pathOnly()
    {
        Operand const operand = this->operand();
        if (operand.kind != Operand::Kind::Path)
        {
            throw Failure{{operand.column, "expected a keyword"}};
        }
        return operand;
    }

    Operand operand()
    {
        Operand operand;
        operand.column = myToken.column;
        std::string const text = myToken.text;
        if (myToken.kind == Token::Kind::Text)
        {
            operand.literal = {false, 0.0, text};
        }
        else if (myToken.kind != Token::Kind::Word || isReserved(text))
        {
            fail("expected a keyword, a number or a text in quotes, found " + shown());
        }
        else if (text == "true" || text == "false")
        {
            operand.literal = {false, 0.0, text};
        }
        else if (std::isdigit(static_cast<unsigned char>(text.front())) || text.find_first_of("+-.") == 0)
        {
            return number(operand);
        }
        else if (text.front() == '@')
        {
            if (text != "@type" && text != "@name" && text != "@file")
            {
                fail("expected @type, @name or @file, found " + shown());
            }
            operand.kind = Operand::Kind::Attribute;
            operand.attribute = text;
        }
        else
        {
            operand.kind = Operand::Kind::Path;
            operand.path = pathIndex(text);
        }
        advance();
        return operand;
    }

    /// "60 km/h" or "60km/h".
    Operand number(Operand& operand)
    {
        std::string const text = myToken.text;
        std::size_t const end = numberEnd(text);
        double value = 0.0;
        if (!axParseReal(std::string_view(text).substr(0, end), value))
        {
            fail("expected a number, found " + shown());
        }
        std::string unit = text.substr(end);
        std::size_t const column = myToken.column + end;
        advance();
        if (unit.empty() && myToken.kind == Token::Kind::Word && !isReserved(myToken.text))
        {
            if (unitNamed(myToken.text) == nullptr)
            {
                fail("expected a unit such as km/h, \"and\", \"or\" or the end, found " + shown());
            }
            unit = myToken.text;
            advance();
        }
        operand.unit = unit.empty() ? nullptr : unitNamed(unit);
        if (!unit.empty() && operand.unit == nullptr)
        {
            throw Failure{{column, "expected a unit such as km/h or deg, found \"" + unit + "\""}};
        }
        operand.literal = atomOf(operand.unit != nullptr ? inFileUnit(value, *operand.unit) : value);
        return operand;
    }

    std::size_t pathIndex(std::string const& text)
    {
        auto& paths = myExpression.myPaths;
        auto const known =
            std::ranges::find(paths, text, [](FindExpression::Path const& path) { return path.keywords.text(); });
        if (known != paths.end())
        {
            return static_cast<std::size_t>(known - paths.begin());
        }
        FindExpression::Path path;
        std::string why;
        if (!KeywordPath::parse(text, path.keywords, why))
        {
            fail(why);
        }
        paths.push_back(std::move(path));
        return paths.size() - 1;
    }

    static bool isReserved(std::string_view word)
    {
        constexpr std::string_view theWords[] = {"and", "or", "not", "exists", "specified"};
        return std::ranges::find(theWords, word) != std::end(theWords);
    }

    std::string_view myText;
    FindExpression& myExpression;
    std::size_t myAt = 0;
    Token myToken;
    int myDepth = 0;
};

std::unique_ptr<FindExpression> FindExpression::parse(std::string_view text, ExpressionFault& fault)
{
    try
    {
        std::unique_ptr<FindExpression> expression(new FindExpression);
        ExpressionParser parser(text, *expression);
        expression->myRoot = parser.whole();
        return expression;
    }
    catch (ExpressionParser::Failure const& failure)
    {
        fault = failure.fault;
        return nullptr;
    }
}
