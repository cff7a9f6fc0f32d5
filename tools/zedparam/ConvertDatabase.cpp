#include "ConvertDatabase.h"

#include <boost/make_shared.hpp>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <set>

#include "AxEnvXMLWriter.h"
#include "AxSxpParameterDbFileData.h"
#include "AxSxpParameterDbWriter.h"
#include "AxZedObjectParameters.h"
#include "AxZedXmlUtils.h"
#include "Commands.h"
#include "Database.h"
#include "Findings.h"

namespace
{
namespace fs = std::filesystem;

/// Writes what is specified, as parameter text.
class TextWriter : public AxSxpParameterDbWriter
{
public:
    bool writeParameterFile(AxFilename const& file, AxZedObjectParameters* record) const override
    {
        return writeText(file, record->writtenText());
    }
};

/// Writes entity files, which the database finds by itself.
class EntityWriter : public AxSxpParameterDbWriter
{
public:
    bool writeParameterFile(AxFilename const& file, AxZedObjectParameters* record) const override
    {
        auto const env = boost::make_shared<AxEnvironment>();
        std::string text;
        return AxZedXmlUtils::addObject(env, AxEnvValuePtr(), *record) && AxEnvXMLWriter().writeText(env, text) &&
               writeText(file, text);
    }

protected:
    void writeEntry(AxSxpParameterDbFileData* data, AxSxpParameterDbEntry* entry, AxFilename const& parameterDir,
                    AxFilename const& fileDir) override
    {
        data->variableBindings().setString("data-root",
                                           AxString("$(opd-dir)/" + parameterDir.stripPath().string().string()));
        if (entry->parameters() == nullptr)
        {
            AxSxpParameterDbWriter::writeEntry(data, entry, parameterDir, fileDir);
            return;
        }
        std::string const stem = fs::path(entry->filename().native()).stem().string();
        std::string name = stem;
        for (int i = 2; !myNames.insert(name).second; ++i)
        {
            name = stem + '-' + std::to_string(i);
        }
        writeParameterFile(fileDir.combine(parameterDir).combine(AxFilename(name + ".entity")), entry->parameters());
    }

private:
    std::set<std::string> myNames;
};
} // namespace

int convertDatabase(std::string const& from, std::string const& to, bool toEntities)
{
    if (!to.ends_with(AxSxpParameterDb::opdFilenameExtension().string()))
    {
        std::fprintf(stderr, "zedparam: cannot convert to \"%s\"; expected a name that ends in \"%s\"\n", to.c_str(),
                     AxSxpParameterDb::opdFilenameExtension().c_str());
        return CouldNotRun;
    }
    Findings findings(Findings::Print::AtOnce);
    std::unique_ptr<Database> const database = Database::open(from);
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    if (fs::weakly_canonical(fs::absolute(to).parent_path()) != fs::weakly_canonical(database->directory()))
    {
        std::fprintf(stderr,
                     "zedparam: cannot convert to \"%s\"; expected a name in the database's own directory, \"%s\", "
                     "because its records name files beside it (\"save\" copies a database elsewhere)\n",
                     to.c_str(), database->directory().c_str());
        return CouldNotRun;
    }
    database->readRecords("reading records");
    std::size_t records = 0;
    for (AxSxpParameterDbEntry const* entry : database->entries())
    {
        records += entry->parameters() != nullptr;
    }
    if (toEntities)
    {
        database->setWriter(new EntityWriter);
    }
    else
    {
        database->setWriter(new TextWriter);
    }
    if (!database->save(AxFilename(to)))
    {
        return CouldNotRun;
    }
    std::printf("converted %zu of %zu records to %s\n", records, database->entries().size(), to.c_str());
    return findings.empty() ? Fine : HasFindings;
}
