#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "AxEnvironment.h"
#include "FileEditor.h"

class AxReaderWriter;
struct ReadContext;

/// The editor of entity files. Paths are those of the record, such as "max-speed", "systems/main-gun/reload-time" or
/// "variable-bindings/top"; besides "objectType" and "matchType".
class XmlEditor : public FileEditor
{
public:
    /// `object` names the object that is meant; empty: the only one of the file. `context` must outlive the editor.
    XmlEditor(std::string const& file, std::string text, std::string object, ReadContext const& context, bool force);
    ~XmlEditor() override;

    bool set(std::string const& path, std::string const& value) override;
    bool unset(std::string const& path) override;
    std::vector<std::string> stepsBehind(std::string const& path, bool onlyThere) override;

private:
    struct Document;
    struct Target;

    /// Null, after a fault, when the text or the object in it cannot be read.
    std::unique_ptr<Document> read(std::string const& text);
    bool follow(Document& document, std::string const& path, Target& target);
    bool setValue(Document& document, Target const& target, std::string const& value);
    bool insert(Document& document, Target const& target, std::string const& value);
    bool insertElement(Document& document, Target const& target, AxEnvObject& owner, AxEnvObjectPtr const& child);
    bool leadsOn(Target const& target);
    /// `outer` holds the value under its name; null for a member of its own.
    bool accepts(Target const& target, AxReaderWriter* rw, AxReaderWriter const* outer, std::string const& value,
                 std::string& plain);
    /// Replaces bytes and makes sure that the text then reads as the tree of the document, which was changed alike.
    bool apply(Document const& document, AxEnvValue const& place, std::size_t begin, std::size_t end,
               std::string const& bytes);
    bool refuseAt(AxEnvValue const& node, std::string code, std::string text, std::string hint = {});
    bool refuseUnknown(Target const& target, std::size_t place, AxReaderWriter const* rw);

    std::string myObject;
    ReadContext const& myContext;
};
