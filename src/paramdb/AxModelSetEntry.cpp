#include "AxModelSetEntry.h"

#include "AxReaderWriterFactory.h"
#include "AxZedXmlUtils.h"

#include <memory>

static AxTypeEntry<AxModelSetEntry> const modelSetEntryEntry{AxTypeOps::withCreator<AxModelSetEntry>()};

namespace
{
std::vector<AxString> const& defaultPalettes()
{
    static std::vector<AxString> const palettes{"EntityCreationPalette"};
    return palettes;
}
} // namespace

AxModelSetEntry::AxModelSetEntry(AxSymbolString name, AxReaderWriterRegistry* registry) : AxRecordOf(name, registry)
{
    myOnPalettes = defaultPalettes();
}

AxModelSetEntry::~AxModelSetEntry() = default;

AxModelSetEntry& AxModelSetEntry::operator=(AxModelSetEntry const& other)
{
    AxRecordOf::operator=(other);
    myPlatform = other.myPlatform;
    return *this;
}

AxModelSetEntry* AxModelSetEntry::clone() const
{
    auto made = std::make_unique<AxModelSetEntry>(AxReaderWriter::name(), nullptr);
    *made = *this;
    return made.release();
}

AxSymbolString AxModelSetEntry::elementWord() const
{
    static AxSymbolString const word("model");
    return word;
}

void AxModelSetEntry::addOnPalette(AxString const& palette)
{
    if (!myOnPalettes.contains(palette))
    {
        myOnPalettes.add(palette);
    }
}

void AxModelSetEntry::setOnlyOnPalette(AxString const& palette)
{
    assignSpecified(myOnPalettes, std::vector<AxString>{palette});
}

bool AxModelSetEntry::readFromEnvironment(AxEnvironmentPtr const& env, AxEnvValuePtr const& element)
{
    if (!AxZedXmlUtils::readModelSetEntry(env, element, *this))
    {
        setObjectType(AxZedXmlUtils::getObjectType(env, element));
    }
    AxEnvValuePtr const platform = AxZedXmlUtils::getPlatform(env, element);
    if (AxEnvObjectPtr const object = platform ? platform->castToObject() : nullptr)
    {
        myPlatform = object->name();
    }
    return !objectType().isNull();
}

bool AxModelSetEntry::writeToEnvironment(AxEnvironmentPtr const& env, AxEnvValuePtr const& element) const
{
    return AxZedXmlUtils::writeModelSetEntry(env, element, *this);
}

void AxModelSetEntry::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    writeAs(elementWord(), out, indent, all, file);
}

void AxModelSetEntry::reset()
{
    AxRecordOf::reset();
    myOnPalettes = defaultPalettes();
}
