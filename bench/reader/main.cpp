#include <AxDefaultComponentDescriptorFactory.h>
#include <AxDefaultParameterFactory.h>
#include <AxSxpParameterDb.h>
#include <AxSxpParameterDbEntry.h>
#include <AxZedObjectParameters.h>
#include <AxZedParameterDbEntry.h>

#include <cstdio>
#include <memory>
#include <vector>

namespace
{
struct Database : AxSxpParameterDb
{
    using AxSxpParameterDb::getParameters;
    using AxSxpParameterDb::parameterList;
};
} // namespace

/// Reads every record of the databases named, one after the other, and keeps none: what the work of the command on a
/// database is measured against.
int main(int argc, char** argv)
{
    AxDefaultComponentDescriptorFactory descriptors;
    AxDefaultParameterFactory records;
    AxComponentDescriptor::setFactory(&descriptors);
    AxZedObjectParameters::setFactory(&records);
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i)
    {
        Database database;
        if (!database.init() || !database.load(argv[i]))
        {
            return 2;
        }
        std::vector<AxSxpParameterDbEntry*> entries;
        for (AxListItem const* item = database.parameterList().first(); item != nullptr; item = item->next())
        {
            entries.push_back(dynamic_cast<AxSxpParameterDbEntry*>(static_cast<AxZedParameterDbEntry*>(item->data())));
        }
        for (AxSxpParameterDbEntry* entry : entries)
        {
            std::unique_ptr<AxZedObjectParameters> const record(database.getParameters(entry));
            entry->setParameters(nullptr);
            count += record != nullptr;
        }
    }
    std::printf("%zu records\n", count);
    return 0;
}
