#pragma once

#include "Ax3dBoundingVolume.h"
#include "AxRecordOf.h"
#include "AxRwVector.h"

/// A box along the body axes (metres; x forward, y right, z down). It is specified when one of its corners is, and is
/// not written otherwise.
class ZEDOBJPARAM_API AxRwBoundingVolume : public AxRecordOf<AxRwBoundingVolume, "AxRwBoundingVolume">
{
public:
    using AxRecordOf::AxRecordOf;
    AxRwBoundingVolume(AxRwBoundingVolume const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxRwBoundingVolume() override;
    AxRwBoundingVolume& operator=(AxRwBoundingVolume const& other);
    AxRwBoundingVolume& operator=(Ax3dBoundingVolume const& volume);

    /// The corners as a box, whichever was read as the lower one. Valid until the next call.
    Ax3dBoundingVolume const& volume() const;
    void setVolume(Ax3dBoundingVolume const& volume);
    AxRwVector const& min() const { return myMin; }
    AxRwVector const& max() const { return myMax; }

    bool valueSpecified() const override;
    using AxReaderWriter::writeSelf;
    void writeSelf(std::string& out, int indent, bool all, AxFilename const& file) override;

private:
    AxRwVector myMin{{"min", "m", "Corner at the rear, left and top."}, registry()};
    AxRwVector myMax{{"max", "m", "Corner at the front, right and bottom."}, registry()};
    mutable Ax3dBoundingVolume myVolume;
};
