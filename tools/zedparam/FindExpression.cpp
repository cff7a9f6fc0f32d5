#include "FindExpression.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "AxNumberText.h"
#include "AxSxpParameterDbEntry.h"
#include "AxZedObjectParameters.h"
#include "Database.h"
#include "FindNode.h"

namespace
{
/// `*` stands for any text, `?` for any character; upper and lower case are alike.
bool isLike(std::string_view text, std::string_view pattern)
{
    auto const lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    std::size_t star = std::string_view::npos; // the last one met, and what it stands for up to now
    std::size_t starEnd = 0;
    std::size_t p = 0;
    for (std::size_t t = 0; t < text.size();)
    {
        if (p < pattern.size() && pattern[p] == '*')
        {
            star = p++;
            starEnd = t;
        }
        else if (p < pattern.size() && (pattern[p] == '?' || lower(pattern[p]) == lower(text[t])))
        {
            ++p;
            ++t;
        }
        else if (star != std::string_view::npos)
        {
            p = star + 1;
            t = ++starEnd;
        }
        else
        {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}
} // namespace

/// The record that is asked, and the first unit that did not fit.
struct FindExpression::Subject
{
    AxSxpParameterDbEntry const& entry;
    RecordWalk& walk;
    ExpressionFault& fault;
};

FindExpression::FindExpression() = default;
FindExpression::~FindExpression() = default;

bool FindExpression::holds(AxSxpParameterDbEntry const& entry, RecordWalk& walk, ExpressionFault& fault)
{
    Subject subject{entry, walk, fault};
    return holds(*myRoot, subject) && fault.text.empty();
}

bool FindExpression::holds(Node& node, Subject& subject)
{
    auto const part = [&](NodePtr const& its) { return holds(*its, subject); };
    bool found = false;
    switch (node.kind)
    {
    case Node::Kind::And:
        return std::ranges::all_of(node.parts, part);
    case Node::Kind::Or:
        return std::ranges::any_of(node.parts, part);
    case Node::Kind::Not:
        return !part(node.parts.front());
    case Node::Kind::Exists:
    case Node::Kind::Specified:
        myPaths[node.left.path].wasAsked = true;
        subject.walk.run(myPaths[node.left.path].keywords,
                         [&](RecordWalk const& at)
                         {
                             myPaths[node.left.path].wasFound = true;
                             bool const isOwn = at.ownItem() != nullptr;
                             found = found || node.kind == Node::Kind::Exists || isOwn || at.rw().isDue();
                         });
        return found;
    case Node::Kind::Compare:
        break;
    }
    return compares(node, subject);
}

bool FindExpression::compares(Node& node, Subject& subject)
{
    std::vector<Atom> const left = atoms(node.left, node.right.unit, node.right.column, subject);
    std::vector<Atom> const right = atoms(node.right, node.left.unit, node.left.column, subject);
    bool const ranks = node.op != Operator::Equal && node.op != Operator::Unequal && node.op != Operator::Like;
    auto const goTogether = [&](Atom const& a, Atom const& b)
    {
        bool const areTexts = !a.isNumber && !b.isNumber;
        return (a.isNumber && b.isNumber) || node.op == Operator::Like ||
               (!ranks && (areTexts || axIsNumber(a.text) == axIsNumber(b.text)));
    };
    auto const isEqual = [](Atom const& a, Atom const& b)
    { return a.isNumber && b.isNumber ? a.number == b.number : a.text == b.text; };
    auto const holdsFor = [&](Atom const& a, Atom const& b)
    {
        switch (node.op)
        {
        case Operator::Equal:
        case Operator::Unequal:
            return isEqual(a, b);
        case Operator::Like:
            return isLike(a.text, b.text);
        case Operator::Less:
            return a.isNumber && b.isNumber && a.number < b.number;
        case Operator::LessOrEqual:
            return a.isNumber && b.isNumber && a.number <= b.number;
        case Operator::Greater:
            return a.isNumber && b.isNumber && a.number > b.number;
        case Operator::GreaterOrEqual:
            return a.isNumber && b.isNumber && a.number >= b.number;
        }
        return false;
    };
    for (auto const& [kinds, its] : {std::pair(&node.leftKinds, &left), std::pair(&node.rightKinds, &right)})
    {
        kinds->numbers = kinds->numbers || std::ranges::any_of(*its, &Atom::isNumber);
        kinds->texts = kinds->texts || !std::ranges::all_of(*its, &Atom::isNumber);
    }
    auto const goesWithAny = [&](Atom const& a)
    { return std::ranges::any_of(right, [&](Atom const& b) { return goTogether(a, b); }); };
    node.wasComparable = node.wasComparable || std::ranges::any_of(left, goesWithAny);
    bool const holdsForAny = std::ranges::any_of(
        left, [&](Atom const& a) { return std::ranges::any_of(right, [&](Atom const& b) { return holdsFor(a, b); }); });
    return node.op == Operator::Unequal ? !holdsForAny && !left.empty() && !right.empty() : holdsForAny;
}

std::vector<std::string> FindExpression::futile() const
{
    std::vector<std::string> out;
    appendFutile(*myRoot, out);
    return out;
}

void FindExpression::appendFutile(Node const& node, std::vector<std::string>& out) const
{
    for (NodePtr const& part : node.parts)
    {
        appendFutile(*part, out);
    }
    bool const wasAsked = node.leftKinds.isAny() && node.rightKinds.isAny();
    if (node.kind != Node::Kind::Compare || node.op == Operator::Unequal || !wasAsked || node.wasComparable)
    {
        return;
    }
    // What a record has, rather than what was written for it to be held against.
    bool const isRightToBlame = node.left.kind == Operand::Kind::Literal ||
                                (!node.rightKinds.numbers && node.right.kind != Operand::Kind::Literal);
    Kinds const& kinds = isRightToBlame ? node.rightKinds : node.leftKinds;
    bool const isText = !kinds.numbers;
    if (!isText && kinds.texts)
    {
        return; // some are numbers, some texts
    }
    out.push_back(shown(isRightToBlame ? node.right : node.left) +
                  (isText ? " is no number in any record" : " is a number in every record") + ", unlike " +
                  shown(isRightToBlame ? node.left : node.right));
}

std::string FindExpression::shown(Operand const& operand) const
{
    std::string const text = operand.kind == Operand::Kind::Literal     ? operand.literal.text
                             : operand.kind == Operand::Kind::Attribute ? operand.attribute
                                                                        : myPaths[operand.path].keywords.text();
    return operand.kind == Operand::Kind::Literal && operand.literal.isNumber ? text : '"' + text + '"';
}

std::vector<Atom> FindExpression::atoms(Operand const& operand, Unit const* unit, std::size_t unitColumn,
                                        Subject& subject)
{
    if (operand.kind == Operand::Kind::Literal)
    {
        return {operand.literal};
    }
    if (operand.kind == Operand::Kind::Attribute)
    {
        std::string const text = operand.attribute == "@type"   ? subject.entry.objectType().string().string()
                                 : operand.attribute == "@name" ? subject.walk.record().name().string().string()
                                                                : Database::fileOf(subject.entry);
        return {{false, 0.0, text}};
    }
    std::vector<Atom> found;
    Path& path = myPaths[operand.path];
    path.wasAsked = true;
    subject.walk.run(path.keywords,
                     [&](RecordWalk const& at)
                     {
                         path.wasFound = true;
                         std::size_t const before = found.size();
                         appendAtoms(at, found);
                         if (found.size() > before + 1)
                         {
                             std::string whole;
                             for (std::size_t i = before; i < found.size(); ++i)
                             {
                                 whole.append(i == before ? "" : " ").append(found[i].text);
                             }
                             found.push_back({false, 0.0, std::move(whole)});
                         }
                         std::string its;
                         if (unit != nullptr && subject.fault.text.empty() && unitOf(at, its) && its != unit->base)
                         {
                             subject.fault = {unitColumn, "\"" + at.path() + "\" is " +
                                                              (its.empty() ? "without a unit" : "in " + its) +
                                                              ", which does not go with " + unit->name};
                         }
                     });
    return found;
}
