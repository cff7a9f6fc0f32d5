#pragma once

#include "AxRwList.h"
#include "AxRwReal.h"
#include "AxTypedListIterator.h"

/// One row of a range table: a range in metres and the probability of each named outcome there.
///
/// Text: `(range-entry 500.0 (hit 0.8) (kill 0.2))`. Also what every table fills with its answer: a caller that asks
/// often keeps one row, whose outcomes are then reused rather than made anew.
class ZEDOBJPARAM_API AxPrbRangeTableEntry : public AxRwList
{
public:
    AxPrbRangeTableEntry();
    explicit AxPrbRangeTableEntry(double range);
    AxPrbRangeTableEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxPrbRangeTableEntry(AxString const& name, AxReaderWriterRegistry* registry);
    AxPrbRangeTableEntry(char const* name, AxReaderWriterRegistry* registry);
    AxPrbRangeTableEntry(AxSymbolString name, AxPrbRangeTableEntry const& other, AxReaderWriterRegistry* registry);
    AxPrbRangeTableEntry(AxPrbRangeTableEntry const& other);
    ~AxPrbRangeTableEntry() override;

    AxPrbRangeTableEntry& operator=(AxPrbRangeTableEntry const& other);
    /// Same range, and the same outcomes with the same probabilities in the same order.
    bool equals(AxPrbRangeTableEntry const& other) const;
    bool operator==(AxPrbRangeTableEntry const& other) const { return equals(other); }

    double range() const { return myRange; }
    void setRange(double range);

    /// Appends an outcome; one of that name that is present stays, and goes on answering.
    void addProbability(AxString const& name, double probability);
    /// That of the first outcome of the name, 0.0 when there is none.
    double probability(AxString const& name) const;

    /// Replaces range and outcomes of a row, one after another, reusing the outcomes that are there; the row keeps
    /// those left over for the next time.
    class ZEDOBJPARAM_API Refill
    {
    public:
        Refill(AxPrbRangeTableEntry& row, double range);
        Refill(Refill const&) = delete;
        Refill& operator=(Refill const&) = delete;
        ~Refill();
        /// The outcome that holds it now; null, and a warning, when there is no memory for it.
        AxRwReal* add(AxSymbolString name, double probability);

    private:
        AxPrbRangeTableEntry& myRow;
        AxListItem* myNext;
    };

    using Iterator = AxTypedListIterator<AxRwReal>;
    Iterator begin() const { return Iterator(first()); }
    Iterator end() const { return Iterator(nullptr); }

    using AxRwList::getData;
    using AxRwList::putData;
    using AxRwList::putSelf;
    AxlObjPtr getLocalData(AxlObjPtr const& items) override;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putData(std::string& out, int indent) override;
    void putSelf(std::string& out, int indent, bool all, AxFilename const& file) override;
    void reset() override;
    char const* readerWriterType() const override;

    /// What stands in front of a row in text; rows of files may have any head.
    static AxSymbolString elementWord();

private:
    double myRange = 0.0;
    AxList mySpares; // outcomes that a fuller answer takes again, owned
};
