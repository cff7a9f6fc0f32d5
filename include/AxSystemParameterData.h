#pragma once

#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwString.h"
#include "AxStringKeyFactoryWithParam.h"

#include <vector>

/// The declaration of one tunable parameter of a component system: its name, the reader/writer type that holds its
/// value, and how an editor shows it. Each kind adds a default value. Owned by the list that holds it.
class ZEDOBJPARAM_API AxSystemParameterData : public AxReaderWriter
{
public:
    using Factory = AxStringKeyFactoryWithParam<AxSystemParameterData, AxString const&>;

    AxSystemParameterData(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSystemParameterData(AxString const& name, AxReaderWriterRegistry* registry);
    AxSystemParameterData(char const* name, AxReaderWriterRegistry* registry);
    AxSystemParameterData(AxSymbolString name, AxSystemParameterData const& other, AxReaderWriterRegistry* registry);
    AxSystemParameterData(AxSystemParameterData const& other);
    ~AxSystemParameterData() override;

    AxSystemParameterData& operator=(AxSystemParameterData const& other);

    AxString const& parameterName() const { return myParameterName.value(); }
    void setParameterName(AxString const& name);
    /// A type name of the reader/writer factory.
    AxString const& variableType() const { return myVariableType.value(); }
    void setVariableType(AxString const& type);
    AxString const& displayLabel() const { return myDisplayLabel.value(); }
    void setDisplayLabel(AxString const& label);
    AxString const& displayUnits() const { return myDisplayUnits.value(); }
    void setDisplayUnits(AxString const& units);
    AxString const& sourceUnits() const { return mySourceUnits.value(); }
    void setSourceUnits(AxString const& units);
    AxString const& listItems() const { return myListItems.value(); }
    void setListItems(AxString const& items);
    int listDisplay() const { return myListDisplay.value(); }
    void setListDisplay(int display);
    bool allowEdit() const { return myAllowEdit.value(); }
    void setAllowEdit(bool allow);
    AxString const& rollUpRule() const { return myRollUpRule.value(); }
    void setRollUpRule(AxString const& rule);

    /// The name under which the factory makes the kind, and its head in text.
    virtual AxString parameterType() const;
    /// A copy of the same kind and name; null when there is no memory for it.
    virtual AxSystemParameterData* clone() const;
    /// List items, list display and the permission to edit take no part; records of different kinds are unequal.
    virtual bool operator==(AxSystemParameterData const& other) const;
    bool equals(AxSystemParameterData const& other) const { return *this == other; }
    /// Hands the default value to a target of the matching kind; leaves every other target alone.
    virtual void assignDefaultValueToReaderWriter(AxReaderWriter* target) const;

    /// Appends the entries of the pick list, "label=value" or a label that is its own value, separated by ";". Both
    /// lists grow together.
    void getListItems(std::vector<AxString>& labels, std::vector<AxString>& values) const;

    using AxReaderWriter::putSelf;
    void putSelf(std::string& out, int indent, bool all, AxFilename const& file) override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;

    /// The one of the process, which knows every kind.
    static Factory* factory();
    /// A new record of the kind, named by it; null when the kind is unknown.
    static AxSystemParameterData* createSystemParamterData(AxString const& type);

protected:
    AxSystemParameterData(AxSymbolString name, AxReaderWriterRegistry* registry, char const* variableType,
                          char const* rollUpRule);

private:
    AxRwString myParameterName{{"parameter-name", "", "Keyword of the parameter in the system's descriptor."},
                               registry()};
    AxRwString myVariableType;
    AxRwString myDisplayLabel{{"display-label", "", "What an editor calls the parameter."}, registry()};
    AxRwString myDisplayUnits{{"display-units", "", "Unit in which an editor shows the value."}, registry()};
    AxRwString mySourceUnits{{"source-units", "", "Unit in which the value is stored."}, registry()};
    AxRwString myListItems{{"list-items", "", "Pick list: label=value;label=value;..."}, registry()};
    AxRwInt myListDisplay{{"list-display", "", "How an editor presents the pick list; 0: drop-down list."}, registry()};
    AxRwBoolean myAllowEdit{{"allow-edit", "", "Whether an editor may change the value."}, true, registry()};
    AxRwString myRollUpRule;
};
