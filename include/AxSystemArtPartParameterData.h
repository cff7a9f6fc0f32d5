#pragma once

#include "AxSystemParameterData.h"

/// Declares the choice of an articulated part, held as the part's number. The category takes no part in equality.
class ZEDOBJPARAM_API AxSystemArtPartParameterData : public AxSystemParameterData
{
public:
    AxSystemArtPartParameterData(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSystemArtPartParameterData(AxString const& name, AxReaderWriterRegistry* registry);
    AxSystemArtPartParameterData(char const* name, AxReaderWriterRegistry* registry);
    AxSystemArtPartParameterData(AxSymbolString name, AxSystemArtPartParameterData const& other,
                                 AxReaderWriterRegistry* registry);
    AxSystemArtPartParameterData(AxSystemArtPartParameterData const& other);
    ~AxSystemArtPartParameterData() override;

    AxSystemArtPartParameterData& operator=(AxSystemArtPartParameterData const& other);

    AxString const& artPartCategory() const { return myArtPartCategory.value(); }
    void setArtPartCategory(AxString const& category);

    bool operator==(AxSystemParameterData const& other) const override;
    bool operator==(AxSystemArtPartParameterData const& other) const;

    AxString parameterType() const override;
    AxSystemParameterData* clone() const override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;
    static AxSystemParameterData* create(AxString const& name);

private:
    AxRwString myArtPartCategory{{"art-part-category", "", "Which articulated parts may be chosen."}, registry()};
};
