#include "AxDefaultSystemParameterDataFactory.h"
#include "AxSystemArtPartParameterData.h"
#include "AxSystemBoolParameterData.h"
#include "AxSystemIntParameterData.h"
#include "AxSystemOrientationParameterData.h"
#include "AxSystemSensitivityParameterData.h"
#include "AxSystemStringParameterData.h"
#include "AxSystemVectorParameterData.h"

AxDefaultSystemParameterDataFactory::AxDefaultSystemParameterDataFactory()
{
    addCreator("vector-parameter-data", &AxSystemVectorParameterData::create);
    addCreator("int-parameter-data", &AxSystemIntParameterData::create);
    addCreator("real-parameter-data", &AxSystemRealParameterData::create);
    addCreator("sensitivity-parameter-data", &AxSystemSensitivityParameterData::create);
    addCreator("art-part-parameter-data", &AxSystemArtPartParameterData::create);
    addCreator("bool-parameter-data", &AxSystemBoolParameterData::create);
    addCreator("tait-bryan-parameter-data", &AxSystemOrientationParameterData::create);
    addCreator("string-parameter-data", &AxSystemStringParameterData::create);
}

AxDefaultSystemParameterDataFactory::~AxDefaultSystemParameterDataFactory() = default;

AxSystemBoolParameterData::~AxSystemBoolParameterData() = default;
AxSystemIntParameterData::~AxSystemIntParameterData() = default;
AxSystemRealParameterData::~AxSystemRealParameterData() = default;
AxSystemStringParameterData::~AxSystemStringParameterData() = default;
AxSystemOrientationParameterData::~AxSystemOrientationParameterData() = default;

AxSystemSensitivityParameterData::~AxSystemSensitivityParameterData() = default;

AxString AxSystemSensitivityParameterData::parameterType() const
{
    return "sensitivity-parameter-data";
}

AxSystemParameterData* AxSystemSensitivityParameterData::clone() const
{
    return copyAs<AxSystemSensitivityParameterData>();
}

char const* AxSystemSensitivityParameterData::readerWriterType() const
{
    return "AxSystemSensitivityParameterData";
}

char const* AxSystemSensitivityParameterData::xmlType() const
{
    return "AxSystemSensitivityParameterData";
}

AxSystemParameterData* AxSystemSensitivityParameterData::create(AxString const& name)
{
    return axTryNew<AxSystemSensitivityParameterData>(name, nullptr);
}

AxSystemVectorParameterData::AxSystemVectorParameterData(AxSymbolString name, AxSystemVectorParameterData const& other,
                                                         AxReaderWriterRegistry* registry)
    : AxSystemVectorParameterData(name, registry)
{
    assign(other);
}

AxSystemVectorParameterData::AxSystemVectorParameterData(AxSystemVectorParameterData const& other)
    : AxSystemVectorParameterData(other.AxReaderWriter::name(), other, nullptr)
{
}

AxSystemVectorParameterData::~AxSystemVectorParameterData() = default;

AxSystemVectorParameterData& AxSystemVectorParameterData::operator=(AxSystemVectorParameterData const& other)
{
    assign(other);
    return *this;
}

void AxSystemVectorParameterData::setRelativeTo(AxString const& frame)
{
    assignSpecified(myRelativeTo, frame);
}

bool AxSystemVectorParameterData::operator==(AxSystemParameterData const& other) const
{
    auto const* same = dynamic_cast<AxSystemVectorParameterData const*>(&other);
    return same && AxSystemParameterDataOf::operator==(other) && relativeTo() == same->relativeTo();
}

AxSystemArtPartParameterData::AxSystemArtPartParameterData(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxSystemParameterData(name, registry, "AxRwInt", "none")
{
}

AxSystemArtPartParameterData::AxSystemArtPartParameterData(AxString const& name, AxReaderWriterRegistry* registry)
    : AxSystemArtPartParameterData(AxSymbolString(name), registry)
{
}

AxSystemArtPartParameterData::AxSystemArtPartParameterData(char const* name, AxReaderWriterRegistry* registry)
    : AxSystemArtPartParameterData(AxSymbolString(name), registry)
{
}

AxSystemArtPartParameterData::AxSystemArtPartParameterData(AxSymbolString name,
                                                           AxSystemArtPartParameterData const& other,
                                                           AxReaderWriterRegistry* registry)
    : AxSystemArtPartParameterData(name, registry)
{
    assign(other);
}

AxSystemArtPartParameterData::AxSystemArtPartParameterData(AxSystemArtPartParameterData const& other)
    : AxSystemArtPartParameterData(other.AxReaderWriter::name(), other, nullptr)
{
}

AxSystemArtPartParameterData::~AxSystemArtPartParameterData() = default;

AxSystemArtPartParameterData& AxSystemArtPartParameterData::operator=(AxSystemArtPartParameterData const& other)
{
    assign(other);
    return *this;
}

void AxSystemArtPartParameterData::setArtPartCategory(AxString const& category)
{
    assignSpecified(myArtPartCategory, category);
}

bool AxSystemArtPartParameterData::operator==(AxSystemParameterData const& other) const
{
    return dynamic_cast<AxSystemArtPartParameterData const*>(&other) && AxSystemParameterData::operator==(other);
}

bool AxSystemArtPartParameterData::operator==(AxSystemArtPartParameterData const& other) const
{
    return *this == static_cast<AxSystemParameterData const&>(other);
}

AxString AxSystemArtPartParameterData::parameterType() const
{
    return "art-part-parameter-data";
}

AxSystemParameterData* AxSystemArtPartParameterData::clone() const
{
    return axTryNew<AxSystemArtPartParameterData>(*this);
}

char const* AxSystemArtPartParameterData::readerWriterType() const
{
    return "AxSystemArtPartParameterData";
}

char const* AxSystemArtPartParameterData::xmlType() const
{
    return "AxSystemArtPartParameterData";
}

AxSystemParameterData* AxSystemArtPartParameterData::create(AxString const& name)
{
    return axTryNew<AxSystemArtPartParameterData>(name, nullptr);
}
