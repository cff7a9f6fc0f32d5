#include "AxConnectionDescriptor.h"

#include "AxFaultAt.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxlObj.h"
#include "AxlPrint.h"
#include "axTryNew.h"

static AxTypeEntry<AxConnectionDescriptor> const connectionDescriptorEntry;

AxConnectionDescriptor::AxConnectionDescriptor() : AxConnectionDescriptor(AxSymbolString(), nullptr)
{
    AxWarn("AxConnectionDescriptor default constructor should not be used\n");
}

AxConnectionDescriptor::AxConnectionDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxConnectionDescriptor::AxConnectionDescriptor(AxString const& name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxConnectionDescriptor::AxConnectionDescriptor(char const* name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxConnectionDescriptor::AxConnectionDescriptor(AxSymbolString name, AxString const& source, AxString const& destination,
                                               AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry), mySource(source), myDestination(destination)
{
}

AxConnectionDescriptor::AxConnectionDescriptor(AxString const& name, AxString const& source,
                                               AxString const& destination, AxReaderWriterRegistry* registry)
    : AxConnectionDescriptor(AxSymbolString(name), source, destination, registry)
{
}

AxConnectionDescriptor::AxConnectionDescriptor(char const* name, AxString const& source, AxString const& destination,
                                               AxReaderWriterRegistry* registry)
    : AxConnectionDescriptor(AxSymbolString(name), source, destination, registry)
{
}

AxConnectionDescriptor::AxConnectionDescriptor(AxConnectionDescriptor const& other, AxReaderWriterRegistry* registry)
    : AxReaderWriter(other.AxReaderWriter::name(), other, registry),
      mySource(other.mySource),
      myDestination(other.myDestination)
{
}

AxConnectionDescriptor::AxConnectionDescriptor(AxConnectionDescriptor const& other)
    : AxConnectionDescriptor(other, nullptr)
{
}

AxConnectionDescriptor::~AxConnectionDescriptor() = default;

AxConnectionDescriptor& AxConnectionDescriptor::operator=(AxConnectionDescriptor const& other)
{
    if (this != &other)
    {
        if (AxReaderWriter::name() != other.AxReaderWriter::name())
        {
            setName(other.AxReaderWriter::name().string());
        }
        mySource = other.mySource;
        myDestination = other.myDestination;
        carryState(other);
    }
    return *this;
}

bool AxConnectionDescriptor::equals(AxConnectionDescriptor const& other) const
{
    return mySource == other.mySource && myDestination == other.myDestination;
}

AxString const& AxConnectionDescriptor::source() const
{
    return mySource;
}

AxString const& AxConnectionDescriptor::destination() const
{
    return myDestination;
}

void AxConnectionDescriptor::setSource(AxString const& source)
{
    mySource = source;
    setFlag(Specified, true);
    valueAssigned();
}

void AxConnectionDescriptor::setDestination(AxString const& destination)
{
    myDestination = destination;
    setFlag(Specified, true);
    valueAssigned();
}

void AxConnectionDescriptor::init()
{
    mySource = AxString();
    myDestination = AxString();
    valueAssigned();
}

AxConnectionDescriptor* AxConnectionDescriptor::clone(AxReaderWriterRegistry* registry) const
{
    return axTryNew<AxConnectionDescriptor>(*this, registry);
}

void AxConnectionDescriptor::getSelf(AxlObjPtr const& expression, AxFilenameList const& files,
                                     AxBindingsList const& bindings)
{
    if (!expression->isPair())
    {
        AxReaderWriter::getSelf(expression, files, bindings);
        return;
    }
    // The head is not taken as a name, and an endpoint is text even where it looks like a reference.
    preGetSelf();
    setInvalid(false);
    dropKeptItems();
    AxlObjPtr const rest = getData(AxlObjPtr(expression->cdr()), files, bindings);
    if (mySource.isNull() || myDestination.isNull())
    {
        AxDiagnostics::report(axFaultAt(AxSeverity::Warning, "missing-endpoint", expression.get(),
                                        "a connection expects a source and a destination"));
    }
    readItems(rest.get(), files, bindings);
    setFlag(Specified, true);
    valueAssigned();
    postGetSelf();
}

AxlObjPtr AxConnectionDescriptor::getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&)
{
    AxlObj const* const source = items.get();
    AxlObj const* const destination = source->cdr();
    mySource = source->car()->pname();
    myDestination = destination->car()->pname();
    return AxlObjPtr(destination->cdr());
}

void AxConnectionDescriptor::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    AxSymbolString const own = AxReaderWriter::name();
    writeAs(own.isNull() ? elementWord() : own, out, indent, all, file);
}

void AxConnectionDescriptor::putData(std::string& out, int)
{
    axAppendName(out, AxSymbolString(mySource));
    out += ' ';
    axAppendName(out, AxSymbolString(myDestination));
}

void AxConnectionDescriptor::reset()
{
    init();
    AxReaderWriter::reset();
}

char const* AxConnectionDescriptor::readerWriterType() const
{
    return "AxConnectionDescriptor";
}

AxSymbolString AxConnectionDescriptor::elementWord()
{
    static AxSymbolString const word("connect");
    return word;
}
