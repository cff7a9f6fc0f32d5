#include "AxFilename.h"

#include "AxCharacters.h"

#include <algorithm>
#include <boost/filesystem/operations.hpp>
#include <ostream>
#include <system_error>

namespace
{
constexpr std::string_view theSeparators = "/\\";

/// Length of the part that makes a name absolute: "/" or "C:/"; 0 for a relative name.
std::size_t rootLength(std::string_view path)
{
    if (!path.empty() && AxFilename::isSeparator(path[0]))
    {
        return 1;
    }
    bool const drive = path.size() >= 3 && axIsLetter(path[0]) && path[1] == ':' && AxFilename::isSeparator(path[2]);
    return drive ? 3 : 0;
}
} // namespace

bool AxFilename::isRelative() const
{
    return rootLength(view()) == 0;
}

AxFilename AxFilename::stripPath() const
{
    return AxFilename(view().substr(view().find_last_of(theSeparators) + 1));
}

AxFilename AxFilename::directory() const
{
    std::string_view const path = view();
    std::size_t end = path.find_last_of(theSeparators);
    if (end == std::string_view::npos)
    {
        return {};
    }
    std::size_t const root = rootLength(path);
    while (end > root && isSeparator(path[end - 1]))
    {
        --end;
    }
    return AxFilename(path.substr(0, end > root ? end : root));
}

AxString AxFilename::extension() const
{
    std::string_view const name = view().substr(view().find_last_of(theSeparators) + 1);
    std::size_t const point = name.rfind('.');
    return AxString(point == std::string_view::npos ? std::string_view() : name.substr(point + 1));
}

AxFilename AxFilename::combine(AxFilename const& name) const
{
    if (isNull() || !name.isRelative())
    {
        return name;
    }
    std::string path(view());
    if (!isSeparator(path.back()))
    {
        std::size_t const last = path.find_last_of(theSeparators);
        path += last == std::string::npos ? '/' : path[last];
    }
    path += name.view();
    return path;
}

std::string AxFilename::native() const
{
    std::string_view const path = view();
    std::string result;
    result.reserve(path.size());
    for (std::size_t begin = 0; begin < path.size();)
    {
        std::size_t const end = std::min(path.find_first_of(theSeparators, begin), path.size());
        if (path.substr(begin, end - begin) == ".")
        {
            // A run of separators goes with the part in front of it, else ".//x" would become absolute.
            begin = std::min(path.find_first_not_of(theSeparators, end), path.size());
            continue;
        }
        result += path.substr(begin, end - begin);
        if (end < path.size())
        {
            result += '/';
        }
        begin = end + 1;
    }
    return result.empty() && !path.empty() ? "." : result;
}

bool AxFilename::exists() const
{
    boost::system::error_code ignored;
    return boost::filesystem::exists(native(), ignored);
}

AxFilename const& AxFilename::nullFilename()
{
    static AxFilename const& null = *new AxFilename;
    return null;
}

std::ostream& operator<<(std::ostream& out, AxFilename const& file)
{
    return out << file.view();
}
