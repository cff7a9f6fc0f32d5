#pragma once

#include "AxComponentDescriptor.h"
#include "AxDefaultComponentDescriptorFactory.h"
#include "AxDiagnostic.h"
#include "AxSinkScope.h"
#include "platform/sxp/Cells.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>
#include <vector>

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
