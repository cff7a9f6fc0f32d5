#include "AxReaderWriterFile.h"

#include "AxDiagnostic.h"
#include "AxReaderWriterFactory.h"
#include "AxReaderWriterFileContent.h"
#include "AxRwElement.h"
#include "AxRwString.h"
#include "AxlFunctions.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

static AxTypeEntry<AxReaderWriterFile> const readerWriterFileEntry;

AxReaderWriterFile::AxReaderWriterFile(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
    setFlag(Value, true);
    setFlag(Scalar, true);
}

AxReaderWriterFile::AxReaderWriterFile(AxString const& name, AxReaderWriterRegistry* registry)
    : AxReaderWriterFile(AxSymbolString(name), registry)
{
}

AxReaderWriterFile::AxReaderWriterFile(char const* name, AxReaderWriterRegistry* registry)
    : AxReaderWriterFile(AxSymbolString(name), registry)
{
}

AxReaderWriterFile::AxReaderWriterFile(AxKeyword const& keyword, AxReaderWriterRegistry* registry)
    : AxReaderWriter(keyword, registry)
{
    setFlag(Value, true);
    setFlag(Scalar, true);
}

AxReaderWriterFile::AxReaderWriterFile(AxSymbolString name, AxReaderWriterFile const& other,
                                       AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, other, registry), myFilename(other.myFilename)
{
    setFlag(Value, true);
    setFlag(Scalar, true);
}

AxReaderWriterFile::AxReaderWriterFile(AxReaderWriterFile const& other)
    : AxReaderWriterFile(other.AxReaderWriter::name(), other, nullptr)
{
}

AxReaderWriterFile::~AxReaderWriterFile() = default;

AxReaderWriterFile& AxReaderWriterFile::operator=(AxReaderWriterFile const& other)
{
    if (this == &other)
    {
        return *this;
    }
    myFilename = other.myFilename;
    if (myContent)
    {
        if (ownContent() && other.content())
        {
            factory()->copyReaderWriter(other.content(), ownContent());
        }
        myContent->found = other.foundFilename();
        myContent->takeMark();
        if (other.myContent)
        {
            myContent->carryChange(*other.myContent, other.contentChanged(), ownContent() == nullptr);
        }
        updateBacking();
    }
    carryState(other);
    return *this;
}

void AxReaderWriterFile::setFilename(AxFilename const& file)
{
    if (file.isNull() && content() && content()->flag(FileBacked))
    {
        content()->setFlag(Specified, true);
    }
    if (myContent && !(file == myFilename))
    {
        myContent->found = AxFilename();
    }
    myFilename = file;
    updateBacking();
    valueAssigned();
}

AxFilename const& AxReaderWriterFile::foundFilename() const
{
    return myContent ? myContent->found : AxFilename::nullFilename();
}

void AxReaderWriterFile::setContent(AxReaderWriter* content, bool enabled)
{
    if (!content)
    {
        myContent.reset();
        return;
    }
    myContent = std::make_unique<Content>();
    myContent->object = content;
    myContent->isEnabled = enabled;
    myContent->takeMark();
    updateBacking();
}

AxReaderWriter* AxReaderWriterFile::content() const
{
    return myContent ? myContent->object : nullptr;
}

bool AxReaderWriterFile::contentEnabled() const
{
    return myContent && myContent->isEnabled;
}

AxReaderWriterFile::ContentKind AxReaderWriterFile::contentKind() const
{
    AxReaderWriter const* const object = content();
    if (!object || !object->parentRegistry())
    {
        return ContentKind::Unnamed;
    }
    return object->AxReaderWriter::name() == AxReaderWriter::name() ? ContentKind::Entry : ContentKind::Member;
}

AxReaderWriter* AxReaderWriterFile::ownContent() const
{
    return contentKind() == ContentKind::Member ? nullptr : content();
}

void AxReaderWriterFile::updateBacking()
{
    if (AxReaderWriter* const object = content())
    {
        object->setFlag(FileBacked, contentEnabled() && !myFilename.isNull());
    }
}

bool AxReaderWriterFile::contentChanged() const
{
    return myContent && myContent->isChanged();
}

void AxReaderWriterFile::clearChanged()
{
    if (myContent)
    {
        myContent->takeMark();
    }
}

bool AxReaderWriterFile::equals(AxReaderWriterFile const& other) const
{
    if (!(myFilename == other.myFilename))
    {
        return false;
    }
    AxReaderWriter const* const mine = ownContent();
    AxReaderWriter const* const theirs = other.ownContent();
    if (!mine || !theirs || !(myFilename.isNull() || contentChanged() || other.contentChanged()))
    {
        return true;
    }
    return factory()->compareReaderWriter(mine, theirs);
}

void AxReaderWriterFile::getSelf(AxlObjPtr const& expression, AxFilenameList const& files,
                                 AxBindingsList const& bindings)
{
    AxReaderWriter::getSelf(expression, files, bindings);
    if (myContent)
    {
        // A name that is known only later is looked for where it would have been now.
        bool const isOpen = isVariableReference() && !variableIsBound();
        myContent->searchPaths = isOpen ? files : AxFilenameList();
    }
}

AxlObjPtr AxReaderWriterFile::getData(AxlObjPtr const& items, AxFilenameList const& files,
                                      AxBindingsList const& bindings)
{
    AxlObj const* const first = items->car();
    if (first->isPair() || first->nil())
    {
        if (readInline(items.get(), files, bindings))
        {
            return axcNil();
        }
        reject(items.get(), "a file name");
        return items;
    }
    bool const isKnown = takeName(first, bindings);
    if (isKnown && contentEnabled() && !myFilename.isNull())
    {
        AxFilenameList const directories = files.empty() ? myContent->searchPaths : files;
        loadFrom(first, directories, bindings);
    }
    return AxlObjPtr(items->cdr());
}

bool AxReaderWriterFile::takeName(AxlObj const* cell, AxBindingsList const& bindings)
{
    AxlObjPtr const item = AxcCons(AxlObjPtr(cell), axcNil());
    AxlObj const* rest = item.get();
    AxEmbeddedReferences references{bindings};
    AxString name;
    AxRwElement<AxString>::read(rest, name, references);
    bool const wasBacked = content() && content()->flag(FileBacked);
    if (name.isNull() && wasBacked)
    {
        content()->reset(); // what was read from the file that is no longer named
    }
    myFilename = AxFilename(name);
    if (!references.first.isNull())
    {
        keepReference(references.first, axWrittenItems(item.get()), references.complete);
    }
    if (myContent)
    {
        myContent->found = AxFilename();
        myContent->giveWay(*this, cell);
    }
    updateBacking();
    return references.complete;
}

bool AxReaderWriterFile::readInline(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxReaderWriter* const object = ownContent();
    if (!object)
    {
        return false;
    }
    myFilename = AxFilename();
    myContent->found = AxFilename();
    updateBacking();
    object->reset();
    object->readBody(items, files, bindings);
    object->setFlag(Specified, true);
    myContent->takeMark();
    return true;
}

void AxReaderWriterFile::putData(std::string& out, int)
{
    AxRwString::writeValue(out, myFilename.string());
}

bool AxReaderWriterFile::isInline(bool all) const
{
    AxReaderWriter const* const object = myFilename.isNull() && !isVariableReference() ? ownContent() : nullptr;
    return object && (all || object->isDue());
}

void AxReaderWriterFile::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    if (isInline(all))
    {
        prePutSelf();
        content()->writeAs(AxReaderWriter::name(), out, indent, all, file);
        postPutSelf();
        return;
    }
    if (!file.isNull() && !myFilename.isNull() && contentChanged())
    {
        AxDiagnostic unsaved;
        unsaved.severity = AxSeverity::Warning;
        unsaved.code = "content-not-saved";
        unsaved.file = file.native();
        unsaved.text = "what was changed in the content of \"" + AxReaderWriter::name().string().string() +
                       "\" is not in its file " + myFilename.native();
        AxDiagnostics::report(std::move(unsaved));
    }
    AxReaderWriter::putSelf(out, indent, all, file);
}

void AxReaderWriterFile::writeSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    if (isInline(all))
    {
        out += '\n';
        putIndent(out, indent);
        putSelf(out, indent, all, file);
        return;
    }
    AxReaderWriter::writeSelf(out, indent, all, file);
}

void AxReaderWriterFile::reset()
{
    AxReaderWriter::reset();
    myFilename = AxFilename();
    if (AxReaderWriter* const object = ownContent())
    {
        object->reset();
    }
    if (myContent)
    {
        myContent->found = AxFilename();
        myContent->takeMark();
        updateBacking();
    }
}

char const* AxReaderWriterFile::readerWriterType() const
{
    return "AxReaderWriterFile";
}

void AxReaderWriterFile::bindVariables(AxBindingsList const& bindings)
{
    AxReaderWriter::bindVariables(bindings);
    if (AxReaderWriter* const object = ownContent())
    {
        bool const wasChanged = contentChanged();
        object->bindVariables(bindings);
        wasChanged ? void() : clearChanged();
    }
}

void AxReaderWriterFile::bindLocalVariables(AxBindingsList const& bindings)
{
    AxReaderWriter::bindLocalVariables(bindings);
    if (AxReaderWriter* const object = ownContent())
    {
        bool const wasChanged = contentChanged();
        object->bindLocalVariables(bindings);
        wasChanged ? void() : clearChanged();
    }
}

void AxReaderWriterFile::clearAllVariableReferenceFlags()
{
    AxReaderWriter::clearAllVariableReferenceFlags();
    if (AxReaderWriter* const object = ownContent())
    {
        object->clearAllVariableReferenceFlags();
    }
}

bool AxReaderWriterFile::hasVariableReference() const
{
    return AxReaderWriter::hasVariableReference() || (ownContent() && ownContent()->hasVariableReference());
}

AxUnboundVariableList AxReaderWriterFile::unboundVariables() const
{
    AxUnboundVariableList unbound = AxReaderWriter::unboundVariables();
    if (AxReaderWriter const* const object = ownContent())
    {
        unbound.splice(unbound.end(), object->unboundVariables());
    }
    return unbound;
}

double AxReaderWriterFile::recordUpdateTime() const
{
    double const own = AxReaderWriter::recordUpdateTime();
    return ownContent() ? std::max(own, ownContent()->recordUpdateTime()) : own;
}

bool AxReaderWriterFile::hasChild(AxReaderWriter const* child) const
{
    AxReaderWriter const* const object = ownContent();
    return AxReaderWriter::hasChild(child) || (object && (object == child || object->hasChild(child)));
}

bool AxReaderWriterFile::save()
{
    if (!content() || myFilename.isNull())
    {
        return false;
    }
    AxFilename const target = foundFilename().isNull() ? myFilename : foundFilename();
    int error = ENOMEM;
    try
    {
        if (writeWholeFile(target, content()->writtenText()))
        {
            clearChanged();
            return true;
        }
        error = errno;
    }
    catch (std::bad_alloc const&)
    {
        error = ENOMEM;
    }
    catch (...)
    {
        error = ECANCELED; // by a hook
    }
    AxDiagnostic fault;
    fault.code = "cannot-write";
    fault.file = target.native();
    fault.text =
        "cannot write the content of \"" + AxReaderWriter::name().string().string() + "\": " + std::strerror(error);
    AxDiagnostics::report(std::move(fault));
    return false;
}
