#include "Member.h"

#include "AxReaderWriterFile.h"
#include "AxRwList.h"

AxReaderWriter* memberOf(AxReaderWriter& parent, std::string_view name, std::size_t index,
                         std::vector<std::string_view>* known)
{
    AxReaderWriter* found = nullptr;
    auto const offer = [&](AxReaderWriter* child, std::string_view childName)
    {
        if (known != nullptr)
        {
            known->push_back(childName);
        }
        if (found == nullptr && childName == name && index-- == 0)
        {
            found = child;
        }
    };
    if (AxReaderWriterRegistry const* registry = parent.registryIfAny())
    {
        for (std::size_t i = 0; i < registry->size(); ++i)
        {
            AxRegistryEntry const entry = registry->entry(i);
            if (!entry.content && !entry.keyword.isNull())
            {
                offer(entry.member, entry.keyword.view());
            }
        }
    }
    if (auto const* list = dynamic_cast<AxRwList const*>(&parent))
    {
        for (AxListItem const* item = list->first(); item != nullptr; item = item->next())
        {
            AxReaderWriter* element = AxRwList::element(item);
            offer(element, element->name().view());
        }
    }
    auto const* file = dynamic_cast<AxReaderWriterFile const*>(&parent);
    if (file != nullptr && file->content() != nullptr)
    {
        return memberOf(*file->content(), name, index, known);
    }
    return found;
}
