#include "AxSystemParameterData.h"

#include "AxDefaultSystemParameterDataFactory.h"
#include "AxReaderWriterFactory.h"
#include "axTryNew.h"

#include <memory>

static AxTypeEntry<AxSystemParameterData> const systemParameterDataEntry;

AxSystemParameterData::AxSystemParameterData(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxSystemParameterData(name, registry, "", "none")
{
}

AxSystemParameterData::AxSystemParameterData(AxString const& name, AxReaderWriterRegistry* registry)
    : AxSystemParameterData(AxSymbolString(name), registry)
{
}

AxSystemParameterData::AxSystemParameterData(char const* name, AxReaderWriterRegistry* registry)
    : AxSystemParameterData(AxSymbolString(name), registry)
{
}

AxSystemParameterData::AxSystemParameterData(AxSymbolString name, AxSystemParameterData const& other,
                                             AxReaderWriterRegistry* registry)
    : AxSystemParameterData(name, registry)
{
    assign(other);
}

AxSystemParameterData::AxSystemParameterData(AxSystemParameterData const& other)
    : AxSystemParameterData(other.AxReaderWriter::name(), other, nullptr)
{
}

AxSystemParameterData::AxSystemParameterData(AxSymbolString name, AxReaderWriterRegistry* registry,
                                             char const* variableType, char const* rollUpRule)
    : AxReaderWriter(name, registry),
      myVariableType{
          {"variable-type", "", "Reader/writer type that holds the value."}, variableType, AxReaderWriter::registry()},
      myRollUpRule{
          {"roll-up-rule", "", "How values combine when systems are aggregated: none, sum, min, max, average."},
          rollUpRule,
          AxReaderWriter::registry()}
{
    // A new record shows an editor's choices even where they are the defaults.
    myVariableType.setValueSpecified(!myVariableType.value().isNull(), false);
    myListDisplay.setValueSpecified(true, false);
    myAllowEdit.setValueSpecified(true, false);
    myRollUpRule.setValueSpecified(true, false);
}

AxSystemParameterData::~AxSystemParameterData() = default;

AxSystemParameterData& AxSystemParameterData::operator=(AxSystemParameterData const& other)
{
    assign(other);
    return *this;
}

void AxSystemParameterData::setParameterName(AxString const& name)
{
    assignSpecified(myParameterName, name);
}

void AxSystemParameterData::setVariableType(AxString const& type)
{
    assignSpecified(myVariableType, type);
}

void AxSystemParameterData::setDisplayLabel(AxString const& label)
{
    assignSpecified(myDisplayLabel, label);
}

void AxSystemParameterData::setDisplayUnits(AxString const& units)
{
    assignSpecified(myDisplayUnits, units);
}

void AxSystemParameterData::setSourceUnits(AxString const& units)
{
    assignSpecified(mySourceUnits, units);
}

void AxSystemParameterData::setListItems(AxString const& items)
{
    assignSpecified(myListItems, items);
}

void AxSystemParameterData::setListDisplay(int display)
{
    assignSpecified(myListDisplay, display);
}

void AxSystemParameterData::setAllowEdit(bool allow)
{
    assignSpecified(myAllowEdit, allow);
}

void AxSystemParameterData::setRollUpRule(AxString const& rule)
{
    assignSpecified(myRollUpRule, rule);
}

AxString AxSystemParameterData::parameterType() const
{
    return {};
}

AxSystemParameterData* AxSystemParameterData::clone() const
{
    return axTryNew<AxSystemParameterData>(*this);
}

bool AxSystemParameterData::operator==(AxSystemParameterData const& other) const
{
    return parameterName() == other.parameterName() && variableType() == other.variableType() &&
           displayLabel() == other.displayLabel() && displayUnits() == other.displayUnits() &&
           rollUpRule() == other.rollUpRule() && sourceUnits() == other.sourceUnits();
}

void AxSystemParameterData::assignDefaultValueToReaderWriter(AxReaderWriter*) const {}

void AxSystemParameterData::getListItems(std::vector<AxString>& labels, std::vector<AxString>& values) const
{
    std::string_view rest = listItems().string();
    while (!rest.empty())
    {
        std::string_view const entry = rest.substr(0, rest.find(';'));
        rest.remove_prefix(std::min(entry.size() + 1, rest.size()));
        if (entry.empty())
        {
            continue;
        }
        std::size_t const equals = entry.find('=');
        std::string_view const label = entry.substr(0, equals);
        bool const isPair = equals != std::string_view::npos && entry.find('=', equals + 1) == std::string_view::npos;
        labels.emplace_back(label);
        values.emplace_back(isPair ? entry.substr(equals + 1) : label);
    }
}

void AxSystemParameterData::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    writeAs(AxSymbolString(parameterType()), out, indent, all, file);
}

char const* AxSystemParameterData::readerWriterType() const
{
    return "AxSystemParameterData";
}

char const* AxSystemParameterData::xmlType() const
{
    return "AxSystemParameterData";
}

AxSystemParameterData::Factory* AxSystemParameterData::factory()
{
    static std::unique_ptr<Factory> const theFactory = std::make_unique<AxDefaultSystemParameterDataFactory>();
    return theFactory.get();
}

AxSystemParameterData* AxSystemParameterData::createSystemParamterData(AxString const& type)
{
    return factory()->createItem(type, type);
}
