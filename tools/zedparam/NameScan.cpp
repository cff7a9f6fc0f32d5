#include "NameScan.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace
{
constexpr std::string_view theKeyedLists[] = {"systems", "sensors", "controllers", "actuators"};
constexpr std::string_view theEndsOfWords = " \t\r\n()\";";

class NameScan
{
public:
    NameScan(std::string_view text,
             std::function<void(std::string_view name, unsigned line, unsigned column)> const& report)
        : myText(text), myReport(report)
    {
    }

    void run()
    {
        while ((myAt = myText.find_first_of("();\"", myAt)) != std::string_view::npos)
        {
            switch (myText[myAt])
            {
            case '(':
                open();
                break;
            case ')':
                ++myAt;
                close();
                break;
            case ';':
                myAt = std::min(myText.find('\n', myAt), myText.size());
                break;
            default:
                skipString();
            }
        }
    }

private:
    void open()
    {
        std::size_t const begin = std::min(myText.find_first_not_of(" \t\r\n", myAt + 1), myText.size());
        std::size_t const end = std::min(myText.find_first_of(theEndsOfWords, begin), myText.size());
        std::string_view const head = myText.substr(begin, end - begin);
        if (!head.empty() && !myLists.empty() && myLists.back().depth == myDepth)
        {
            noteName(head, begin);
        }
        ++myDepth;
        if (std::ranges::find(theKeyedLists, head) != std::end(theKeyedLists))
        {
            myLists.push_back({myDepth});
        }
        myAt = end > begin ? end : begin;
    }

    void close()
    {
        if (!myLists.empty() && myLists.back().depth == myDepth)
        {
            myLists.pop_back();
        }
        myDepth -= myDepth != 0;
    }

    void noteName(std::string_view name, std::size_t at)
    {
        if (myLists.back().names.insert(name).second)
        {
            return;
        }
        for (std::size_t end = myText.find('\n', myLineStart); end < at; end = myText.find('\n', myLineStart))
        {
            myLineStart = end + 1;
            ++myLine;
        }
        myReport(name, myLine, static_cast<unsigned>(at - myLineStart + 1));
    }

    void skipString()
    {
        for (++myAt; myAt < myText.size() && myText[myAt] != '"'; ++myAt)
        {
            myAt += myText[myAt] == '\\'; // what follows is part of the string
        }
        ++myAt;
    }

    struct List
    {
        std::size_t depth; // within which its elements begin
        std::unordered_set<std::string_view> names{};
    };

    std::string_view myText;
    std::function<void(std::string_view name, unsigned line, unsigned column)> const& myReport;
    std::size_t myAt = 0;
    std::size_t myLineStart = 0; // of the line that was told last
    unsigned myLine = 1;
    std::size_t myDepth = 0;
    std::vector<List> myLists;
};
} // namespace

void scanNames(std::string_view text,
               std::function<void(std::string_view name, unsigned line, unsigned column)> const& report)
{
    NameScan(text, report).run();
}
