// A host of the library: sets it up, loads a database, reads typed values, adds a kind of component of its own, saves.
//   zedobjparam_host DATABASE.opd NEW.opd
#include <AxDefaultComponentDescriptorFactory.h>
#include <AxDefaultParameterFactory.h>
#include <AxDescriptorOf.h>
#include <AxDiagnostic.h>
#include <AxMovingObjectParameters.h>
#include <AxStreams.h>
#include <AxSxpParameterDb.h>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace
{
namespace fs = std::filesystem;

/// A kind of component that only this host knows. Length in metres.
class TowedArrayDescriptor
    : public AxDescriptorOf<TowedArrayDescriptor, AxComponentDescriptor, "towed-array-descriptor">
{
public:
    using AxDescriptorOf::AxDescriptorOf;

    double cableLength() const { return myCableLength.value(); }
    void setCableLength(double length) { assignSpecified(myCableLength, length); }

private:
    AxRwReal myCableLength{
        {"cable-length", "m", "Length of the cable paid out.", {0.0, axUnbounded}}, 600.0, registry()};
};

AxObjectType const theDestroyer(1, 3, 225, 4, 1, 1, 0, 1);

std::unique_ptr<AxSxpParameterDb> load(char const* file)
{
    auto database = std::make_unique<AxSxpParameterDb>();
    return database->init() && database->load(file) ? std::move(database) : nullptr;
}

TowedArrayDescriptor* towedArrayOf(AxZedObjectParameters& record)
{
    return dynamic_cast<TowedArrayDescriptor*>(record.sensorDescriptorList().lookupComponentDescriptor("tail"));
}

/// Gives the destroyer a towed array.
bool equip(AxSxpParameterDb& database)
{
    auto* ship = dynamic_cast<AxMovingObjectParameters*>(database.lookup(theDestroyer));
    if (ship == nullptr)
    {
        return false;
    }
    std::printf("%s: %.0f t, %.1f m/s, %d systems\n", ship->displayName().c_str(), ship->mass() / 1000.0,
                ship->maxSpeed(), ship->systemDescriptorList().count());

    TowedArrayDescriptor tail("tail", nullptr);
    tail.setCableLength(450.0);
    ship->sensorDescriptorList().addComponentDescriptor(tail);
    return true;
}

/// Whether the saved database gives the towed array back.
bool isEquipped(char const* file)
{
    std::unique_ptr<AxSxpParameterDb> const database = load(file);
    AxZedObjectParameters* ship = database != nullptr ? database->lookup(theDestroyer) : nullptr;
    TowedArrayDescriptor const* tail = ship != nullptr ? towedArrayOf(*ship) : nullptr;
    std::printf("saved and read again: cable of %.0f m\n", tail != nullptr ? tail->cableLength() : 0.0);
    return tail != nullptr && tail->cableLength() == 450.0;
}

/// Puts what the records refer to, and the records that were never read, beside the new database.
void takeAlong(AxSxpParameterDb& database, fs::path const& from, fs::path const& to)
{
    for (char const* folder : {"ammoselect", "damage", "detection", "formation", "hit", "rules", "systems"})
    {
        fs::copy(from / folder, to / folder, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    }
    database.addUnloadedFilesToCopyPairs(AxFilename(to.string()));
}
} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
    {
        std::fprintf(stderr, "usage: %s DATABASE.opd NEW.opd\n", argv[0]);
        return 2;
    }
    // Everything the library has to say passes through here; without a sink it goes to the standard error stream.
    AxDiagnostics::setSink([](AxDiagnostic const& finding) { std::fprintf(stderr, "%s\n", finding.format().c_str()); });
    AxWarn.setSink([](std::string const&) {});

    AxDefaultComponentDescriptorFactory descriptors;
    AxDefaultParameterFactory records;
    AxComponentDescriptor::setFactory(&descriptors);
    AxZedObjectParameters::setFactory(&records);
    AxComponentDescriptor::addComponentDescriptorCreatorFcn("towed-array-descriptor", &TowedArrayDescriptor::creator);

    std::unique_ptr<AxSxpParameterDb> const database = load(argv[1]);
    if (database == nullptr || !equip(*database))
    {
        return 1;
    }
    takeAlong(*database, fs::absolute(argv[1]).parent_path(), fs::absolute(argv[2]).parent_path());
    return database->save(argv[2]) && isEquipped(argv[2]) ? 0 : 1;
}
