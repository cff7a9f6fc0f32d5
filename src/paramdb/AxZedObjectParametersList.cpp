#include "AxZedObjectParametersList.h"

#include "AxNearest.h"
#include "AxParameterDbFiles.h"
#include "AxReaderWriterFactory.h"
#include "AxRwObjectType.h"
#include "AxStreams.h"
#include "AxTypeIndex.h"
#include "AxZedObjectParameters.h"
#include "AxlObj.h"
#include "AxlPrint.h"

#include <algorithm>

static AxTypeEntry<AxZedObjectParametersList> const zedObjectParametersListEntry;

namespace
{
AxZedObjectParameters* recordOf(AxListItem const* item)
{
    return static_cast<AxZedObjectParameters*>(AxRwList::element(item));
}

AxObjectType const* typeOfData(void const* data)
{
    auto const* const rw = static_cast<AxReaderWriter const*>(data);
    return &static_cast<AxZedObjectParameters const*>(rw)->objectType();
}

bool saysItsType(AxlObj const* element)
{
    for (AxlObj const* items = element->cdr(); items->isPair(); items = items->cdr())
    {
        std::string_view const head = items->car()->car()->text();
        if (head == "object-type" || head == "match-type")
        {
            return true;
        }
    }
    return false;
}
} // namespace

AxZedObjectParametersList::AxZedObjectParametersList(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxRwList(name, registry), myIndex(std::make_unique<AxTypeIndex>(*this, typeOfData))
{
}

AxZedObjectParametersList::AxZedObjectParametersList(AxString const& name, AxReaderWriterRegistry* registry)
    : AxZedObjectParametersList(AxSymbolString(name), registry)
{
}

AxZedObjectParametersList::AxZedObjectParametersList(AxZedObjectParametersList const& other)
    : AxRwList(other), myElementTypes(other.myElementTypes), myIndex(std::make_unique<AxTypeIndex>(*this, typeOfData))
{
    copyRecords(other);
}

AxZedObjectParametersList::~AxZedObjectParametersList()
{
    emptyList();
}

AxZedObjectParametersList& AxZedObjectParametersList::operator=(AxZedObjectParametersList const& other)
{
    if (this != &other)
    {
        emptyList();
        copyRecords(other);
        carryState(other);
    }
    return *this;
}

void AxZedObjectParametersList::copyRecords(AxZedObjectParametersList const& other)
{
    for (AxListItem const* item = other.first(); item; item = item->next())
    {
        AxZedObjectParameters const* const record = recordOf(item);
        addParameters(record->clone(record->AxReaderWriter::name(), nullptr));
    }
}

void AxZedObjectParametersList::emptyList()
{
    AxRwList::removeAndDeleteAll();
    myIndex->invalidate();
}

void AxZedObjectParametersList::registerElementType(AxString const& head, int superType)
{
    myElementTypes.push_back({AxSymbolString(head), superType});
}

AxZedObjectParametersList::ElementType const* AxZedObjectParametersList::elementType(AxSymbolString head) const
{
    auto const found = std::find_if(myElementTypes.begin(), myElementTypes.end(),
                                    [head](ElementType const& known) { return known.head == head; });
    return found == myElementTypes.end() ? nullptr : &*found;
}

void AxZedObjectParametersList::addParameters(AxZedObjectParameters* record)
{
    if (!record)
    {
        return;
    }
    AxObjectType const type = record->objectType();
    forgetUnknownTypes();
    AxListItem const* const best = lookupParameters(type);
    if (best && recordOf(best) == record)
    {
        return; // it is here already
    }
    if (best && recordOf(best)->objectType() == type)
    {
        removeParameters(type);
    }
    if (myIndex->insert(static_cast<AxReaderWriter*>(record), type))
    {
        setValueSpecified(true, true);
        valueAssigned();
    }
}

AxListItem* AxZedObjectParametersList::lookupParameters(AxObjectType const& type) const
{
    return myTypesAreKnown ? myIndex->bestMatch(type).item : myIndex->walk(type);
}

AxZedObjectParameters* AxZedObjectParametersList::lookupParameters(AxObjectType const& type,
                                                                   AxObjectType* matched) const
{
    AxListItem const* const item = lookupParameters(type);
    if (!item)
    {
        return nullptr;
    }
    if (matched)
    {
        *matched = recordOf(item)->objectType();
    }
    return recordOf(item);
}

void AxZedObjectParametersList::removeParameters(AxObjectType const& type)
{
    if (myElement)
    {
        std::string const text = type.string().string();
        AxDiagnostics::reportStated(axFaultAt("repeated-type", myElement->line(), myElement->column(),
                                              "the type " + text + " has an element already; this one answers instead",
                                              AxSeverity::Warning),
                                    "Removing entry for type " + text + '\n');
    }
    else
    {
        AxWarn << "Removing entry for type " << type.string() << AxEndl;
    }
    AxListItem* const item = lookupParameters(type);
    if (item && recordOf(item)->objectType() == type)
    {
        AxZedObjectParameters* const record = recordOf(item);
        forgetUnknownTypes();
        myIndex->remove(item);
        delete record;
        valueAssigned();
    }
}

/// A caller may have given a record another type since the index was built.
void AxZedObjectParametersList::forgetUnknownTypes()
{
    if (!myTypesAreKnown)
    {
        myIndex->invalidate();
    }
}

void AxZedObjectParametersList::inheritValuesFromAncestors()
{
    myIndex->invalidate();
    for (AxListItem const* item = first(); item; item = item->next())
    {
        if (AxListItem const* const ancestor = myIndex->ancestorOf(item))
        {
            recordOf(item)->inheritValues(recordOf(ancestor));
        }
    }
}

void AxZedObjectParametersList::getSelf(AxlObjPtr const& expression, AxFilenameList const& files,
                                        AxBindingsList const& bindings)
{
    AxlObj const* const head = expression->car();
    if (head->isSymbol())
    {
        myCurrentElementType = head->pname();
    }
    myIndex->invalidate();
    myTypesAreKnown = true;
    try
    {
        AxRwList::getSelf(expression, files, bindings);
    }
    catch (...)
    {
        myTypesAreKnown = false;
        throw;
    }
    myTypesAreKnown = false;
}

AxlObjPtr AxZedObjectParametersList::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                             AxBindingsList const& bindings)
{
    AxlObj const* const head = item->car();
    myCurrentElementType = head->pname();
    ElementType const* const known = elementType(AxSymbolString(myCurrentElementType));
    if (!known && !myElementTypes.empty())
    {
        reportUnknown(head);
        keepElement(item.get());
        return item;
    }
    AxZedObjectParameters* const record = AxZedObjectParameters::createParameters(item, files, bindings);
    if (!record)
    {
        AxWarn("could not create entity parameters\n");
        keepElement(item.get());
        return item;
    }
    if (!saysItsType(item.get()))
    {
        AxDiagnostics::report(axFaultAt("no-object-type", item->line(), item->column(),
                                        "expected (object-type ...) in the element, which no type finds",
                                        AxSeverity::Warning));
    }
    AxObjectType type = record->objectType();
    if (type.superType() == 0 && known)
    {
        type.setSuperType(known->superType);
        record->setObjectType(type);
    }
    struct Reading
    {
        AxlObj const*& element;
        ~Reading() { element = nullptr; }
    } const reading{myElement = item.get()};
    addParameters(record);
    return item;
}

void AxZedObjectParametersList::reportUnknown(AxlObj const* head) const
{
    std::vector<std::string_view> heads;
    for (ElementType const& known : myElementTypes)
    {
        heads.push_back(known.head.view());
    }
    AxDiagnostic unknown = axFaultAt("unknown-element", head->line(), head->column(),
                                     "unknown element \"" + head->pname().string() + '"', AxSeverity::Warning);
    if (std::string_view const nearest = axNearest(head->pname().string(), heads); !nearest.empty())
    {
        unknown.hint = "did you mean \"" + std::string(nearest) + "\"?";
    }
    AxDiagnostics::report(std::move(unknown));
}

AxSymbolString AxZedObjectParametersList::headFor(AxObjectType const& type) const
{
    for (ElementType const& known : myElementTypes)
    {
        if (known.superType == type.superType())
        {
            return known.head;
        }
    }
    return myElementTypes.empty() ? AxSymbolString("individual-entity-parameters") : myElementTypes.front().head;
}

void AxZedObjectParametersList::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    // The elements say their types besides what a record writes of itself, so they are not left to the general way.
    setFlag(List, false);
    writeAs(name(), out, indent, all, file);
    setFlag(List, true);
    out.pop_back();
    for (AxListItem const* item = first(); item; item = item->next())
    {
        writeRecord(*recordOf(item), out, indent + 1, all, file);
    }
    for (auto const& [after, text] : keptItems())
    {
        out += '\n';
        putIndent(out, indent + 1);
        out += text;
    }
    out += ')';
}

void AxZedObjectParametersList::writeRecord(AxZedObjectParameters& record, std::string& out, int indent, bool all,
                                            AxFilename const& file) const
{
    std::string text;
    record.putSelf(text, indent, all, file);
    std::string name;
    axAppendName(name, record.AxReaderWriter::name());
    std::size_t const typeItem = 1 + name.size();
    std::size_t const members = text.find("\")", typeItem) + 2;
    AxSymbolString const head = headFor(record.objectType());
    auto const startItem = [&out](int level)
    {
        out += '\n';
        putIndent(out, level);
        out += '(';
    };
    startItem(indent);
    out += head.view();
    out.append(text, typeItem, members - typeItem);
    startItem(indent + 1);
    out += "object-type ";
    AxRwObjectType::writeValue(out, record.objectType());
    out += ')';
    if (!(record.AxReaderWriter::name() == head) && !record.AxReaderWriter::name().isNull())
    {
        startItem(indent + 1);
        out += "record-name ";
        axAppendQuoted(out, record.AxReaderWriter::name().view());
        out += ')';
    }
    out.append(text, members, std::string::npos);
}

char const* AxZedObjectParametersList::readerWriterType() const
{
    return "AxZedObjectParametersList";
}
