#include "AxComponentSystemDatabase.h"

#include "AxComponentSystemDefinition.h"
#include "AxDiagnostic.h"
#include "AxFileCells.h"
#include "AxReadWholeFile.h"
#include "AxStreams.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"

#include <algorithm>
#include <cerrno>
#include <memory>

/// Whether reading failed after the file had been opened.
static bool isUnreadable(int error)
{
    return error == EISDIR || error == EINVAL || error == EFBIG || error == EIO;
}

static void reportTextAfterEnd(AxlInputStream& stream)
{
    AxDiagnostic fault;
    if (axTextFollows(stream, fault.line, fault.column))
    {
        fault.severity = AxSeverity::Warning;
        fault.code = "text-after-end";
        fault.text = "text after the end of the expression is ignored";
        AxDiagnostics::report(std::move(fault));
    }
}

static void readDefinition(AxComponentSystemDefinition& definition, AxFilename const& file, std::string text,
                           AxBindingsList const& bindings)
{
    AxSourceScope const scope(file);
    try
    {
        AxlInputStream stream(std::move(text));
        AxlReadOptions options;
        options.closeOpenLists = true;
        AxlReadResult const read = AxcRead(stream, AxlEnv(), options);
        if (read.unclosed)
        {
            axReportParseFailure(file.string().string(), read.fault().diagnostic());
            read.settleCutOff();
        }
        if (!read.expr->isEof())
        {
            definition.getSelf(read.expr, {file.directory()}, bindings);
            reportTextAfterEnd(stream);
        }
    }
    catch (AxlSyntaxError const& error)
    {
        axReportParseFailure(file.string().string(), error.diagnostic());
    }
    catch (...)
    {
        AxDiagnostic fault;
        fault.code = "read-failed";
        fault.text = axReason();
        axReportParseFailure(file.string().string(), std::move(fault));
    }
}

AxComponentSystemDatabase::AxComponentSystemDatabase() = default;

AxComponentSystemDatabase::~AxComponentSystemDatabase()
{
    for (AxSystemDefinitionInfo const& system : mySystems)
    {
        delete system.definition();
    }
}

bool AxComponentSystemDatabase::loadSystemDefinition(AxFilename const& file, AxBindingsList const& bindings)
{
    auto definition =
        std::make_unique<AxComponentSystemDefinition>(AxComponentSystemDefinition::elementWord(), nullptr);
    std::string text;
    int error = 0;
    if (axReadWholeFile(file, text, error))
    {
        readDefinition(*definition, file, std::move(text), bindings);
    }
    else if (isUnreadable(error))
    {
        AxWarn("couldn't create sxp stream for %s\n", file.c_str());
        return false;
    }
    mySystems.emplace_back(file, definition.get());
    definition.release();
    return true;
}

std::list<AxSystemDefinitionInfo>
AxComponentSystemDatabase::findSystemsForCategoryAndSRType(AxString const& category, AxString const& srType) const
{
    std::list<AxSystemDefinitionInfo> found;
    for (AxSystemDefinitionInfo const& system : mySystems)
    {
        AxComponentSystemMetaData const& metaData = system.definition()->metaData();
        if ((srType.isNull() || metaData.allowedForStateRepositoryType(srType)) &&
            (category.isNull() || metaData.inSystemCategory(category)))
        {
            found.push_back(system);
        }
    }
    return found;
}

AxComponentSystemDefinition const* AxComponentSystemDatabase::findSystemByFilename(AxFilename const& file) const
{
    for (AxSystemDefinitionInfo const& system : mySystems)
    {
        if (system.filename() == file)
        {
            return system.definition();
        }
    }
    return nullptr;
}

AxComponentSystemDefinition const* AxComponentSystemDatabase::findSystemBySystemName(AxFilename const& file) const
{
    AxFilename const base = file.stripPath();
    for (AxSystemDefinitionInfo const& system : mySystems)
    {
        if (system.filename().stripPath() == base)
        {
            return system.definition();
        }
    }
    return nullptr;
}

bool AxComponentSystemDatabase::replaceSystem(AxFilename const& file, AxBindingsList const& bindings)
{
    removeSystem(file);
    return loadSystemDefinition(file, bindings);
}

bool AxComponentSystemDatabase::removeSystem(AxComponentSystemDefinition const* definition)
{
    auto const found =
        std::find_if(mySystems.begin(), mySystems.end(),
                     [definition](AxSystemDefinitionInfo const& system) { return system.definition() == definition; });
    if (found == mySystems.end())
    {
        return false;
    }
    delete found->definition();
    mySystems.erase(found);
    return true;
}

bool AxComponentSystemDatabase::removeSystem(AxFilename const& file)
{
    AxComponentSystemDefinition const* const definition = findSystemByFilename(file);
    return definition && AxComponentSystemDatabase::removeSystem(definition);
}
