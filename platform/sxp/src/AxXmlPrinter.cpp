#include "AxXmlPrinter.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "AxCharacters.h"
#include "AxDiagnostic.h"
#include "AxLimits.h"
#include "AxWindows1252.h"

namespace
{
struct Range
{
    std::uint32_t first;
    std::uint32_t last;
};

/// What a name may begin with, by the XML recommendation.
constexpr std::array<Range, 16> theNameStarts{{{':', ':'},
                                               {'A', 'Z'},
                                               {'_', '_'},
                                               {'a', 'z'},
                                               {0xC0, 0xD6},
                                               {0xD8, 0xF6},
                                               {0xF8, 0x2FF},
                                               {0x370, 0x37D},
                                               {0x37F, 0x1FFF},
                                               {0x200C, 0x200D},
                                               {0x2070, 0x218F},
                                               {0x2C00, 0x2FEF},
                                               {0x3001, 0xD7FF},
                                               {0xF900, 0xFDCF},
                                               {0xFDF0, 0xFFFD},
                                               {0x10000, 0xEFFFF}}};
/// What it may go on with besides.
constexpr std::array<Range, 6> theNameParts{
    {{'-', '-'}, {'.', '.'}, {'0', '9'}, {0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}}};

template <std::size_t count>
bool contains(std::array<Range, count> const& ranges, std::uint32_t point)
{
    return std::any_of(ranges.begin(), ranges.end(),
                       [point](Range range) { return point >= range.first && point <= range.last; });
}

bool isXmlName(std::string_view text)
{
    std::uint32_t point = 0;
    if (!axTakeUtf8(text, point) || !contains(theNameStarts, point))
    {
        return false;
    }
    while (axTakeUtf8(text, point))
    {
        if (!contains(theNameStarts, point) && !contains(theNameParts, point))
        {
            return false;
        }
    }
    return text.empty();
}

/// The whole text below a comment or instruction.
std::string textBelow(AxEnvList const& list)
{
    std::string text;
    for (AxEnvValuePtr const& child : list.children())
    {
        if (child->isList())
        {
            throw std::runtime_error("a comment or processing instruction holds more than text");
        }
        text += child->value().string();
    }
    return text;
}
} // namespace

void AxXmlPrinter::print(AxEnvironment const& env)
{
    if (!env.root()->isNamedList() ||
        (env.root()->isObject() && static_cast<AxEnvObject const&>(*env.root()).isReserved()))
    {
        throw std::runtime_error("the root is no element");
    }
    myOut += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    auto outside = [this](AxEnvList const& list)
    {
        for (AxEnvValuePtr const& child : list.children())
        {
            if (!child->isObject() || !static_cast<AxEnvObject const&>(*child).isReserved())
            {
                throw std::runtime_error("only comments and processing instructions stand outside of the root");
            }
            newLine(0);
            node(*child, 0, false);
        }
    };
    outside(*env.prologue());
    newLine(0);
    node(*env.root(), 0, false);
    outside(*env.epilogue());
    newLine(0);
}

void AxXmlPrinter::newLine(unsigned level)
{
    myOut += '\n';
    myOut.append(std::size_t(level) * myIndentation, ' ');
}

void AxXmlPrinter::node(AxEnvValue const& value, unsigned level, bool inlined)
{
    auto const* object = value.isObject() ? static_cast<AxEnvObject const*>(&value) : nullptr;
    if (object != nullptr && object->type() == AxEnvObject::commentType())
    {
        comment(*object);
    }
    else if (object != nullptr && object->type() == AxEnvObject::instructionType())
    {
        instruction(*object);
    }
    else
    {
        element(static_cast<AxEnvList const&>(value), level, inlined);
    }
}

void AxXmlPrinter::element(AxEnvList const& list, unsigned level, bool inlined)
{
    if (level == axLimits.xmlDepth)
    {
        throw std::runtime_error("elements are nested deeper than " + std::to_string(axLimits.xmlDepth));
    }
    std::string tag = list.isObject() ? static_cast<AxEnvObject const&>(list).type().string() : "list";
    myOut += '<';
    appendName(tag);
    if (list.isNamedList() && static_cast<AxEnvNamedList const&>(list).hasName())
    {
        attribute("name", static_cast<AxEnvNamedList const&>(list).name());
    }
    if (list.isObject())
    {
        for (AxEnvObject::Attribute const& one : static_cast<AxEnvObject const&>(list).attributes())
        {
            attribute(one.name.string(), one.value->value());
        }
    }
    if (list.children().empty())
    {
        myOut += "/>";
        return;
    }
    myOut += '>';
    content(list, tag, level, inlined);
    myOut += "</";
    appendName(tag);
    myOut += '>';
}

void AxXmlPrinter::content(AxEnvList const& list, std::string const& tag, unsigned level, bool inlined)
{
    bool hasText = false;
    bool onlyBlanks = true;
    for (AxEnvValuePtr const& child : list.children())
    {
        hasText = hasText || !child->isList();
        onlyBlanks = onlyBlanks && (child->isList() || axIsBlank(child->value().string()));
    }
    inlined = inlined || hasText;
    bool toldMeant = !onlyBlanks;
    for (AxEnvValuePtr const& child : list.children())
    {
        if (child->isList())
        {
            if (!inlined)
            {
                newLine(level + 1);
            }
            node(*child, level + 1, inlined);
            continue;
        }
        if (!toldMeant || child->value().isNull())
        {
            myOut += "<![CDATA[]]>";
            toldMeant = true;
        }
        appendEscaped(child->value().string(), false, "text of element \"" + tag + '"');
    }
    if (!inlined)
    {
        newLine(level);
    }
}

void AxXmlPrinter::comment(AxEnvObject const& object)
{
    std::string text = checked(textBelow(object), "comment");
    if (text.find("--") != std::string::npos || text.ends_with('-') || text.find('\r') != std::string::npos)
    {
        throw std::runtime_error("comment holds \"--\", a carriage return or a \"-\" at its end");
    }
    myOut += "<!--" + text + "-->";
}

void AxXmlPrinter::instruction(AxEnvObject const& object)
{
    std::string target = checked(object.name().string(), "processing instruction");
    std::string data = checked(textBelow(object), "processing instruction \"" + target + '"');
    bool isDeclaration =
        target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' && (target[2] | 0x20) == 'l';
    if (!isXmlName(target) || isDeclaration || data.find("?>") != std::string::npos ||
        data.find('\r') != std::string::npos || (!data.empty() && axIsBlank(data.substr(0, 1))))
    {
        throw std::runtime_error("processing instruction \"" + target + "\" cannot be written");
    }
    myOut += "<?" + target + (data.empty() ? "" : " ") + data + "?>";
}

void AxXmlPrinter::attribute(std::string const& name, AxString const& value)
{
    myOut += ' ';
    appendName(name);
    myOut += "=\"";
    appendEscaped(value.string(), true, "attribute \"" + name + '"');
    myOut += '"';
}

void AxXmlPrinter::appendName(std::string const& name)
{
    std::string text = checked(name, "name \"" + name + '"');
    if (!isXmlName(text))
    {
        throw std::runtime_error("\"" + text + "\" cannot name an element or attribute");
    }
    myOut += text;
}

void AxXmlPrinter::appendEscaped(std::string_view text, bool inAttribute, std::string const& owner)
{
    for (char byte : checked(text, owner))
    {
        switch (byte)
        {
        case '&':
            myOut += "&amp;";
            break;
        case '<':
            myOut += "&lt;";
            break;
        case '>':
            myOut += "&gt;";
            break;
        case '\r':
            myOut += "&#13;";
            break;
        case '"':
            myOut += inAttribute ? "&quot;" : "\"";
            break;
        case '\t':
            myOut += inAttribute ? "&#9;" : "\t";
            break;
        case '\n':
            myOut += inAttribute ? "&#10;" : "\n";
            break;
        default:
            myOut += byte;
        }
    }
}

std::string AxXmlPrinter::checked(std::string_view text, std::string const& owner)
{
    std::string utf8(text);
    if (!axIsUtf8(text))
    {
        AxDiagnostic finding;
        finding.severity = AxSeverity::Warning;
        finding.code = "not-utf8";
        finding.file = myFile;
        finding.text = owner + " is not UTF-8 and is taken as windows-1252";
        AxDiagnostics::report(std::move(finding));
        utf8 = axUtf8FromWindows1252(text);
    }
    std::string_view rest = utf8;
    std::uint32_t point = 0;
    while (axTakeUtf8(rest, point))
    {
        if (!axIsXmlCharacter(point))
        {
            static constexpr char theDigits[] = "0123456789ABCDEF";
            std::string number;
            for (unsigned shift = 16; shift != 0; shift -= 4)
            {
                number += theDigits[(point >> (shift - 4)) & 15];
            }
            throw std::runtime_error(owner + " holds the character U+" + number + ", which XML cannot hold");
        }
    }
    return utf8;
}
