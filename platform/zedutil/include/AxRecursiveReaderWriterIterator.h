#pragma once

#include "AxReaderWriter.h"

#include <vector>

/// Walks every reader/writer below a registry: members, list elements and the contents of file members, depth first,
/// each before what is below it. The walk must not outlive a change of what it walks.
class ZEDOBJPARAM_API AxRecursiveReaderWriterIterator
{
public:
    explicit AxRecursiveReaderWriterIterator(AxReaderWriterRegistry const& registry);
    /// Starts over; null when there is nothing.
    AxReaderWriter* first();
    AxReaderWriter* next();
    AxReaderWriter* current() const;

private:
    void push(AxReaderWriterRegistry const& registry);
    void pushBelow(AxReaderWriter& rw);

    AxReaderWriterRegistry const& myRegistry;
    std::vector<AxReaderWriter*> myPending; // the next to visit last
    AxReaderWriter* myCurrent = nullptr;
};
