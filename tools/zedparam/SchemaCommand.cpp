#include "Commands.h"

#include <cstdio>
#include <memory>

#include "CommandLine.h"
#include "Schema.h"

void addSchemaCommand(CommandLine& line)
{
    struct Options
    {
        bool json = false;
        bool xsd = false;
        bool markdown = false;
    };
    auto const options = std::make_shared<Options>();
    line.add("schema", "What records may hold, for other programs and for people.",
             [options]
             {
                 std::string const text = options->json ? jsonSchema() : options->xsd ? xmlSchema() : markdownManual();
                 bool const isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
                 return isWritten ? Fine : CouldNotRun;
             })
        .oneFlagOf("form")
        .flag("--json", options->json, "JSON Schema of the records that convert --to json writes")
        .flag("--xsd", options->xsd, "XML Schema of entity files")
        .flag("--markdown", options->markdown, "A manual of all types and keywords");
}
