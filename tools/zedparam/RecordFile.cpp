#include "RecordFile.h"

#include <list>

#include "AxDiagnostic.h"
#include "AxSourceScope.h"
#include "AxZedXmlUtils.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"
#include "ConvertWriters.h"
#include "Database.h"
#include "ReadContext.h"
#include "ReadFile.h"

namespace
{
Records readEntities(AxFilename const& file, std::string const& object, ReadContext const& context)
{
    Records records;
    AxEnvironmentPtr const env = AxZedXmlUtils::CreateZedXmlEnvironment(file, true);
    std::list<AxEnvValuePtr> elements;
    AxZedXmlUtils::getObjectElements(env, elements);
    for (AxEnvValuePtr const& element : elements)
    {
        if (!object.empty() && !(AxReaderWriter::getAttribute(env, "name", element) == AxString(object)))
        {
            continue;
        }
        std::unique_ptr<AxZedObjectParameters> record(
            AxZedXmlUtils::createParameters(env, element, context.files, context.bindings));
        if (record == nullptr)
        {
            continue;
        }
        takeTypesOfElement(*record);
        records.push_back(std::move(record));
    }
    return records;
}

Records readText(AxFilename const& file, Database const& database, ReadContext const& context)
{
    Records records;
    std::string text;
    if (!readFile(file.native(), text))
    {
        return records;
    }
    try
    {
        AxlInputStream stream(text);
        std::unique_ptr<AxZedObjectParameters> record(
            AxZedObjectParameters::createParameters(AxcRead(stream), context.files, context.bindings));
        if (record != nullptr)
        {
            for (AxSxpParameterDbEntry const* entry : database.entriesOf(file.native()))
            {
                record->setObjectType(entry->objectType());
            }
            records.push_back(std::move(record));
        }
    }
    catch (AxlSyntaxError const& fault)
    {
        AxDiagnostics::report(fault.diagnostic());
    }
    return records;
}
} // namespace

Records readRecords(std::string const& file, std::string const& object, Database const& database)
{
    AxFilename const name(file);
    AxSourceScope const scope(name);
    ReadContext const context(file, database);
    return name.extension() == "entity" ? readEntities(name, object, context) : readText(name, database, context);
}
