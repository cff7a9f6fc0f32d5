#pragma once

#include "AxNLengthRealVector.h"
#include "AxReaderWriter.h"
#include "AxReaderWriterFile.h"
#include "AxRwAppearance.h"
#include "AxRwBoolean.h"
#include "AxRwBoundingVolume.h"
#include "AxRwEntityType.h"
#include "AxRwForces.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwObjectTypeList.h"
#include "AxRwOffsetVector.h"
#include "AxRwProperties.h"
#include "AxRwReal.h"
#include "AxRwRealAttributeList.h"
#include "AxRwString.h"
#include "AxRwStringAttributeList.h"
#include "AxRwStringList.h"
#include "AxRwTaitBryan.h"
#include "AxRwTemplatedListPtr.h"
#include "AxRwUUID.h"
#include "AxlFunctions.h"

/// A record with one member of each kind, and a text with a value for each.
namespace machine
{
class Part : public AxReaderWriter
{
public:
    Part(AxSymbolString name, AxReaderWriterRegistry* registry) : AxReaderWriter(name, registry) {}
    Part(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry) {}
    Part& operator=(Part const& other)
    {
        assign(other);
        return *this;
    }
    char const* readerWriterType() const override { return "Part"; }
    char const* xmlType() const override { return "part"; }

    AxRwReal power{{"power", "W", "Largest power."}, 1000.0, registry()};
    AxRwString label{{"label", "", "Name shown to people."}, registry()};
    AxRwString type{{"type", "", "A keyword that elements use for themselves."}, registry()};
    AxRwVector place{{"place", "m", "Where it is."}, registry()};
};

/// Owns its elements.
class ManyTypes : public AxRwList
{
public:
    using AxRwList::AxRwList;
    ~ManyTypes() override { AxRwList::removeAndDeleteAll(); }
};

/// One member of each kind, and a type item of its own.
class Machine : public AxReaderWriter
{
public:
    explicit Machine(AxSymbolString name = {}) : AxReaderWriter(name, nullptr) { registry()->setLocalData(); }
    char const* readerWriterType() const override { return "Machine"; }
    char const* xmlType() const override { return "machine"; }

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    void putData(std::string& out, int indent) override
    {
        if (!itsType.isNull())
        {
            out += '\n';
            putIndent(out, indent + 1);
            out += "(machine-type ";
            AxRwString::writeValue(out, itsType);
            out += ')';
        }
    }
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&) override
    {
        if (!(AxcCar(items)->car()->text() == "machine-type"))
        {
            return items;
        }
        itsType = AxcCadr(AxcCar(items))->pname();
        return AxcCdr(items);
    }

    AxString itsType;
    AxRwReal mass{{"mass", "kg", "Mass."}, 5000.0, registry()};
    AxRwInt seats{{"seats", "", "Places."}, registry()};
    AxRwBoolean armed{{"armed", "", "Weapon or not."}, registry()};
    AxRwString label{{"label", "", "Name shown to people."}, registry()};
    AxRwString title{{"name", "", "A keyword that elements use for themselves."}, registry()};
    AxRwAppearance paint{{"paint", "", "Appearance."}, registry()};
    AxRwUUID id{{"id", "", "Identifier."}, registry()};
    AxReaderWriterFile file{{"file", "", "A file."}, registry()};
    AxRwObjectType kind{{"kind", "", "What it is."}, registry()};
    AxRwEntityType entity{{"entity", "", "What it is."}, registry()};
    AxRwVector place{{"place", "m", "Where it is."}, registry()};
    AxRwOffsetVector offset{{"offset", "m", "Where it is held."}, registry()};
    AxRwTaitBryan angles{{"angles", "rad", "How it is turned."}, registry()};
    AxRwStringList tags{{"tags", "", "Words."}, registry()};
    AxNLengthRealVector curve{{"curve", "", "Numbers."}, registry()};
    AxRwForces forces{{"forces", "", "Forces."}, registry()};
    AxRwObjectTypeList targets{{"targets", "", "Types."}, registry()};
    AxRwStringAttributeList notes{{"notes", "", "Named words."}, registry()};
    AxRwRealAttributeList grip{{"grip", "", "Named numbers."}, registry()};
    AxRwBoundingVolume box{{"box", "m", "Its hull."}, registry()};
    Part engine{{"engine", "", "Its engine."}, registry()};
    AxRwTemplatedListPtr<Part, 1> spares{{"spares", "", "Parts carried along."}, registry()};
    AxRwProperties properties{{"properties", "", "Free values."}, registry()};
    ManyTypes many{{"many", "", "Values of many types."}, registry()};
};

inline constexpr char const* theWholeText =
    "(m1 (machine-type \"x\") (mass 57000.5) (seats 4) (armed true) (label \"a \\\"b\\\" <&> \\\\ $$(c)\") (name "
    "\"own\")"
    " (paint 4294967295) (id \"01234567-89ab-cdef-0123-456789abcdef\") (file \"dir\\a.ope\") (kind 1 1 1 225 1 1 3 0)"
    " (entity 1 1 225 -1 -1 -1 -1) (place 1 -2.5 1e+20) (offset 0 0 1) (angles 0.5 0 0)"
    " (tags \"Tank\" \"Main battle\" \"5\" \"$x\" \"\") (curve 1 2.5 inf) (forces 1 3)"
    " (targets (1 1 1 225 -1 -1 -1 -1) (3 1 1 222 0 0 0 0)) (notes (\"a b\" \"$5\") (\"c\" \"7\")) (grip (\"mud\" 0.4))"
    " (box (min 0 0 0) (max 1 2 3)) (engine (power 7) (label \"007\") (type \"V 12\"))"
    " (spares (left (place 1 2 3)) (\"a b\" (power inf)) (left))"
    " (properties (p AxRwReal 5) (q AxRwVector 1 2 3) (s AxRwString \"x y\") (t AxRwObjectType 1 2 3 4 5 6 7))"
    " (many (AxRwReal 5) (AxRwString \"five\") (AxRwVector 1 2 3)))";
} // namespace machine
