#include "CheckedFiles.h"

#include <algorithm>

#include "ReadFile.h"

namespace
{
/// Finds references in a text without making cells of it.
class ReferenceScan
{
public:
    ReferenceScan(std::string_view text, bool isXml) : myText(text), myIsXml(isXml) {}

    CheckedFiles::Names run()
    {
        while (myAt < myText.size())
        {
            step();
        }
        return std::move(myNames);
    }

private:
    void step()
    {
        char const c = myText[myAt];
        if (c == '$')
        {
            takeReference();
        }
        else if (myIsXml ? myText.substr(myAt).starts_with("<!--") : c == ';' && !myIsInString)
        {
            skipPast(myIsXml ? "-->" : "\n");
        }
        else if (c == '\\' && myIsInString)
        {
            myAt += 2;
        }
        else
        {
            myIsInString = myIsInString != (c == '"' && !myIsXml);
            ++myAt;
        }
    }

    void takeReference()
    {
        std::string_view const rest = myText.substr(myAt);
        if (rest.starts_with("$$"))
        {
            myAt += 2;
            return;
        }
        bool const isBraced = rest.starts_with("$(");
        std::size_t const begin = isBraced ? 2 : 1;
        std::size_t const end = std::min(rest.find_first_of(isBraced ? ")" : " \t\r\n()\"';<>", begin), rest.size());
        if (isBraced || !myIsInString)
        {
            myNames.emplace(rest.substr(begin, end - begin));
        }
        myAt += isBraced ? end : std::max(end, begin);
    }

    void skipPast(std::string_view end)
    {
        std::size_t const at = myText.find(end, myAt);
        myAt = at == std::string_view::npos ? myText.size() : at + end.size();
    }

    std::string_view myText;
    bool myIsXml;
    bool myIsInString = false;
    std::size_t myAt = 0;
    CheckedFiles::Names myNames;
};
} // namespace

CheckedFiles::Names referencesIn(std::string_view text, bool isXml)
{
    bool const isPlain = text.find('$') == std::string_view::npos;
    return isPlain ? CheckedFiles::Names() : ReferenceScan(text, isXml).run();
}

Source const& CheckedFiles::source(std::string const& file)
{
    constexpr std::size_t most = 8;
    auto const known = std::ranges::find(mySources, file, &std::pair<std::string, Source>::first);
    if (known != mySources.end())
    {
        mySources.splice(mySources.begin(), mySources, known);
    }
    else
    {
        mySources.emplace_front(file, Source::again(file));
        mySources.resize(std::min(mySources.size(), most), mySources.front());
    }
    return mySources.front().second;
}

CheckedFiles::Names const& CheckedFiles::references(std::string const& file)
{
    State& state = myFiles[file];
    if (!state.isSearched)
    {
        state.isSearched = true;
        state.references = referencesOnce(file);
    }
    return state.references;
}

CheckedFiles::Names CheckedFiles::referencesOnce(std::string const& file)
{
    return referencesIn(text(file), file.ends_with(".entity"));
}

std::string const& CheckedFiles::text(std::string const& file)
{
    if (myText.first != file)
    {
        myText = {file, std::string()};
        readAgain(file, myText.second);
    }
    return myText.second;
}
