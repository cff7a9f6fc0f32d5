#include "AxReaderWriterFileExtensible.h"

#include <algorithm>

static std::string_view withoutPoint(AxString const& extension)
{
    std::string_view const text = extension.string();
    return text.starts_with('.') ? text.substr(1) : text;
}

AxReaderWriterFileExtensible::~AxReaderWriterFileExtensible() = default;

char const* AxReaderWriterFileExtensible::readerWriterType() const
{
    return "AxReaderWriterFileExtensible";
}

std::list<AxString>* AxReaderWriterFileExtensible::getExtensionList()
{
    static auto* const extensions = new std::list<AxString>;
    return extensions;
}

void AxReaderWriterFileExtensible::addExtension(AxString const& extension)
{
    std::list<AxString>& known = *getExtensionList();
    std::string_view const added = withoutPoint(extension);
    if (!added.empty() && std::none_of(known.begin(), known.end(),
                                       [added](AxString const& present) { return withoutPoint(present) == added; }))
    {
        known.push_back(extension);
    }
}

std::vector<AxFilename> AxReaderWriterFileExtensible::candidates(AxFilename const& file) const
{
    std::vector<AxFilename> names{file};
    std::string_view stem = file.view();
    std::size_t const own = file.extension().length();
    if (own != 0)
    {
        stem.remove_suffix(own + 1);
    }
    for (AxString const& extension : *getExtensionList())
    {
        names.emplace_back(std::string(stem) + '.' + std::string(withoutPoint(extension)));
    }
    return names;
}
