#include <AxDefaultComponentDescriptorFactory.h>
#include <AxDefaultParameterFactory.h>
#include <AxMovingObjectParameters.h>
#include <AxSxpParameterDb.h>
#include <cstdio>

int main(int argc, char** argv)
{
    AxDefaultComponentDescriptorFactory descriptors; // both factories stay the host's
    AxDefaultParameterFactory records;
    AxComponentDescriptor::setFactory(&descriptors);
    AxZedObjectParameters::setFactory(&records);

    AxSxpParameterDb database;
    if (!database.init() || !database.load(argc > 1 ? argv[1] : "force.opd"))
    {
        return 1;
    }
    AxObjectType const tank(1, 1, 225, 1, 1, 3, 0, 1); // the super type comes last here
    auto const* record = dynamic_cast<AxMovingObjectParameters const*>(database.lookup(tank));
    if (record != nullptr)
    {
        std::printf("%s: %.1f t, %.1f m/s\n", record->displayName().c_str(), record->mass() / 1000.0,
                    record->maxSpeed());
    }
    return record != nullptr ? 0 : 1;
}
