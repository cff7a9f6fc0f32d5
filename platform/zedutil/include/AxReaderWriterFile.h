#pragma once

#include "AxReaderWriter.h"

#include <cstdio>
#include <memory>

/// A member that names a file, and optionally the object that the file's contents are read into.
///
/// Its text is the quoted name. Content that has no keyword of its own may also stand inline, when no file is named.
/// With a file name only the name is written; the content is saved by `save`.
class ZEDOBJPARAM_API AxReaderWriterFile : public AxReaderWriter
{
public:
    AxReaderWriterFile(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxReaderWriterFile(AxString const& name, AxReaderWriterRegistry* registry);
    AxReaderWriterFile(char const* name, AxReaderWriterRegistry* registry);
    AxReaderWriterFile(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    AxReaderWriterFile(AxSymbolString name, AxReaderWriterFile const& other, AxReaderWriterRegistry* registry);
    AxReaderWriterFile(AxReaderWriterFile const& other);
    ~AxReaderWriterFile() override;

    /// Takes the name, and content that has no keyword of its own.
    AxReaderWriterFile& operator=(AxReaderWriterFile const& other);
    /// Sets the name; nothing is loaded.
    AxReaderWriterFile& operator=(AxFilename const& file)
    {
        setFilename(file);
        return *this;
    }

    /// The name with the references of the text expanded as far as they are known.
    AxFilename const& filename() const { return myFilename; }
    /// Clearing the name marks content that was loaded as specified, so that it is written and not lost.
    void setFilename(AxFilename const& file);
    /// Another name for the same file: what was read from it stays.
    void nameAnew(AxFilename const& file) { myFilename = file; }
    /// The file that was found and read last; null when none was.
    AxFilename const& foundFilename() const;

    /// How the content object is known besides being content.
    enum class ContentKind
    {
        Member,  ///< a registered member with a keyword of its own
        Unnamed, ///< named but not registered
        Entry    ///< registered under the very name of this file member
    };
    /// Binds the object that the file is read into; not owned. Content that is not enabled is never loaded. The object
    /// bound before is not touched.
    void setContent(AxReaderWriter* content, bool enabled = true);
    AxReaderWriter* content() const;
    bool contentEnabled() const;
    ContentKind contentKind() const;

    /// Reads the content from the named file, searched along `files` and then as it stands; what the file names in turn
    /// is searched beside it first. False when there is no name, no enabled content, or, after one warning, no reading
    /// it: the content is then empty.
    bool load(AxFilenameList const& files, AxBindingsList const& bindings);
    /// Writes the content to the file found at loading, else the named one: beside it, then renamed.
    bool save();
    /// Whether the content was changed since the last load, save or `clearChanged`.
    bool contentChanged() const;
    void clearChanged();

    /// Same name; and equal content where the name is empty or either content was changed, unless the content is a
    /// member that is compared for itself.
    bool equals(AxReaderWriterFile const& other) const;
    bool operator==(AxReaderWriterFile const& other) const { return equals(other); }

    using AxReaderWriter::getData;
    using AxReaderWriter::getSelf;
    using AxReaderWriter::putData;
    using AxReaderWriter::putSelf;
    using AxReaderWriter::writeSelf;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putData(std::string& out, int indent) override;
    void putSelf(std::string& out, int indent, bool all, AxFilename const& file) override;
    void writeSelf(std::string& out, int indent, bool all, AxFilename const& file) override;
    void reset() override;
    char const* readerWriterType() const override;
    char const* xmlType() const override { return readerWriterType(); }
    void bindVariables(AxBindingsList const& bindings) override;
    void bindLocalVariables(AxBindingsList const& bindings) override;
    void clearAllVariableReferenceFlags() override;
    bool hasVariableReference() const override;
    AxUnboundVariableList unboundVariables() const override;
    double recordUpdateTime() const override;
    bool hasChild(AxReaderWriter const* child) const override;

    /// Regular files below `directory` whose names end in `extension`, sorted by their path from there.
    static std::vector<AxFilename> findFilesByExtension(AxFilename const& directory, AxString const& extension);
    /// Opens the first hit along `searchPaths`; with `alsoAsGiven` the name as it stands last. Null, with errno of the
    /// most telling attempt, when there is none.
    static std::FILE* loadHighestPriorityFile(AxFilename const& file, std::vector<AxFilename> const& searchPaths,
                                              AxFilename& found, bool alsoAsGiven);
    /// Writes `text` to a file beside `file`, flushes it and renames it. False with errno when any step fails.
    static bool writeWholeFile(AxFilename const& file, std::string const& text);
    /// Forgets the parsed files that are kept for reuse.
    static void clearFileCache();

protected:
    /// The names to try for `file`; a plain file member tries the name itself.
    virtual std::vector<AxFilename> candidates(AxFilename const& file) const;

private:
    struct Content;

    /// The content that is reached through this member only, null when there is none.
    AxReaderWriter* ownContent() const;
    bool isInline(bool all) const;
    void updateBacking();
    /// False when the name holds a variable that is not known.
    bool takeName(AxlObj const* cell, AxBindingsList const& bindings);
    bool readInline(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings);
    bool loadFrom(AxlObj const* place, AxFilenameList const& files, AxBindingsList const& bindings);
    bool readFile(AxlObj const* place, AxFilenameList const& files, AxBindingsList const& bindings);

    AxFilename myFilename;
    std::unique_ptr<Content> myContent;
};
