#pragma once

/// How the space that an object takes up is described.
struct AxSimBoundingGeometry
{
    enum AxSimBoundingGeometryType : int
    {
        BoundingNone = 0,
        BoundingSphere = 1,
        BoundingBox = 2,
        BoundingCylinder = 3
    };
};
