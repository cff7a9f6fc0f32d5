#pragma once

#include "AxReaderWriter.h"
#include "AxStringKeyFactoryWithParam.h"
#include "AxVector64.h"

/// A region in body axes (metres; x forward, y right, z down). Written under the name of its class.
class ZEDOBJPARAM_API AxRwSpatialFilter : public AxReaderWriter
{
public:
    using Factory = AxStringKeyFactoryWithParam<AxRwSpatialFilter, AxString const&>;

    AxRwSpatialFilter(AxSymbolString name, AxReaderWriterRegistry* registry);
    ~AxRwSpatialFilter() override;

    /// Whether a place relative to the body lies in the region.
    virtual bool accepts(AxVector64 const& bodyPosition) const = 0;
    /// Metres; 0.0 stands for unlimited.
    virtual double maxRange() const = 0;
    /// The head word of the filter's text.
    virtual char const* filterType() const = 0;
    virtual AxRwSpatialFilter* clone() const = 0;

    using AxReaderWriter::putSelf;
    void putSelf(std::string& out, int indent, bool all, AxFilename const& file) override;

    /// Never null; knows the library's filters from the start.
    static Factory* factory();
};
