#include "Commands.h"

#include <cstdio>
#include <memory>
#include <string>

#include "Answer.h"
#include "AxZedObjectParameters.h"
#include "CommandLine.h"
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

struct LookupOptions
{
    std::string database;
    std::string type;
    bool json = false;
};

int lookup(LookupOptions const& options)
{
    Findings findings(Findings::Print::AtOnce);
    Answer answer;
    int const exitCode = ask(options.database, options.type, answer);
    if (exitCode == CouldNotRun)
    {
        return exitCode;
    }
    if (options.json)
    {
        JsonWriter json;
        json.beginObject();
        writeAnswer(json, answer);
        json.endObject().print();
    }
    else if (answer.entry != nullptr)
    {
        printText(answer);
    }
    return exitCode == Fine && !findings.empty() ? HasFindings : exitCode;
}
} // namespace

void addLookupCommand(CommandLine& line)
{
    auto const options = std::make_shared<LookupOptions>();
    line.add("lookup", "Which entry answers an object type, and from which file.",
             [options] { return lookup(*options); })
        .required("DB", options->database, "The database file (.opd), or a collection (.params)")
        .required("TYPE", options->type, "The object type, such as 1:1:1:225:1:1:3:0")
        .flag("--json", options->json, "Print JSON");
}
