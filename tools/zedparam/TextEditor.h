#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "AxDiagnostic.h"
#include "FileEditor.h"
#include "TextPath.h"
#include "TextReading.h"
#include "TextTree.h"

/// The editor of parameter text.
class TextEditor : public FileEditor
{
public:
    TextEditor(std::string const& file, std::string text, TextReading& reading, bool force);

    bool set(std::string const& path, std::string const& value) override;
    bool unset(std::string const& path) override;
    std::vector<std::string> stepsBehind(std::string const& path, bool onlyThere) override;

private:
    /// Bytes to be replaced.
    struct Patch
    {
        std::size_t begin;
        std::size_t end;
        std::string bytes;
    };

    bool replaceValue(TextTree const& tree, TextPath const& path, std::string const& value);
    bool insert(TextTree const& tree, TextPath const& path, std::string const& value);
    bool accepts(AxReaderWriter& member, AxReaderWriter const* outer, TextItem place, std::string const& name,
                 std::string const& value);
    bool isKnown(TextPath const& path) const;
    bool refuseUnknown(TextPath const& path, TextItem list, AxReaderWriter const* rw, std::string const& name);
    bool apply(TextTree const& tree, std::vector<Patch> const& patches);
    bool refuseAt(TextItem place, std::string code, std::string text, std::string hint = {});

    TextReading& myReading;
};
