#include "AxPrbRangeTableEntry.h"

#include "AxFaultAt.h"
#include "AxIsReference.h"
#include "AxNumberText.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxlObj.h"
#include "AxlPrint.h"
#include "axTryNew.h"

static AxTypeEntry<AxPrbRangeTableEntry> const prbRangeTableEntryEntry;

AxPrbRangeTableEntry::Refill::Refill(AxPrbRangeTableEntry& row, double range) : myRow(row), myNext(row.first())
{
    row.myRange = range;
}

AxPrbRangeTableEntry::Refill::~Refill()
{
    while (myNext)
    {
        AxListItem* const surplus = myNext;
        myNext = surplus->next();
        myRow.moveTo(myRow.mySpares, surplus);
    }
    myRow.setFlag(Specified, true);
    myRow.valueAssigned();
}

AxRwReal* AxPrbRangeTableEntry::Refill::add(AxSymbolString name, double probability)
{
    if (!myNext && !myRow.mySpares.isEmpty())
    {
        myNext = myRow.mySpares.first();
        myRow.mySpares.moveTo(myRow, myNext);
    }
    if (!myNext)
    {
        auto* const made = axTryNew<AxRwReal>(name, nullptr);
        if (made)
        {
            *made = probability;
            static_cast<AxList&>(myRow).add(static_cast<AxReaderWriter*>(made));
        }
        else
        {
            AxWarn("Memory allocation failed in AxPrbRangeTableEntry::copyList\n");
        }
        return made;
    }
    auto* const outcome = static_cast<AxRwReal*>(element(myNext));
    if (outcome->AxReaderWriter::name() != name)
    {
        outcome->setName(name.string());
    }
    *outcome = probability;
    myNext = myNext->next();
    return outcome;
}

AxPrbRangeTableEntry::AxPrbRangeTableEntry() : AxPrbRangeTableEntry(elementWord(), nullptr) {}

AxPrbRangeTableEntry::AxPrbRangeTableEntry(double range) : AxPrbRangeTableEntry()
{
    myRange = range;
}

AxPrbRangeTableEntry::AxPrbRangeTableEntry(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxRwList(name, registry)
{
}

AxPrbRangeTableEntry::AxPrbRangeTableEntry(AxString const& name, AxReaderWriterRegistry* registry)
    : AxRwList(name, registry)
{
}

AxPrbRangeTableEntry::AxPrbRangeTableEntry(char const* name, AxReaderWriterRegistry* registry)
    : AxRwList(name, registry)
{
}

AxPrbRangeTableEntry::AxPrbRangeTableEntry(AxSymbolString name, AxPrbRangeTableEntry const& other,
                                           AxReaderWriterRegistry* registry)
    : AxPrbRangeTableEntry(name, registry)
{
    *this = other;
}

AxPrbRangeTableEntry::AxPrbRangeTableEntry(AxPrbRangeTableEntry const& other)
    : AxPrbRangeTableEntry(other.AxReaderWriter::name(), other, nullptr)
{
}

AxPrbRangeTableEntry::~AxPrbRangeTableEntry()
{
    AxRwList::removeAndDeleteAll();
    for (AxListItem const* item = mySpares.first(); item; item = item->next())
    {
        delete element(item);
    }
}

AxPrbRangeTableEntry& AxPrbRangeTableEntry::operator=(AxPrbRangeTableEntry const& other)
{
    if (this != &other)
    {
        {
            Refill refill(*this, other.myRange);
            for (AxRwReal const* outcome : other)
            {
                AxRwReal* const copy = refill.add(outcome->AxReaderWriter::name(), outcome->value());
                if (copy && outcome->isVariableReference())
                {
                    *copy = *outcome; // the value alone would end the reference
                }
            }
        }
        carryState(other);
    }
    return *this;
}

bool AxPrbRangeTableEntry::equals(AxPrbRangeTableEntry const& other) const
{
    if (!AxRwReal::same(myRange, other.myRange) || count() != other.count())
    {
        return false;
    }
    Iterator theirs = other.begin();
    for (AxRwReal const* outcome : *this)
    {
        AxRwReal const* const same = *theirs;
        if (outcome->AxReaderWriter::name() != same->AxReaderWriter::name() || !outcome->equals(*same))
        {
            return false;
        }
        ++theirs;
    }
    return true;
}

void AxPrbRangeTableEntry::setRange(double range)
{
    myRange = range;
    setFlag(Specified, true);
    valueAssigned();
}

void AxPrbRangeTableEntry::addProbability(AxString const& name, double probability)
{
    if (auto* const outcome = axTryNew<AxRwReal>(AxSymbolString(name), nullptr))
    {
        *outcome = probability;
        AxRwList::addToEnd(outcome);
        return;
    }
    AxWarn("Memory allocation failed in AxPrbRangeTableEntry::addProbability\n");
}

double AxPrbRangeTableEntry::probability(AxString const& name) const
{
    for (AxRwReal const* outcome : *this)
    {
        if (outcome->AxReaderWriter::name() == name)
        {
            return outcome->value();
        }
    }
    return 0.0;
}

AxlObjPtr AxPrbRangeTableEntry::getLocalData(AxlObjPtr const& items)
{
    AxlObj const* const first = items->car();
    if (!first->isNumber())
    {
        AxDiagnostics::report(
            axFaultAt(AxSeverity::Error, "wrong-kind", items.get(), "a row expects its range, a number, first"));
        return items;
    }
    myRange = first->flonum();
    return AxlObjPtr(items->cdr());
}

AxlObjPtr AxPrbRangeTableEntry::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                        AxBindingsList const& bindings)
{
    AxlObj const* const head = item->car();
    AxlObj const* const value = item->cdr()->car();
    bool const isNamed = head->isSymbol() || head->isString();
    bool const isReference = axIsReference(item->cdr());
    if (!isNamed || !item->cdr()->cdr()->nil() || (!value->isNumber() && !isReference))
    {
        AxDiagnostics::report(axFaultAt(AxSeverity::Warning, "wrong-kind", item.get(),
                                        "an outcome expects a name and a number; it is skipped"));
        std::string text;
        axAppendCell(text, item.get());
        keepItem(AxSymbolString(), std::move(text));
        return item;
    }
    if (isReference)
    {
        auto* const outcome = new AxRwReal(head->symbol(), nullptr);
        outcome->getSelf(item, files, bindings);
        AxRwList::addToEnd(outcome);
    }
    else
    {
        addProbability(AxString(head->text()), value->flonum());
    }
    return item;
}

void AxPrbRangeTableEntry::putData(std::string& out, int indent)
{
    axAppendReal(out, myRange);
    for (AxRwReal* outcome : *this)
    {
        out += ' ';
        outcome->putSelf(out, indent, true, AxFilename::nullFilename());
    }
}

void AxPrbRangeTableEntry::putSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    setFlag(List, false); // the outcomes stand on the line of the row, where the data hook has put them
    AxRwList::putSelf(out, indent, all, file);
    setFlag(List, true);
}

void AxPrbRangeTableEntry::reset()
{
    AxRwList::reset();
    myRange = 0.0;
}

char const* AxPrbRangeTableEntry::readerWriterType() const
{
    return "AxPrbRangeTableEntry";
}

AxSymbolString AxPrbRangeTableEntry::elementWord()
{
    static AxSymbolString const word("range-entry");
    return word;
}
