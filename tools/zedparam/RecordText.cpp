#include "RecordText.h"

#include "AxZedObjectParameters.h"

std::string recordText(AxReaderWriter const& record, bool all)
{
    std::string text = record.writtenText(all);
    tellType(record, text);
    return text;
}

void tellType(AxReaderWriter const& record, std::string& text)
{
    auto const* made = dynamic_cast<AxZedObjectParameters const*>(&record);
    if (made == nullptr || made->parameterType().isNull() || made->parameterType() == made->type())
    {
        return;
    }
    auto const itemOf = [](AxString const& type) { return "(parameter-type \"" + type.string() + "\")"; };
    std::string const written = itemOf(made->type());
    if (std::size_t const at = text.find(written); at != std::string::npos)
    {
        text.replace(at, written.size(), itemOf(made->parameterType()));
    }
}
