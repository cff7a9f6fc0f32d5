#include "AxReaderWriterFileContent.h"

#include "AxDiagnostic.h"
#include "AxFileCells.h"
#include "AxFileChain.h"
#include "AxGuarded.h"
#include "AxReadFrame.h"
#include "AxRwVariableBindings.h"
#include "AxlSyntaxError.h"

#include <boost/algorithm/string/predicate.hpp>
#include <boost/filesystem/directory.hpp>
#include <cerrno>
#include <cstring>
#include <exception>
#include <unistd.h>

namespace filesystem = boost::filesystem;

namespace
{
AxDiagnostic faultAt(AxlObj const* place, AxSeverity severity, char const* code, std::string text)
{
    AxDiagnostic fault;
    fault.severity = severity;
    fault.code = code;
    fault.line = place->line();
    fault.column = place->column();
    fault.text = std::move(text);
    return fault;
}

/// The name of a file beside `file` that differs from it in upper and lower case only; empty when there is none.
std::string nameInOtherCase(AxFilename const& file)
{
    filesystem::path const path(file.native());
    boost::system::error_code error;
    filesystem::path const directory = path.has_parent_path() ? path.parent_path() : filesystem::path(".");
    filesystem::directory_iterator entry(directory, error);
    for (; !error && entry != filesystem::directory_iterator(); entry.increment(error))
    {
        std::string const name = entry->path().filename().string();
        if (name != path.filename().string() && boost::algorithm::iequals(name, path.filename().string()))
        {
            return name;
        }
    }
    return {};
}

/// Looks for a file that a text names, and remembers where.
class Search
{
public:
    bool tries(AxFilename const& file)
    {
        if (identity.look(file) && access(file.native().c_str(), R_OK) == 0)
        {
            found = file;
            return true;
        }
        if (myError == ENOENT && errno != ENOTDIR)
        {
            myError = errno;
        }
        myTried.push_back(file);
        return false;
    }
    AxDiagnostic failure(AxFilename const& file, AxFilenameList const& files, AxlObj const* place) const
    {
        std::string text = "cannot read \"" + file.string().string() + "\": " + std::strerror(myError);
        if (file.isRelative())
        {
            text += "; looked in ";
            for (AxFilename const& directory : files)
            {
                text += (directory.isNull() ? std::string(".") : directory.native()) + ", ";
            }
            text += "the working directory";
        }
        AxDiagnostic fault = faultAt(place, AxSeverity::Warning, "missing-file", std::move(text));
        for (AxFilename const& name : myTried)
        {
            std::string const other = myError == ENOENT ? nameInOtherCase(name) : std::string();
            if (!other.empty())
            {
                fault.hint = "there is \"" + other + '"';
                break;
            }
        }
        return fault;
    }

    AxFilename found;
    AxFileIdentity identity;

private:
    std::vector<AxFilename> myTried;
    int myError = ENOENT;
};

bool find(Search& search, std::vector<AxFilename> const& names, AxFilenameList const& files)
{
    for (AxFilename const& name : names)
    {
        if (name.isRelative())
        {
            for (AxFilename const& directory : files)
            {
                if (!directory.isNull() && search.tries(directory.combine(name)))
                {
                    return true;
                }
            }
        }
        if (search.tries(name))
        {
            return true;
        }
    }
    return false;
}

} // namespace

void AxReaderWriterFile::Content::giveWay(AxReaderWriterFile const& member, AxlObj const* place) const
{
    bool const wasGiven = object->flag(Specified) && !object->flag(FileBacked);
    if (!wasGiven || !isEnabled || member.filename().isNull())
    {
        return;
    }
    AxSymbolString const keyword = object->AxReaderWriter::name();
    AxDiagnostics::report(
        faultAt(place, AxSeverity::Warning, "file-and-inline",
                '"' + keyword.string().string() + "\" is given in the text and by a file; the file counts"));
    AxReaderWriter* const record = AxReadFrame::innermost ? &AxReadFrame::innermost->record : nullptr;
    if (record && record->registryIfAny() && record->registryIfAny()->find(keyword) == object)
    {
        std::string text = object->writtenText();
        text.erase(text.find_last_not_of('\n') + 1);
        record->keepItem(keyword, std::move(text));
    }
}

bool AxReaderWriterFile::load(AxFilenameList const& files, AxBindingsList const& bindings)
{
    return axGuarded(
        "read-failed", myFilename, false,
        [&] { return contentEnabled() && !myFilename.isNull() && loadFrom(AxlObj::nilCell(), files, bindings); });
}

bool AxReaderWriterFile::loadFrom(AxlObj const* place, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxReaderWriter& object = *myContent->object;
    bool isRead = false;
    myContent->found = AxFilename();
    try
    {
        object.reset();
        isRead = readFile(place, files, bindings);
    }
    catch (std::exception const& error)
    {
        axReportException("read-failed", AxFilename(), &error);
    }
    catch (...)
    {
        axReportException("read-failed", AxFilename(), nullptr);
    }
    object.setFlag(Specified, false);
    updateBacking();
    myContent->takeMark();
    return isRead;
}

bool AxReaderWriterFile::readFile(AxlObj const* place, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxFilename const file(AxRwVariableBindings::expand(myFilename.view(), bindings));
    Search search;
    if (!find(search, candidates(file), files))
    {
        AxDiagnostics::report(search.failure(file, files, place));
        return false;
    }
    if (AxFileChain::holds(search.identity))
    {
        AxDiagnostics::report(
            faultAt(place, AxSeverity::Error, "file-cycle",
                    "a file that names itself is not read again: " + AxFileChain::path(search.found)));
        return false;
    }
    if (AxFileChain::isFull())
    {
        if (AxFileChain::isFirstRefusal())
        {
            AxDiagnostics::report(faultAt(place, AxSeverity::Error, "file-chain-limit",
                                          "too many files name each other: " + AxFileChain::path(search.found)));
        }
        return false;
    }
    std::string const namedIn = AxSourceScope::currentFile().native();
    AxFileChain const chain(search.found, search.identity);
    AxSourceScope const source(search.found);
    AxlReadResult read;
    try
    {
        if (!axReadFileCells(search.found, search.identity, read))
        {
            AxDiagnostic fault = faultAt(place, AxSeverity::Warning, "missing-file",
                                         "cannot read \"" + file.string().string() + "\": " + std::strerror(errno));
            fault.file = namedIn;
            AxDiagnostics::report(std::move(fault));
            return false;
        }
    }
    catch (AxlSyntaxError const& error)
    {
        axReportParseFailure(search.found.native(), error.diagnostic());
        return false;
    }
    myContent->found = search.found;
    if (read.expr->isEof())
    {
        AxDiagnostic empty = faultAt(read.expr.get(), AxSeverity::Error, "empty-text",
                                     "expected a list (name item...), found the end of the text");
        empty.line = 1;
        empty.column = 1;
        axReportParseFailure(search.found.native(), std::move(empty));
        return false;
    }
    AxFilenameList directories = files;
    directories.push_front(search.found.directory());
    if (read.unclosed)
    {
        axReportParseFailure(search.found.native(), read.fault().diagnostic());
        read.settleCutOff();
    }
    myContent->object->getSelf(read.expr, directories, bindings);
    return !read.unclosed && !myContent->object->invalid();
}

std::vector<AxFilename> AxReaderWriterFile::candidates(AxFilename const& file) const
{
    return {file};
}
