#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwUnsigned.h"

/// Runs the identification transponder (IFF) of the object: what it can answer, how it is set at the start, and what
/// is broken. Codes and enumerations are those of IEEE 1278.1.
class ZEDOBJPARAM_API AxIffControllerDescriptor
    : public AxDescriptorOf<AxIffControllerDescriptor, AxComponentDescriptor, "iff-controller-descriptor">
{
public:
    AxIffControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxIffControllerDescriptor(AxIffControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxIffControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxIffControllerDescriptor() override;

    virtual int systemNameEnum() const { return mySystemNameEnum; }
    virtual void setSystemNameEnum(int name) { assignSpecified(mySystemNameEnum, name); }
    virtual bool mode1Capable() const { return myMode1Capable; }
    virtual void setMode1Capable(bool capable) { assignSpecified(myMode1Capable, capable); }
    virtual bool mode2Capable() const { return myMode2Capable; }
    virtual void setMode2Capable(bool capable) { assignSpecified(myMode2Capable, capable); }
    virtual bool mode3Capable() const { return myMode3Capable; }
    virtual void setMode3Capable(bool capable) { assignSpecified(myMode3Capable, capable); }
    virtual bool mode4Capable() const { return myMode4Capable; }
    virtual void setMode4Capable(bool capable) { assignSpecified(myMode4Capable, capable); }
    virtual bool systemOn() const { return mySystemOn; }
    virtual void setSystemOn(bool on) { assignSpecified(mySystemOn, on); }
    virtual bool systemOperational() const { return mySystemOperational; }
    virtual void setSystemOperational(bool operational) { assignSpecified(mySystemOperational, operational); }
    virtual bool mode1On() const { return myMode1On; }
    virtual void setMode1On(bool on) { assignSpecified(myMode1On, on); }
    virtual bool mode1Damage() const { return myMode1Damage; }
    virtual void setMode1Damage(bool damaged) { assignSpecified(myMode1Damage, damaged); }
    virtual bool mode1Malfunction() const { return myMode1Malfunction; }
    virtual void setMode1Malfunction(bool malfunctions) { assignSpecified(myMode1Malfunction, malfunctions); }
    virtual int mode1Code() const { return myMode1Code; }
    virtual void setMode1Code(int code) { assignSpecified(myMode1Code, code); }
    virtual bool mode2On() const { return myMode2On; }
    virtual void setMode2On(bool on) { assignSpecified(myMode2On, on); }
    virtual bool mode2Damage() const { return myMode2Damage; }
    virtual void setMode2Damage(bool damaged) { assignSpecified(myMode2Damage, damaged); }
    virtual bool mode2Malfunction() const { return myMode2Malfunction; }
    virtual void setMode2Malfunction(bool malfunctions) { assignSpecified(myMode2Malfunction, malfunctions); }
    virtual int mode2Code() const { return myMode2Code; }
    virtual void setMode2Code(int code) { assignSpecified(myMode2Code, code); }
    virtual bool mode3On() const { return myMode3On; }
    virtual void setMode3On(bool on) { assignSpecified(myMode3On, on); }
    virtual bool mode3Damage() const { return myMode3Damage; }
    virtual void setMode3Damage(bool damaged) { assignSpecified(myMode3Damage, damaged); }
    virtual bool mode3Malfunction() const { return myMode3Malfunction; }
    virtual void setMode3Malfunction(bool malfunctions) { assignSpecified(myMode3Malfunction, malfunctions); }
    virtual int mode3Code() const { return myMode3Code; }
    virtual void setMode3Code(int code) { assignSpecified(myMode3Code, code); }
    virtual bool mode4On() const { return myMode4On; }
    virtual void setMode4On(bool on) { assignSpecified(myMode4On, on); }
    virtual bool mode4Damage() const { return myMode4Damage; }
    virtual void setMode4Damage(bool damaged) { assignSpecified(myMode4Damage, damaged); }
    virtual bool mode4Malfunction() const { return myMode4Malfunction; }
    virtual void setMode4Malfunction(bool malfunctions) { assignSpecified(myMode4Malfunction, malfunctions); }
    virtual int mode4Code() const { return myMode4Code; }
    virtual void setMode4Code(int code) { assignSpecified(myMode4Code, code); }
    virtual bool altMode4Valid() const { return myAltMode4Valid; }
    virtual void setAltMode4Valid(bool valid) { assignSpecified(myAltMode4Valid, valid); }
    virtual bool modeSTcasI() const { return myModeSTcasI; }
    virtual void setModeSTcasI(bool present) { assignSpecified(myModeSTcasI, present); }
    virtual bool modeSOn() const { return myModeSOn; }
    virtual void setModeSOn(bool on) { assignSpecified(myModeSOn, on); }
    virtual bool modeSDamage() const { return myModeSDamage; }
    virtual void setModeSDamage(bool damaged) { assignSpecified(myModeSDamage, damaged); }
    virtual bool modeSMalfunction() const { return myModeSMalfunction; }
    virtual void setModeSMalfunction(bool malfunctions) { assignSpecified(myModeSMalfunction, malfunctions); }
    virtual bool emergency() const { return myEmergency; }
    virtual void setEmergency(bool emergency) { assignSpecified(myEmergency, emergency); }
    virtual bool flash() const { return myFlash; }
    virtual void setFlash(bool flash) { assignSpecified(myFlash, flash); }
    virtual bool sti() const { return mySti; }
    virtual void setSti(bool sti) { assignSpecified(mySti, sti); }
    virtual bool unmannedAircraft() const { return myUnmannedAircraft; }
    virtual void setUnmannedAircraft(bool unmanned) { assignSpecified(myUnmannedAircraft, unmanned); }
    virtual int pin() const { return myPin; }
    virtual void setPin(int pin) { assignSpecified(myPin, pin); }
    virtual bool mode5LevelSelection() const { return myMode5LevelSelection; }
    virtual void setMode5LevelSelection(bool levelTwo) { assignSpecified(myMode5LevelSelection, levelTwo); }
    virtual unsigned messageFormatsPresent() const { return myMessageFormatsPresent; }
    virtual void setMessageFormatsPresent(unsigned formats) { assignSpecified(myMessageFormatsPresent, formats); }
    virtual unsigned nationalOrigin() const { return myNationalOrigin; }
    virtual void setNationalOrigin(unsigned origin) { assignSpecified(myNationalOrigin, origin); }
    virtual unsigned navigationSource() const { return myNavigationSource; }
    virtual void setNavigationSource(unsigned source) { assignSpecified(myNavigationSource, source); }
    virtual unsigned figureOfMerit() const { return myFigureOfMerit; }
    virtual void setFigureOfMerit(unsigned merit) { assignSpecified(myFigureOfMerit, merit); }

private:
    AxRwInt mySystemNameEnum{{"system-name-enum", "", "DIS name of the transponder; 0: not stated.", {0.0, 65535.0}},
                             registry()};
    AxRwBoolean myMode1Capable{{"mode-1-capable", "", "Whether the transponder has mode 1."}, true, registry()};
    AxRwBoolean myMode2Capable{{"mode-2-capable", "", "Whether the transponder has mode 2."}, true, registry()};
    AxRwBoolean myMode3Capable{{"mode-3-capable", "", "Whether the transponder has mode 3/A."}, true, registry()};
    AxRwBoolean myMode4Capable{{"mode-4-capable", "", "Whether the transponder has mode 4."}, true, registry()};
    AxRwBoolean mySystemOn{{"system-on", "", "Whether the transponder is switched on at the start."}, true, registry()};
    AxRwBoolean mySystemOperational{
        {"system-operational", "", "Whether the transponder as a whole is in working order."}, true, registry()};
    AxRwBoolean myMode1On{{"mode-1-on", "", "Whether mode 1 answers at the start."}, registry()};
    AxRwBoolean myMode1Damage{{"mode-1-damage", "", "Whether mode 1 is damaged."}, registry()};
    AxRwBoolean myMode1Malfunction{{"mode-1-malfunction", "", "Whether mode 1 malfunctions."}, registry()};
    AxRwInt myMode1Code{{"mode-1-code", "", "Mission code of mode 1, octal 00 to 73 as a number.", {0.0, 59.0}},
                        registry()};
    AxRwBoolean myMode2On{{"mode-2-on", "", "Whether mode 2 answers at the start."}, registry()};
    AxRwBoolean myMode2Damage{{"mode-2-damage", "", "Whether mode 2 is damaged."}, registry()};
    AxRwBoolean myMode2Malfunction{{"mode-2-malfunction", "", "Whether mode 2 malfunctions."}, registry()};
    AxRwInt myMode2Code{{"mode-2-code", "", "Unit code of mode 2, octal 0000 to 7777 as a number.", {0.0, 4095.0}},
                        registry()};
    AxRwBoolean myMode3On{{"mode-3-on", "", "Whether mode 3/A answers at the start."}, registry()};
    AxRwBoolean myMode3Damage{{"mode-3-damage", "", "Whether mode 3/A is damaged."}, registry()};
    AxRwBoolean myMode3Malfunction{{"mode-3-malfunction", "", "Whether mode 3/A malfunctions."}, registry()};
    AxRwInt myMode3Code{{"mode-3-code", "", "Squawk of mode 3/A, octal 0000 to 7777 as a number.", {0.0, 4095.0}},
                        registry()};
    AxRwBoolean myMode4On{{"mode-4-on", "", "Whether mode 4 answers at the start."}, registry()};
    AxRwBoolean myMode4Damage{{"mode-4-damage", "", "Whether mode 4 is damaged."}, registry()};
    AxRwBoolean myMode4Malfunction{{"mode-4-malfunction", "", "Whether mode 4 malfunctions."}, registry()};
    AxRwInt myMode4Code{{"mode-4-code", "", "Code of mode 4; 4095: alternate mode 4 is used instead.", {0.0, 4095.0}},
                        registry()};
    AxRwBoolean myAltMode4Valid{
        {"alt-mode-4-valid", "", "Whether alternate mode 4 answers as valid; counts with code 4095."}, registry()};
    AxRwBoolean myModeSTcasI{
        {"mode-s-tcas-i", "", "Whether the collision avoidance of mode S is TCAS I; otherwise TCAS II."}, registry()};
    AxRwBoolean myModeSOn{{"mode-s-on", "", "Whether mode S answers at the start."}, registry()};
    AxRwBoolean myModeSDamage{{"mode-s-damage", "", "Whether mode S is damaged."}, registry()};
    AxRwBoolean myModeSMalfunction{{"mode-s-malfunction", "", "Whether mode S malfunctions."}, registry()};
    AxRwBoolean myEmergency{{"emergency", "", "Whether the emergency modifier is sent."}, registry()};
    AxRwBoolean myFlash{{"flash", "", "Whether the identification flash (\"squawk ident\") is sent."}, registry()};
    AxRwBoolean mySti{{"sti", "", "Whether the STI modifier is sent."}, registry()};
    AxRwBoolean myUnmannedAircraft{
        {"unmanned-aircraft", "", "Whether answers mark the object as an unmanned aircraft."}, registry()};
    AxRwInt myPin{{"pin", "", "Personal identification number of mode 5.", {0.0, 16383.0}}, registry()};
    AxRwBoolean myMode5LevelSelection{
        {"mode-5-level-selection", "", "Whether mode 5 works at level 2; otherwise level 1."}, registry()};
    AxRwUnsigned myMessageFormatsPresent{
        {"message-formats-present", "", "Bit field of the mode 5 message formats that are answered.", axNotNegative},
        registry()};
    AxRwUnsigned myNationalOrigin{
        {"national-origin", "", "DIS national origin of mode 5; 0: not stated.", {0.0, 65535.0}}, registry()};
    AxRwUnsigned myNavigationSource{
        {"navigation-source", "", "DIS source of the position in mode 5; 0: not stated.", {0.0, 255.0}}, registry()};
    AxRwUnsigned myFigureOfMerit{{"figure-of-merit", "", "Accuracy of the position as mode 5 rates it.", {0.0, 31.0}},
                                 registry()};
};
