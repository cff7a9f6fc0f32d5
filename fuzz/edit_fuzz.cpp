#include "Fuzz.h"

#include "Database.h"
#include "ReadContext.h"
#include "TextEditor.h"
#include "XmlEditor.h"
#include "XmlLayout.h"

#include <algorithm>

namespace
{
/// A change touches one stretch of the text; a refused one touches nothing and says why.
void edit(FileEditor& editor, std::string_view command)
{
    std::string const before = editor.text();
    std::size_t const equals = std::min(command.find('='), command.size());
    std::string const path(command.substr(0, equals));
    bool const isDone =
        equals < command.size() ? editor.set(path, std::string(command.substr(equals + 1))) : editor.unset(path);
    if (isDone)
    {
        if (editor.text() == before && !editor.changes().empty())
        {
            fuzz::fail("what is told as a change is one", before, command);
        }
        return;
    }
    fuzz::expectEqual("a refused edit changes nothing", before, editor.text());
    if (editor.fault().text.empty())
    {
        fuzz::fail("a refusal says why", before, command);
    }
}
} // namespace

/// The first line is an edit, "PATH=VALUE" or "PATH" to take out; the others are the text, or the XML, that is edited.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    std::string_view const input = fuzz::textOf(data, size);
    std::size_t const end = input.find('\n');
    if (end == std::string_view::npos)
    {
        return 0;
    }
    std::string const text(input.substr(end + 1));
    if (isXml(text))
    {
        std::unique_ptr<Database> const database = Database::openNone();
        ReadContext const context("input.entity", *database);
        XmlEditor editor("input.entity", text, {}, context, false);
        edit(editor, input.substr(0, end));
    }
    else
    {
        TextReading reading("input.ope");
        TextEditor editor("input.ope", text, reading, false);
        edit(editor, input.substr(0, end));
    }
    return 0;
}
