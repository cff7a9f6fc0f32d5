#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Item.h"

/// One version of a file that is merged, parameter text or XML: its items, and how they lie in its bytes.
class MergeSource
{
public:
    /// Bytes from the first to the one behind the last.
    struct Stretch
    {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    /// An item of a list with the comments that go with it: those in front of it, and one behind it on its line.
    struct Unit
    {
        Stretch lead{};
        Stretch trail{};
        bool isAttribute = false; ///< one stands in the start tag
    };
    /// How the items of one list lie in its text.
    struct Layout
    {
        std::string shape{};  ///< what no change of items touches; lists of other shapes are not merged item by item
        Stretch head{};       ///< what it begins with, up to the first item or attribute
        std::size_t body = 0; ///< where the first item goes that is no attribute
        Stretch closing{};    ///< behind the last item, in front of what ends the list
        Stretch emptyMark{};  ///< the "/>" of an element without content, behind which that would go
        std::string endTag{}; ///< what would then end it
        std::map<Item const*, Unit> units{}; ///< in their order, for the items lie side by side
    };

    /// As XML, or as parameter text.
    static std::unique_ptr<MergeSource> make(std::string const& text, bool isXml);
    MergeSource(MergeSource const&) = delete;
    MergeSource& operator=(MergeSource const&) = delete;
    virtual ~MergeSource() = default;

    virtual std::string const& text() const = 0;
    virtual bool isReadable() const = 0;
    /// Null when there is nothing but comments, and when the text is not readable.
    virtual Item const* root() const = 0;
    virtual Stretch stretchOf(Item const& item) const = 0;
    /// Whether it is a list of items that may be merged one by one.
    virtual bool isListOfItems(Item const& item) const = 0;
    virtual Layout layoutOf(Item const& list) const = 0;
    /// Whether a piece ends in a comment that only the end of the line ends, and whether the text up to a byte does.
    virtual bool endsInLineComment(std::string_view piece) const = 0;
    virtual bool isBehindLineComment(std::size_t offset) const = 0;

    std::string_view at(Stretch const& stretch) const
    {
        return std::string_view(text()).substr(stretch.begin, stretch.end - stretch.begin);
    }
    /// All of it but the blanks.
    std::string tokensOf(Stretch const& stretch) const;
    /// The first byte that is no blank.
    std::size_t solidBegin(Stretch const& stretch) const;
    /// Its lines, but for the first, moved from one indentation to another. Texts are left.
    std::string indented(Stretch const& stretch, std::size_t from, std::string const& indent) const;

protected:
    MergeSource() = default;

    enum class Kind
    {
        Blank,
        LineComment, ///< ends at the end of the line; blanks at its end do not count
        Other
    };
    struct Token
    {
        std::string_view text;
        Kind kind;
    };
    virtual std::vector<Token> tokens(Stretch const& stretch) const = 0;
};
