#include "AxZedObjectParametersDB.h"

#include "AxExtFileInputStream.h"
#include "AxGuarded.h"
#include "AxParameterDbFiles.h"
#include "AxReplaceFile.h"
#include "AxStreams.h"
#include "AxZedObjectParametersList.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"

#include <cstring>
#include <exception>
#include <new>

AxZedObjectParametersDB::AxZedObjectParametersDB(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxZedObjectParametersDB::AxZedObjectParametersDB(AxString const& name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxZedObjectParametersDB::AxZedObjectParametersDB(char const* name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxZedObjectParametersDB::~AxZedObjectParametersDB() = default;

char const* AxZedObjectParametersDB::readerWriterType() const
{
    return "AxZedObjectParametersDB";
}

bool AxZedObjectParametersDB::init()
{
    return createParametersList();
}

bool AxZedObjectParametersDB::createParametersList()
{
    myList.reset();
    try
    {
        myList = std::make_unique<AxZedObjectParametersList>(AxSymbolString("sim-object-parameters"), registry());
    }
    catch (std::bad_alloc const&)
    {
        AxWarn("Could not allocate sim object parameter list\n");
        return false;
    }
    myList->registerElementType("individual-entity-parameters", 1);
    myList->registerElementType("pseudo-aggregate-entity-parameters", 3);
    myList->registerElementType("true-aggregate-entity-parameters", 4);
    return true;
}

void AxZedObjectParametersDB::addParameters(AxZedObjectParameters* record)
{
    if (myList)
    {
        myList->addParameters(record);
    }
}

AxZedObjectParameters* AxZedObjectParametersDB::lookupParameters(AxObjectType const& type, AxObjectType* matched) const
{
    return myList ? myList->lookupParameters(type, matched) : nullptr;
}

void AxZedObjectParametersDB::removeParameters(AxObjectType const& type)
{
    if (myList)
    {
        myList->removeParameters(type);
    }
}

void AxZedObjectParametersDB::removeAndDeleteAll()
{
    if (myList)
    {
        myList->emptyList();
    }
}

bool AxZedObjectParametersDB::readParameterFile(AxString const& file)
{
    return axGuarded(
        "read-failed", AxFilename(), false,
        [&]() -> decltype(false)
        {
            AxFilename const name(file);
            AxFilePtr const open = axOpenToRead(name);
            if (!open)
            {
                AxVerbose("Could not open parameter file %s for reading\n", file.c_str());
                return false;
            }
            AxSourceScope const scope(name);
            AxExtFileInputStream stream(open.get(), name);
            if (!stream.isValid())
            {
                AxDiagnostics::reportStated(axUnreadable(name, open.get()),
                                            axFormat("couldn't create lisp stream for %s\n", file.c_str()));
                return false;
            }
            try
            {
                AxlObjPtr const expression = AxcRead(stream);
                if (!expression->isEof())
                {
                    AxReaderWriter::getSelf(expression, {name.directory()}, nullVariableReference());
                }
            }
            catch (AxlSyntaxError const& error)
            {
                AxDiagnostics::reportStated(error.diagnostic(), axFormat("Error parsing %s\n", file.c_str()));
                return false;
            }
            catch (...)
            {
                AxDiagnostics::reportStated(axFault("read-failed", name, axReason()),
                                            axFormat("Error parsing %s\n", file.c_str()));
                return false;
            }
            if (myList)
            {
                myList->inheritValuesFromAncestors();
            }
            return true;
        });
}

bool AxZedObjectParametersDB::writeParameterFile(AxString const& file)
{
    return axGuarded("save-failed", AxFilename(), false,
                     [&]() -> decltype(false)
                     {
                         AxFilename const name(file);
                         std::string text;
                         putSelf(text, 0, false, name);
                         text += '\n';
                         int error = 0;
                         if (!axReplaceFile(name, text, error))
                         {
                             AxDiagnostics::reportStated(
                                 axFault("cannot-write", name, std::strerror(error)),
                                 axFormat("Could not open parameter file %s for writing\n", file.c_str()));
                             return false;
                         }
                         return true;
                     });
}
