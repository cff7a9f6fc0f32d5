#pragma once

#include "AxDefaultComponentDescriptorFactory.h"
#include "AxDefaultParameterFactory.h"
#include "AxDiagnostic.h"
#include "AxSinkScope.h"
#include "platform/sxp/Cells.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

using RecordPtr = std::unique_ptr<AxZedObjectParameters>;

inline void readCellsInto(AxReaderWriter& rw, std::string_view text, AxBindingsList const& bindings = {})
{
    rw.getSelf(cellsOf(text), AxReaderWriter::nullFilenames(), bindings);
}

/// The default factories installed, warnings and findings gathered.
class RecordFixture : public testing::Test
{
protected:
    RecordFixture()
        : mySink(AxDiagnostics::setSink([this](AxDiagnostic const& finding) { findings.push_back(finding); }))
    {
        AxComponentDescriptor::setFactory(&components);
        AxZedObjectParameters::setFactory(&factory);
    }
    ~RecordFixture() override
    {
        AxZedObjectParameters::setFactory(nullptr);
        AxComponentDescriptor::setFactory(nullptr);
        AxDiagnostics::setSink(mySink);
    }

    RecordPtr made(char const* type) { return RecordPtr(AxZedObjectParameters::createParameters(type)); }
    RecordPtr created(std::string_view text)
    {
        return RecordPtr(AxZedObjectParameters::createParameters(cellsOf(text), AxReaderWriter::nullFilenames(),
                                                                 AxReaderWriter::nullVariableReference()));
    }

    AxDefaultComponentDescriptorFactory components;
    AxDefaultParameterFactory factory;
    AxSinkScope warnings{AxWarn};
    std::vector<AxDiagnostic> findings;

private:
    AxDiagnostics::Sink mySink;
};
