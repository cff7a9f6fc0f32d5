#pragma once

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
        catch (std::exception const& error)
        {
            reportFailure(code, place, error.what());
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
    };
    static std::vector<Item> sortedItems(AxReaderWriter const& rw);
    static void writeMembers(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    static void writeContent(AxReaderWriter const& rw, AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    static void writeElement(AxRwList const& list, AxReaderWriter const& element, AxSymbolString head,
                             AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
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
    static void keepXml(AxReaderWriter& record, std::string const& text, std::string const& xml, AxSymbolString after);

    static void reportFailure(char const* code, AxEnvValue const* place, std::string const& text);
};
