#pragma once

#include "AxDiagnostic.h"
#include "AxReaderWriter.h"
#include "AxRwList.h"

#include <string>
#include <string_view>
#include <vector>

/// The tree form of reader/writers, as a translation of their text: what stands in a text as `(keyword value)` is an
/// attribute for a scalar and a child for everything else. Reading makes the cells that the text would have been read
/// as, so that all hooks of cells serve both forms.
///
/// What has no shape of its own in a tree stands as text in a child of type "sexp"; what a record does not know of a
/// tree stands in its text as `(xml-item "...")`.
class AxTreeForm
{
public:
    // Writing
    static void write(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& parent);
    /// The one value, or the items of the data hook of text.
    static void writeData(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    static void writeElements(AxRwList const& list, AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    static void writeReference(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node);

    // Reading
    static void read(AxReaderWriter& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node,
                     AxFilenameList const& files, AxBindingsList const& bindings);
    static bool readReference(AxReaderWriter& rw, AxEnvValuePtr const& node);

    /// Runs `work`; what it throws is reported as `code`. False when it threw.
    template <class Work>
    static bool guarded(char const* code, AxEnvValue const* place, Work const& work)
    {
        try
        {
            work();
            return true;
        }
        catch (...)
        {
            reportFailure(code, place, axReason());
        }
        return false;
    }

private:
    /// One item of a written text and what it is.
    struct Item
    {
        enum class Kind
        {
            Bare, ///< no list
            Hook, ///< from the data hook of text
            Member,
            Element,
            Kept
        };
        Kind kind;
        AxlObjPtr cell;
        AxReaderWriter* member = nullptr;
        AxSymbolString after{}; ///< the member that a kept item stands behind
        AxEnvObjectPtr rest{};  ///< of the element of a value, which a kept item holds
    };
    static std::vector<Item> sortedItems(AxReaderWriter const& rw);
    static void writeMembers(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    static void writeContent(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    static void writeElement(AxReaderWriter const& rw, AxString const& head, AxEnvironmentPtr const& env,
                             AxEnvValuePtr const& parent);
    /// Answers what was written, if it is a value.
    static AxEnvObjectPtr writeElement(AxRwList const& list, AxReaderWriter const& element, AxSymbolString head,
                                       AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    /// The content that a member which names files has in place of a name; null when it has none.
    static AxReaderWriter const* inlineContent(AxReaderWriter const& rw, AxlObj const* written);
    static void writeValue(AxReaderWriter const& rw, AxlObj const* items, AxEnvironmentPtr const& env,
                           AxEnvValuePtr const& node);
    static void writeProperty(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    static bool writeAttribute(AxReaderWriter const& rw, AxlObj const* items, AxEnvironmentPtr const& env,
                               AxEnvValuePtr const& parent);

    static void finish(AxReaderWriter& rw, AxEnvironmentPtr const& env, AxEnvObjectPtr const& node,
                       AxFilenameList const& files, AxBindingsList const& bindings);
    static void finishRecord(AxReaderWriter& rw, AxEnvironmentPtr const& env, AxEnvObjectPtr const& node,
                             AxFilenameList const& files, AxBindingsList const& bindings);
    static void finishList(AxRwList& list, AxEnvironmentPtr const& env, AxEnvObjectPtr const& node,
                           AxFilenameList const& files, AxBindingsList const& bindings);
    static void finishMember(AxReaderWriter& record, AxReaderWriter& member, AxEnvironmentPtr const& env,
                             AxEnvObjectPtr const& node, AxFilenameList const& files, AxBindingsList const& bindings);
    /// False when the element was none of the list's.
    static bool finishElement(AxRwList& list, AxListItem* item, int position, AxEnvironmentPtr const& env,
                              AxEnvObjectPtr const& node, AxFilenameList const& files, AxBindingsList const& bindings);
    static void keepInList(AxRwList& list, std::string const& xml, int position);

    static void reportFailure(char const* code, AxEnvValue const* place, std::string const& text);
};
