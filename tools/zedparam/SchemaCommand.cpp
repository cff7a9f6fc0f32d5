#include "Commands.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>

#include "Schema.h"

void addSchemaCommand(CLI::App& app, int& exitCode)
{
    struct Options
    {
        bool json = false;
        bool xsd = false;
        bool markdown = false;
    };
    auto const options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("schema", "What records may hold, for other programs and for people.");
    CLI::Option_group* form = command->add_option_group("form");
    form->add_flag("--json", options->json, "JSON Schema of the records that convert --to json writes");
    form->add_flag("--xsd", options->xsd, "XML Schema of entity files");
    form->add_flag("--markdown", options->markdown, "A manual of all types and keywords");
    form->require_option(1);
    command->callback(
        [options, &exitCode]
        {
            std::string const text = options->json ? jsonSchema() : options->xsd ? xmlSchema() : markdownManual();
            bool const isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
            exitCode = isWritten ? Fine : CouldNotRun;
        });
}
