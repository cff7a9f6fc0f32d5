#pragma once

#include "AxReaderWriter.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// How the messages of a radio get through. Written like a component descriptor, with the type item
/// `(comm-model-descriptor-type "...")` first.
class ZEDOBJPARAM_API AxCommModelDescriptor : public AxReaderWriter
{
public:
    using CreatorFcn = AxCommModelDescriptor* (*)();

    AxCommModelDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxCommModelDescriptor(AxCommModelDescriptor const& other, AxReaderWriterRegistry* registry);
    AxCommModelDescriptor(AxCommModelDescriptor const&) = delete;
    ~AxCommModelDescriptor() override;
    AxCommModelDescriptor& operator=(AxCommModelDescriptor const& other);
    bool operator==(AxCommModelDescriptor const& other) const { return AxReaderWriter::operator==(other); }

    virtual AxString type() const;
    virtual AxCommModelDescriptor* clone(AxReaderWriterRegistry* registry) const;
    virtual double maxRange() const;
    virtual void setMaxRange(double range);
    virtual bool lineOfSightRequired() const;
    virtual void setLineOfSightRequired(bool required);
    virtual double transmissionDelay() const;
    virtual void setTransmissionDelay(double delay);
    virtual double successProbability() const;
    virtual void setSuccessProbability(double probability);

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    void putData(std::string& out, int indent) override;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;

    static AxCommModelDescriptor* creator();
    /// Adds or replaces the creator of a type; this class is known from the start.
    static void addCreatorFcn(AxString const& type, CreatorFcn creator);
    /// Makes and reads what `(name (comm-model-descriptor-type "...") item...)` tells; null, after one warning, when
    /// the type is unknown. The caller owns the result.
    static AxCommModelDescriptor* createCommModelDescriptor(AxlObjPtr const& expression, AxFilenameList const& files,
                                                            AxBindingsList const& bindings);

private:
    AxRwReal myMaxRange{{"max-range", "m", "Farthest a message gets; 0: any distance.", {0.0, axUnbounded}},
                        registry()};
    AxRwBoolean myLineOfSightRequired{{"line-of-sight-required", "", "Whether terrain in between stops a message."},
                                      registry()};
    AxRwReal myTransmissionDelay{{"transmission-delay", "s", "Time a message takes.", {0.0, axUnbounded}}, registry()};
    AxRwReal mySuccessProbability{
        {"success-probability", "", "Probability that a message in range gets through.", {0.0, 1.0}}, 1.0, registry()};
};
