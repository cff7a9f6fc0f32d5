#include "AxRwSpatialFilter.h"

#include "AxRwSectorFilter.h"
#include "AxRwSphereFilter.h"

namespace
{
template <class Filter>
AxRwSpatialFilter* make(AxString const& name)
{
    return new Filter(name, nullptr);
}
} // namespace

AxRwSpatialFilter::AxRwSpatialFilter(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxRwSpatialFilter::~AxRwSpatialFilter() = default;

void AxRwSpatialFilter::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    writeAs(AxSymbolString(filterType()), out, indent, all, file);
}

AxRwSpatialFilter::Factory* AxRwSpatialFilter::factory()
{
    static Factory* const families = []
    {
        auto* made = new Factory;
        made->addCreator("sphere-filter", &make<AxRwSphereFilter>);
        made->addCreator("sector-filter", &make<AxRwSectorFilter>);
        return made;
    }();
    return families;
}
