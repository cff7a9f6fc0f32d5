#include "Answer.h"

#include <cstdio>

#include "AxZedObjectParameters.h"
#include "Collection.h"
#include "Commands.h"
#include "Json.h"
#include "TypeArgument.h"

int ask(std::string const& databaseFile, std::string const& type, Answer& answer)
{
    TypeArgument argument;
    if (!readType(type, argument))
    {
        return CouldNotRun;
    }
    answer.database = Collection::openAny(databaseFile);
    if (answer.database == nullptr)
    {
        return CouldNotRun;
    }
    answer.type = typeToAsk(argument, *answer.database);
    AxZedParameterDb::Match const match = answer.database->entryForLookup(answer.type);
    answer.entry = dynamic_cast<AxSxpParameterDbEntry*>(match.entry);
    answer.exact = match.exact;
    if (answer.entry == nullptr)
    {
        std::fprintf(stderr, "zedparam: no entry of %s answers %s\n", databaseFile.c_str(), type.c_str());
        return HasFindings;
    }
    answer.record = answer.database->getParameters(answer.entry);
    return answer.record != nullptr ? Fine : HasFindings;
}

void writeAnswer(JsonWriter& json, Answer const& answer)
{
    json.member("type", answer.type.string().string());
    if (answer.entry == nullptr)
    {
        json.key("entry").null();
        return;
    }
    json.member("entry", answer.entry->objectType().string().string());
    json.member("match", answer.exact ? "exact" : "pattern");
    json.member("file", Database::fileOf(*answer.entry));
    if (answer.record != nullptr)
    {
        json.member("name", answer.record->name().view());
        json.member("kind", answer.record->parameterType().string());
        json.member("display-name", answer.record->displayName().string());
    }
}
