#pragma once

#include "AxComponentDescriptor.h"
#include "AxDefaultComponentDescriptorFactory.h"
#include "AxDiagnostic.h"
#include "AxSinkScope.h"
#include "AxlFunctions.h"

#include <gtest/gtest.h>
#include <vector>

/// The first expression of a text.
inline AxlObjPtr cellsOf(std::string_view text)
{
    AxlInputStream stream(text);
    return AxcRead(stream);
}

template <class T>
bool readInto(T& rw, std::string_view text)
{
    return rw.readText(text, AxFilename("test.ope"), AxReaderWriter::nullFilenames(),
                       AxReaderWriter::nullVariableReference());
}

/// A default factory installed, warnings and findings gathered.
class DescriptorFixture : public testing::Test
{
protected:
    DescriptorFixture()
        : sink(AxDiagnostics::setSink([this](AxDiagnostic const& finding) { findings.push_back(finding); }))
    {
        AxComponentDescriptor::setFactory(&factory);
    }
    ~DescriptorFixture() override
    {
        AxComponentDescriptor::setFactory(nullptr);
        AxDiagnostics::setSink(sink);
    }

    AxComponentDescriptor* create(std::string_view text)
    {
        return AxComponentDescriptor::createComponentDescriptor(cellsOf(text), AxReaderWriter::nullFilenames(),
                                                                AxReaderWriter::nullVariableReference());
    }

    AxDefaultComponentDescriptorFactory factory;
    AxSinkScope warnings{AxWarn};
    std::vector<AxDiagnostic> findings;
    AxDiagnostics::Sink sink;
};
