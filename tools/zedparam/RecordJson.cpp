#include "RecordJson.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

#include "AxNumberText.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "Json.h"
#include "RecordValue.h"
#include "RecordWalk.h"

namespace
{
/// Whether a number in this system's spelling is one in JSON as well: no plus sign, no leading zeros, and digits on
/// both sides of a point.
bool isJsonNumber(std::string_view spelling)
{
    spelling.remove_prefix(spelling.starts_with('-'));
    std::size_t const whole = std::min(spelling.find_first_not_of("0123456789"), spelling.size());
    if (whole == 0 || (whole > 1 && spelling.front() == '0'))
    {
        return false;
    }
    spelling.remove_prefix(whole);
    return !spelling.starts_with('.') || (spelling.size() > 1 && std::isdigit(static_cast<unsigned char>(spelling[1])));
}

void writeNumber(JsonWriter& json, AxlObj const& cell)
{
    AxString const spelling = cell.pname();
    if (axIsNumber(spelling.string()) && isJsonNumber(spelling.string()))
    {
        json.number(spelling.string());
        return;
    }
    json.real(cell.flonum());
}

void writeCell(JsonWriter& json, AxlObj const& cell)
{
    if (cell.isNumber())
    {
        writeNumber(json, cell);
    }
    else if (cell.isSymbol() && (cell.text() == "true" || cell.text() == "false"))
    {
        json.boolean(cell.text() == "true");
    }
    else if (cell.isPair() || cell.nil())
    {
        json.beginRow();
        for (AxlObj const* rest = &cell; rest->isPair(); rest = rest->cdr())
        {
            writeCell(json, *rest->car());
        }
        json.endArray();
    }
    else
    {
        json.string(cell.text());
    }
}

/// Whether each item is a list that begins with a name.
bool areNamed(AxlObj const& items)
{
    AxlObj const* rest = &items;
    while (rest->isPair() && rest->car()->isPair() && !rest->car()->car()->text().empty())
    {
        rest = rest->cdr();
    }
    return items.isPair() && rest->nil();
}

/// Named items as an object, one item as itself, any others as an array.
void writeCells(JsonWriter& json, AxlObj const& items)
{
    if (!areNamed(items))
    {
        bool const single = items.isPair() && items.cdr()->nil();
        writeCell(json, single ? *items.car() : items);
        return;
    }
    json.beginObject();
    for (AxlObj const* rest = &items; rest->isPair(); rest = rest->cdr())
    {
        json.key(rest->car()->car()->text());
        writeCells(json, *rest->car()->cdr());
    }
    json.endObject();
}

void writeElements(JsonWriter& json, AxRwList const& list, bool all)
{
    json.beginArray();
    for (AxListItem const* item = list.first(); item != nullptr; item = item->next())
    {
        AxReaderWriter& element = *AxRwList::element(item);
        json.beginObject();
        if (!element.name().isNull())
        {
            json.member("name", element.name().view());
        }
        if (hasMembers(element) || dynamic_cast<AxRwList const*>(&element) != nullptr)
        {
            writeJsonMembers(json, element, all);
        }
        else
        {
            json.key("value");
            writeJson(json, element, all);
        }
        json.endObject();
    }
    json.endArray();
}
} // namespace

void writeJsonMembers(JsonWriter& json, AxReaderWriter& rw, bool all)
{
    AxlObjPtr const own = ownItems(rw);
    for (AxlObj const* rest = own.get(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const& item = *rest->car();
        if (item.isPair() && item.car()->isSymbol())
        {
            json.key(item.car()->text());
            writeCells(json, *item.cdr());
        }
    }
    if (AxReaderWriterRegistry const* registry = rw.registryIfAny())
    {
        for (std::size_t i = 0; i < registry->size(); ++i)
        {
            AxRegistryEntry const entry = registry->entry(i);
            if (!entry.content && !entry.keyword.isNull() && (all || entry.member->isDue()))
            {
                json.key(entry.keyword.view());
                writeJson(json, *entry.member, all);
            }
        }
    }
    if (auto const* list = dynamic_cast<AxRwList const*>(&rw))
    {
        json.key("elements");
        writeElements(json, *list, all);
    }
}

void writeJson(JsonWriter& json, AxReaderWriter& rw, bool all)
{
    auto const* file = dynamic_cast<AxReaderWriterFile const*>(&rw);
    auto const* list = dynamic_cast<AxRwList const*>(&rw);
    if (file != nullptr && file->filename().isNull() && file->content() != nullptr)
    {
        writeJson(json, *file->content(), all);
    }
    else if (list != nullptr && !hasMembers(rw))
    {
        writeElements(json, *list, all);
    }
    else if (hasMembers(rw))
    {
        json.beginObject();
        writeJsonMembers(json, rw, all);
        json.endObject();
    }
    else
    {
        writeCells(json, *ownItems(rw));
    }
}

void writeJson(JsonWriter& json, RecordWalk const& at, bool all)
{
    at.ownItem() != nullptr ? writeCells(json, *at.ownItem()->cdr()) : writeJson(json, at.rw(), all);
}
