#pragma once

#include "AxReaderWriter.h"

/// A wire from one component's port to another's: `(connect radar:detected gun:target-list)`. An endpoint that begins
/// with "system:" is an input or output on the boundary of the enclosing system.
class ZEDOBJPARAM_API AxConnectionDescriptor : public AxReaderWriter
{
public:
    /// For containers alone; it warns.
    AxConnectionDescriptor();
    AxConnectionDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxConnectionDescriptor(AxString const& name, AxReaderWriterRegistry* registry);
    AxConnectionDescriptor(char const* name, AxReaderWriterRegistry* registry);
    AxConnectionDescriptor(AxSymbolString name, AxString const& source, AxString const& destination,
                           AxReaderWriterRegistry* registry);
    AxConnectionDescriptor(AxString const& name, AxString const& source, AxString const& destination,
                           AxReaderWriterRegistry* registry);
    AxConnectionDescriptor(char const* name, AxString const& source, AxString const& destination,
                           AxReaderWriterRegistry* registry);
    AxConnectionDescriptor(AxConnectionDescriptor const& other, AxReaderWriterRegistry* registry);
    AxConnectionDescriptor(AxConnectionDescriptor const& other);
    ~AxConnectionDescriptor() override;

    /// Takes the name too.
    AxConnectionDescriptor& operator=(AxConnectionDescriptor const& other);
    bool equals(AxConnectionDescriptor const& other) const;
    /// Same source and destination; names take no part.
    bool operator==(AxConnectionDescriptor const& other) const { return equals(other); }

    virtual AxString const& source() const;
    virtual AxString const& destination() const;
    virtual void setSource(AxString const& source);
    virtual void setDestination(AxString const& destination);
    /// Empties both endpoints.
    virtual void init();
    virtual AxConnectionDescriptor* clone(AxReaderWriterRegistry* registry) const;

    using AxReaderWriter::getData;
    using AxReaderWriter::getSelf;
    using AxReaderWriter::putData;
    using AxReaderWriter::putSelf;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putSelf(std::string& out, int indent, bool all, AxFilename const& file) override;
    void putData(std::string& out, int indent) override;
    void reset() override;
    char const* readerWriterType() const override;
    char const* xmlType() const override { return "connection"; }

    /// The name of connections that are made, and the head of those that have none.
    static AxSymbolString elementWord();

private:
    AxString mySource;
    AxString myDestination;
};
