#include "FileCheck.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "AxComponentSystemDescriptor.h"
#include "AxModelSet.h"
#include "AxReadWholeFile.h"
#include "AxSimulationObjectGroupModelSetEntry.h"
#include "AxSourceScope.h"
#include "AxTaskExecutionRules.h"
#include "AxZedObjectParameters.h"
#include "AxZedObjectParametersDB.h"
#include "AxZedObjectParametersList.h"
#include "AxZedXmlUtils.h"
#include "CheckedFiles.h"
#include "Database.h"
#include "Findings.h"
#include "ReadContext.h"
#include "RecordCheck.h"
#include "Tables.h"

namespace
{
namespace fs = std::filesystem;

/// The first word of a parameter text, and the first word of its first item.
struct Heads
{
    std::string outer;
    std::string inner;
};

Heads headsOf(std::string const& file)
{
    Heads heads;
    Source::again(file).forEachList(
        [&heads](AxlObj const& list)
        {
            if (heads.outer.empty())
            {
                heads = {std::string(list.car()->text()), std::string(list.cdr()->car()->car()->text())};
            }
        });
    return heads;
}

class FileCheck
{
public:
    FileCheck(std::string const& file, Findings& findings) : myFile(file), myFindings(findings) {}

    void run()
    {
        std::string const extension = fs::path(myFile).extension().string();
        Heads const heads = extension == ".entity" || extension == ".sog" ? Heads() : headsOf(myFile);
        if (newTable(myFile) != nullptr)
        {
            checkTable(myFile, myFiles, myFindings);
        }
        else if (extension == ".sog")
        {
            AxSimulationObjectGroupModelSetEntry("group", nullptr).load(AxFilename(myFile));
        }
        else if (extension == ".entity" || extension == ".ope" || heads.inner == "parameter-type")
        {
            checkRecords(extension == ".entity");
        }
        else if (heads.outer == "model-set")
        {
            AxModelSet("model-set", nullptr).load(AxFilename(myFile));
        }
        else if (heads.outer == "parameter-list" || heads.inner == "sim-object-parameters")
        {
            checkCollection();
        }
        else if (heads.outer == "task-execution-rules")
        {
            AxTaskExecutionRules rules("task-execution-rules", nullptr);
            loadTable(myFile, rules);
            checkContent(myFile, rules, myFiles, myFindings);
        }
        else
        {
            checkSystem();
        }
    }

private:
    /// The database that lists the file, if any, only tells what its variables may be.
    void checkRecords(bool isEntityFile)
    {
        std::unique_ptr<Database> const database = Database::listing(myFile);
        if (isEntityFile)
        {
            database != nullptr ? checkObjects(*database, Variables::AllKnown)
                                : checkObjects(*Database::openNone(), Variables::OwnKnown);
            return;
        }
        if (database == nullptr)
        {
            checkAlone();
            return;
        }
        for (AxSxpParameterDbEntry* entry : database->entriesOf(myFile))
        {
            if (AxZedObjectParameters* record = database->getParameters(entry))
            {
                checkRecord(Database::fileOf(*entry), *record, Variables::AllKnown, myFiles, myFindings);
            }
        }
    }

    void checkAlone()
    {
        std::unique_ptr<Database> const database = Database::openNone();
        AxSxpParameterDbEntry* const entry = database->add(AxObjectType(), AxFilename(myFile), false, nullptr);
        if (AxZedObjectParameters* record = database->getParameters(entry))
        {
            checkRecord(myFile, *record, Variables::OwnKnown, myFiles, myFindings);
        }
    }

    void checkObjects(Database const& database, Variables variables)
    {
        ReadContext const context(myFile, database);
        AxSourceScope const scope{AxFilename(myFile)};
        AxEnvironmentPtr const tree = AxZedXmlUtils::CreateZedXmlEnvironment(AxFilename(myFile), true);
        std::list<AxEnvValuePtr> elements;
        AxZedXmlUtils::getObjectElements(tree, elements);
        for (AxEnvValuePtr const& element : elements)
        {
            std::vector<AxObjectType> types;
            AxZedXmlUtils::getMatchTypes(tree, element, types);
            AxZedXmlUtils::getObjectType(tree, element);
            std::unique_ptr<AxZedObjectParameters> const record(
                AxZedXmlUtils::createParameters(tree, element, context.files, context.bindings));
            if (record != nullptr)
            {
                checkRecord(myFile, *record, variables, myFiles, myFindings);
            }
        }
    }

    void checkCollection()
    {
        AxZedObjectParametersDB collection("parameter-list", nullptr);
        collection.init();
        collection.readParameterFile(AxString(myFile));
        if (collection.parametersList() != nullptr)
        {
            checkContent(myFile, *collection.parametersList(), myFiles, myFindings);
        }
    }

    void checkSystem()
    {
        AxSourceScope const scope{AxFilename(myFile)};
        AxComponentSystemDescriptor system("system", nullptr);
        system.setSystemDefinitionFile(AxFilename(myFile));
        system.systemDefinitionFile().load({}, {});
        system.addVariableBindingsFromMetaData();
        system.postGetSelf();
        checkContent(myFile, system, myFiles, myFindings);
    }

    std::string const& myFile;
    Findings& myFindings;
    CheckedFiles myFiles;
};
} // namespace

bool isDatabaseFile(std::string const& file)
{
    return file.ends_with(AxSxpParameterDb::opdFilenameExtension().string()) ||
           headsOf(file).outer == "parameter-database";
}

void checkFile(std::string const& file, Findings& findings)
{
    Database::openNone(); // sets the library up
    FileCheck(file, findings).run();
}
