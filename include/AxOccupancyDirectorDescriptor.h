#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"

/// The carrier's side of embarkation: gives riders their slots and tells where they get on and off.
class ZEDOBJPARAM_API AxOccupancyDirectorDescriptor
    : public AxDescriptorOf<AxOccupancyDirectorDescriptor, AxComponentDescriptor, "occupancy-director-descriptor">
{
public:
    AxOccupancyDirectorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxOccupancyDirectorDescriptor(AxOccupancyDirectorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxOccupancyDirectorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxOccupancyDirectorDescriptor() override;

    virtual bool publishLoadPoints() const { return myPublishLoadPoints; }
    virtual void setPublishLoadPoints(bool publish) { assignSpecified(myPublishLoadPoints, publish); }
    virtual bool flipDisembarkBodyX() const { return myFlipDisembarkBodyX; }
    virtual void setFlipDisembarkBodyX(bool flip) { assignSpecified(myFlipDisembarkBodyX, flip); }
    virtual bool flipDisembarkBodyY() const { return myFlipDisembarkBodyY; }
    virtual void setFlipDisembarkBodyY(bool flip) { assignSpecified(myFlipDisembarkBodyY, flip); }

private:
    AxRwBoolean myPublishLoadPoints{
        {"publish-load-points", "", "Whether the places where riders get on are told to others."}, registry()};
    AxRwBoolean myFlipDisembarkBodyX{
        {"flip-disembark-body-x", "", "Whether riders get off at the opposite end along the body's x axis."},
        registry()};
    AxRwBoolean myFlipDisembarkBodyY{
        {"flip-disembark-body-y", "", "Whether riders get off at the opposite side along the body's y axis."},
        registry()};
};
