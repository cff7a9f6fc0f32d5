#pragma once

#include "AxReaderWriterFile.h"

/// A file member that, when the named file is nowhere, tries the name with each registered extension in place of its
/// own.
class ZEDOBJPARAM_API AxReaderWriterFileExtensible : public AxReaderWriterFile
{
public:
    using AxReaderWriterFile::AxReaderWriterFile;
    AxReaderWriterFileExtensible(AxReaderWriterFileExtensible const&) = default;
    ~AxReaderWriterFileExtensible() override;
    AxReaderWriterFileExtensible& operator=(AxReaderWriterFileExtensible const&) = default;
    using AxReaderWriterFile::operator=;

    char const* readerWriterType() const override;

    /// One list for the process, empty at start.
    static std::list<AxString>* getExtensionList();
    /// A leading dot is optional; a repeated extension is ignored.
    static void addExtension(AxString const& extension);

protected:
    std::vector<AxFilename> candidates(AxFilename const& file) const override;
};
