#pragma once

#include "AxObjectRecordOf.h"
#include "AxRwMimeCharacterInfo.h"

/// An object that moves over the terrain. Base of the land, air and sea kinds, of life forms and of units.
class ZEDOBJPARAM_API AxMovingObjectParameters
    : public AxObjectRecordOf<AxMovingObjectParameters, AxZedObjectParameters, "moving-object-param">
{
public:
    AxMovingObjectParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                             AxEnvValuePtr const* node = nullptr);
    ~AxMovingObjectParameters() override;

    virtual bool canPivot() const { return myCanPivot; }
    virtual void setCanPivot(bool can) { assignSpecified(myCanPivot, can); }
    virtual double maxPivotSpeed() const { return myMaxPivotSpeed; }
    virtual void setMaxPivotSpeed(double speed) { assignSpecified(myMaxPivotSpeed, speed); }
    /// The three points on which the object rests.
    virtual AxVector64 const& leftSupport() const { return myLeftSupport.value(); }
    virtual void setLeftSupport(AxVector64 const& point) { assignSpecified(myLeftSupport, point); }
    virtual AxVector64 const& rightSupport() const { return myRightSupport.value(); }
    virtual void setRightSupport(AxVector64 const& point) { assignSpecified(myRightSupport, point); }
    virtual AxVector64 const& otherSupport() const { return myOtherSupport.value(); }
    virtual void setOtherSupport(AxVector64 const& point) { assignSpecified(myOtherSupport, point); }
    virtual double maxSpeed() const { return myMaxSpeed; }
    virtual void setMaxSpeed(double speed) { assignSpecified(myMaxSpeed, speed); }
    virtual double maxReverseSpeed() const { return myMaxReverseSpeed; }
    virtual void setMaxReverseSpeed(double speed) { assignSpecified(myMaxReverseSpeed, speed); }
    virtual double turningRadius() const { return myTurningRadius; }
    virtual void setTurningRadius(double radius) { assignSpecified(myTurningRadius, radius); }
    virtual double maxSlope() const { return myMaxSlope; }
    virtual void setMaxSlope(double slope) { assignSpecified(myMaxSlope, slope); }
    virtual double orderedSpeed() const { return myOrderedSpeed; }
    virtual void setOrderedSpeed(double speed) { assignSpecified(myOrderedSpeed, speed); }
    virtual double maxAcceleration() const { return myMaxAcceleration; }
    virtual void setMaxAcceleration(double acceleration) { assignSpecified(myMaxAcceleration, acceleration); }
    virtual double maxStoppingDeceleration() const { return myMaxDeceleration; }
    virtual void setMaxStoppingDeceleration(double deceleration) { assignSpecified(myMaxDeceleration, deceleration); }
    virtual double maxLateralAcceleration() const { return myMaxLateralAcceleration; }
    virtual void setMaxLateralAcceleration(double acceleration)
    {
        assignSpecified(myMaxLateralAcceleration, acceleration);
    }
    virtual double fuelEfficiency() const { return myFuelEfficiency; }
    virtual void setFuelEfficiency(double efficiency) { assignSpecified(myFuelEfficiency, efficiency); }
    virtual AxFilename const& objectGeometryFile() const { return myObjectGeometryFile.filename(); }
    virtual void setObjectGeometryFile(AxFilename const& file) { assignSpecified(myObjectGeometryFile, file); }
    virtual bool useObjectGeometry() const { return myUseObjectGeometry; }
    virtual void setUseObjectGeometry(bool use) { assignSpecified(myUseObjectGeometry, use); }
    virtual AxRwMimeCharacterInfo const& mimeCharacterInfo() const { return myMimeCharacter; }
    virtual void setMimeCharacterInfo(AxRwMimeCharacterInfo const& info) { assignSpecified(myMimeCharacter, info); }
    virtual double maxDisaggregationDistance() const { return myDisaggregationRange; }
    virtual void setMaxDisaggregationDistance(double metres) { assignSpecified(myDisaggregationRange, metres); }
    virtual bool usingRailMovement() const { return myUsingRailMovement; }
    virtual void setUsingRailMovement(bool uses) { assignSpecified(myUsingRailMovement, uses); }
    virtual int illuminationRecalcTime() const { return myIlluminationRecalcTime; }
    virtual void setIlluminationRecalcTime(int seconds) { assignSpecified(myIlluminationRecalcTime, seconds); }
    virtual int weatherAreaRecalcTime() const { return myWeatherAreaRecalcTime; }
    virtual void setWeatherAreaRecalcTime(int seconds) { assignSpecified(myWeatherAreaRecalcTime, seconds); }

protected:
    AxMovingObjectParameters(AxMovingObjectParameters const& other, AxSymbolString name, AxReaderWriterRegistry* parent)
        : AxMovingObjectParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

    // Derived kinds change the defaults of these by `assignDefault`.
    AxRwBoolean myCanPivot{{"can-pivot", "", "Whether the object turns on the spot."}, registry()};
    AxRwReal myMaxPivotSpeed{{"max-pivot-speed", "rad/s", "Largest rate of turning on the spot.", {0.0, axUnbounded}},
                             registry()};
    AxRwOffsetVector myLeftSupport{
        {"left-support", "m", "Left point on which the object rests."}, {0.5, -1.0, 0.0}, registry()};
    AxRwOffsetVector myRightSupport{
        {"right-support", "m", "Right point on which the object rests."}, {0.5, 1.0, 0.0}, registry()};
    AxRwOffsetVector myOtherSupport{
        {"other-support", "m", "Third point on which the object rests."}, {-0.2, 0.0, 0.0}, registry()};
    AxRwReal myMaxSpeed{{"max-speed", "m/s", "Largest speed forward.", {0.0, axUnbounded}}, 15.0, registry()};
    AxRwReal myMaxReverseSpeed{
        {"max-reverse-speed", "m/s", "Largest speed backward.", {0.0, axUnbounded}}, 10.0, registry()};
    AxRwReal myTurningRadius{
        {"turning-radius", "m", "Smallest radius of a turn.", {0.0, axUnbounded}}, 5.0, registry()};
    AxRwReal myMaxSlope{
        {"max-slope", "rise over run", "Steepest slope that is climbed; 1.0: 45 degrees.", {0.0, axUnbounded}},
        1.0,
        registry()};
    AxRwReal myOrderedSpeed{
        {"ordered-speed", "m/s", "Speed of movement unless one is ordered.", {0.0, axUnbounded}}, 10.0, registry()};
    AxRwReal myMaxAcceleration{
        {"max-acceleration", "m/s2", "Largest acceleration forward.", {0.0, axUnbounded}}, 4.5, registry()};
    AxRwReal myMaxDeceleration{
        {"max-deceleration", "m/s2", "Largest deceleration when stopping.", {0.0, axUnbounded}}, 4.5, registry()};
    AxRwReal myMaxLateralAcceleration{
        {"max-lateral-acceleration", "m/s2", "Largest acceleration across in turns.", {0.0, axUnbounded}},
        9.8,
        registry()};
    AxRwReal myFuelEfficiency{
        {"fuel-efficiency", "m/unit", "Way per unit of the resource \"fuel\".", {0.0, axUnbounded}},
        1000.0,
        registry()};
    AxReaderWriterFile myObjectGeometryFile{{"object-geometry-file", "", "File of the object's shape."}, registry()};
    AxRwBoolean myUseObjectGeometry{{"use-object-geometry", "", "Whether that shape is used instead of the box."},
                                    registry()};
    AxRwMimeCharacterInfo myMimeCharacter{{"mime-character", "", "Animated human that represents the object."},
                                          registry()};
    AxRwReal myDisaggregationRange{
        {"disaggregation-range", "m", "Distance of others at which a unit splits up.", {0.0, axUnbounded}},
        1000.0,
        registry()};
    AxRwBoolean myUsingRailMovement{{"using-rail-movement", "", "Whether the object moves on rails."}, registry()};
    AxRwInt myIlluminationRecalcTime{
        {"illumination-recalc-time", "s", "Time between two looks at the light.", {0.0, axUnbounded}}, 300, registry()};
    AxRwInt myWeatherAreaRecalcTime{
        {"weather-area-recalc-time", "s", "Time between two looks at the weather.", {0.0, axUnbounded}},
        10,
        registry()};
};
