#include "Commands.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <string>

#include "Answer.h"
#include "AxZedObjectParameters.h"
#include "Database.h"
#include "Findings.h"
#include "Json.h"

namespace
{
void printText(Answer const& answer)
{
    std::printf("type    %s\n", answer.type.string().c_str());
    std::printf("entry   %s (%s)\n", answer.entry->objectType().string().c_str(), answer.exact ? "exact" : "pattern");
    std::printf("file    %s\n", Database::fileOf(*answer.entry).c_str());
    if (answer.record != nullptr)
    {
        AxString const& title = answer.record->displayName();
        std::printf("record  %s, a %s%s%s\n", answer.record->name().c_str(), answer.record->parameterType().c_str(),
                    title.isNull() ? "" : ": ", title.c_str());
    }
}
} // namespace

void addLookupCommand(CLI::App& app, int& exitCode)
{
    struct Options
    {
        std::string database;
        std::string type;
        bool json = false;
    };
    auto const options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("lookup", "Which entry answers an object type, and from which file.");
    command->add_option("DB", options->database, "The database file (.opd)")->required();
    command->add_option("TYPE", options->type, "The object type, such as 1:1:1:225:1:1:3:0")->required();
    command->add_flag("--json", options->json, "Print JSON");
    command->callback(
        [options, &exitCode]
        {
            Findings findings(Findings::Print::AtOnce);
            Answer answer;
            exitCode = ask(options->database, options->type, answer);
            if (exitCode == CouldNotRun)
            {
                return;
            }
            if (options->json)
            {
                JsonWriter json;
                json.beginObject();
                writeAnswer(json, answer);
                json.endObject().print();
            }
            else if (answer.entry == nullptr)
            {
                return;
            }
            else
            {
                printText(answer);
            }
            exitCode = exitCode == Fine && !findings.empty() ? HasFindings : exitCode;
        });
}
