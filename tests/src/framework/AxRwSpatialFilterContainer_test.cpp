#include "AxRwSpatialFilterContainer.h"

#include "AxRwSectorFilter.h"
#include "AxRwSphereFilter.h"
#include "DescriptorFixture.h"

using AxRwSpatialFilterContainerTest = DescriptorFixture;

TEST_F(AxRwSpatialFilterContainerTest, WritesEachFilterUnderItsClass)
{
    char const* text = "(sensor-geometry\n"
                       "  (sector-filter\n"
                       "    (max-range 8000.0)\n"
                       "    (azimuth-width 2.0944))\n"
                       "  (sphere-filter\n"
                       "    (max-range 300.0)))\n";
    AxRwSpatialFilterContainer container("sensor-geometry", nullptr);
    readFrom(container, text);
    EXPECT_EQ(container.writtenText(), text);
    EXPECT_EQ(container.maxRange(), 8000.0);
    AxRwSpatialFilterContainer const copy(container);
    EXPECT_EQ(copy, container);
    EXPECT_NE(copy.firstElement(), container.firstElement());
    AxRwSphereFilter unlimited("sphere-filter", nullptr);
    EXPECT_NE(container.add(&unlimited), &unlimited);
    EXPECT_EQ(container.maxRange(), 0.0);
    EXPECT_FALSE(copy == container);
}

TEST_F(AxRwSpatialFilterContainerTest, NamesAnUnknownFilterOnceAndKeepsIt)
{
    AxRwSpatialFilterContainer container("sensor-geometry", nullptr);
    readFrom(container, "(sensor-geometry (cone-filter (angle 1.0)) (sphere-filter (max-range 300.0)))");
    EXPECT_EQ(warnings.text(), "AxRwMultiTypeListTemplate: Cannot create content data of type \"cone-filter\"\n");
    EXPECT_EQ(container.count(), 1);
    EXPECT_NE(container.writtenText().find("(cone-filter (angle 1.0))"), std::string::npos);
}

TEST_F(AxRwSpatialFilterContainerTest, ComparesClassesToo)
{
    AxRwSpatialFilterContainer spheres;
    AxRwSpatialFilterContainer sectors;
    spheres.addToEnd(new AxRwSphereFilter("x", nullptr));
    sectors.addToEnd(new AxRwSectorFilter("x", nullptr));
    EXPECT_FALSE(spheres == sectors);
    sectors = spheres;
    EXPECT_TRUE(spheres == sectors);
}

TEST_F(AxRwSpatialFilterContainerTest, AcceptsPlacesByDistanceAndDirection)
{
    constexpr char const* right = "(g (sector-filter (min-range 1.0) (max-range 10.0) (azimuth 1.5707963267948966) "
                                  "(azimuth-width 1.5707963267948966) (elevation-width 1.0471975511965976)))";
    constexpr char const* rear = "(g (sector-filter (azimuth 3.141592653589793) (azimuth-width 1.0)))";
    struct
    {
        char const* geometry;
        AxVector64 place;
        bool inside;
    } const cases[] = {
        {"(g)", {1e9, 0.0, 0.0}, true},
        {"(g (sphere-filter))", {1e9, 0.0, 0.0}, true},
        {"(g (sphere-filter (max-range 5.0)))", {3.0, 0.0, 4.0}, true},
        {"(g (sphere-filter (max-range 5.0)))", {3.0, 0.1, 4.0}, false},
        {"(g (sphere-filter (min-range 5.0)))", {3.0, 0.0, 3.9}, false},
        {"(g (sphere-filter (max-range 1.0)) (sphere-filter (min-range 9.0)))", {0.0, 9.0, 0.0}, true},
        {right, {0.0, 5.0, 0.0}, true},
        {right, {5.0, 5.0, 0.0}, true},
        {right, {-5.0, 5.0, 0.0}, true},
        {right, {5.01, 5.0, 0.0}, false},
        {right, {0.0, -5.0, 0.0}, false},
        {right, {0.0, 5.0, -2.8}, true},
        {right, {0.0, 5.0, -2.9}, false},
        {right, {0.0, 5.0, 2.9}, false},
        {right, {0.0, 0.5, 0.0}, false},
        {right, {0.0, 11.0, 0.0}, false},
        {rear, {-5.0, 1.0, 0.0}, true},
        {rear, {-5.0, -1.0, 0.0}, true},
        {rear, {5.0, 1.0, 0.0}, false},
        {rear, {0.0, 0.0, 0.0}, true},
    };
    for (auto const& [geometry, place, inside] : cases)
    {
        AxRwSpatialFilterContainer container("g", nullptr);
        readFrom(container, geometry);
        EXPECT_EQ(container.accepts(place), inside)
            << geometry << ' ' << place.x() << ' ' << place.y() << ' ' << place.z();
    }
}
