#include "Codes.h"

#include <cstdio>

#include "Json.h"

namespace
{
constexpr auto error = AxSeverity::Error;
constexpr auto warning = AxSeverity::Warning;
constexpr auto info = AxSeverity::Info;
constexpr auto reading = Code::From::Reading;
constexpr auto checking = Code::From::Checking;
constexpr auto writing = Code::From::Writing;
constexpr auto machine = Code::From::Machine;
constexpr auto host = Code::From::Host;

constexpr Code theCodes[] = {
    {"add-failed", error, machine, "There is no memory for an entry that is added."},
    {"attribute-limit", error, reading, "An XML element has more attributes than are read."},
    {"bad-identifier", warning, host, "A text given as an identifier is none; the null identifier is taken."},
    {"bad-name", warning, reading, "A list begins with something else than a name."},
    {"bad-step", warning, checking, "A table of evenly spaced values has no step above 0 and counts as empty."},
    {"cannot-create", error, writing, "A directory cannot be made."},
    {"cannot-open", error, reading, "The file of an entry, or the file asked for, cannot be opened."},
    {"cannot-write", error, writing, "A file cannot be written; the old one stays."},
    {"comment-lost", error, writing, "A part is not taken out of a file, for a comment in it would be lost."},
    {"content-not-saved", warning, host,
     "A table or system that was changed has a file of its own; that is not saved."},
    {"control-byte", error, reading, "A control byte stands outside of a string."},
    {"creation-failed", error, machine, "An element of a known type could not be made."},
    {"dangling-connection", warning, checking, "A connection names a component or system that is not there."},
    {"dangling-name", warning, writing, "The file of a record that was not loaded is not found from the new place."},
    {"data-root-dropped", info, writing,
     "The data root is left out, for records from below it were saved as text, or entries removed or replaced."},
    {"duplicate-data", warning, reading, "A name stands in both parameter-data and state-data."},
    {"empty-file", error, reading, "The file holds nothing but blanks and comments."},
    {"empty-table", warning, checking, "A range list, a list of coefficients or a surface is empty and never answers."},
    {"empty-text", error, reading, "A file that another one names holds nothing."},
    {"entry-held", error, host, "An entry that is in a database already is added."},
    {"extra-value", warning, reading, "More values than the keyword takes; the first count."},
    {"file-and-inline", warning, reading, "A table or system is given in the text and by a file; the file counts."},
    {"file-chain-limit", error, reading, "Too many files name each other."},
    {"file-cycle", error, reading, "A file names itself, directly or through others."},
    {"file-limit", error, machine, "A file is longer than is read."},
    {"hidden-entry", warning, checking, "An entry can never answer: others answer first, or no object has its type."},
    {"incomplete-variable", error, reading, "A variable of an entity file has no name or no value."},
    {"init-failed", error, machine, "A database could not be made ready for want of memory."},
    {"invalid-record", error, host, "A record of a class of the host says that it is not complete."},
    {"list-changed", error, host, "Entries came or went while all were being loaded or saved."},
    {"lookup-failed", error, machine, "A look-up came to an end for want of memory."},
    {"missing-endpoint", warning, reading, "A connection has no source or no destination."},
    {"missing-file", warning, reading, "A file that a record, system or table names cannot be read."},
    {"missing-key", warning, checking, "An element of a table lacks the type or munition that it is asked by."},
    {"missing-outcome", warning, checking, "A row lacks an outcome of its neighbours, which counts as 0 there."},
    {"nesting-limit", error, reading, "Lists or elements are nested too deep."},
    {"newer-version", warning, reading, "The database is of a newer version than this one."},
    {"no-categories", error, machine,
     "The categories of a model set could not be brought together for want of memory."},
    {"no-element", error, reading, "An entity file has no object of the type of its entry."},
    {"no-file", error, host, "A group of objects is to be saved and has no file."},
    {"no-filename", error, machine, "There is no memory for the file name of an entry."},
    {"no-group", error, reading, "A group file does not hold a group."},
    {"no-list", error, writing, "A value is to be set within something that is no list of items."},
    {"no-object", error, writing, "A file holds no object, or several of which none is named."},
    {"no-object-type", warning, reading, "An object has no type, so that nothing finds it."},
    {"no-parameter-type", error, reading, "A record does not say which type of record it is."},
    {"no-path", error, writing, "A path of keywords leads nowhere in the file."},
    {"no-platform", error, reading, "An object of an entity file has no element \"platform\"."},
    {"no-probabilities", error, machine, "A table could not answer for want of memory."},
    {"no-value", error, writing, "A path of keywords leads to something that is not one value."},
    {"no-version", warning, reading, "The database has no version and counts as older than 100."},
    {"not-a-database", error, reading, "A file that is given as a database is of another kind."},
    {"not-a-list", error, reading, "A list was expected."},
    {"not-a-variable", warning, reading, "An item of variable-bindings is no (name value...)."},
    {"not-an-element", error, host, "A record is to be read from a node that is no element."},
    {"not-an-item", warning, reading, "An item of a record or list is no (keyword value)."},
    {"not-copied", warning, writing, "A file outside the database's directory is not copied."},
    {"not-indexed", error, machine,
     "A model is found by a walk, since there was no memory for its place in the index."},
    {"not-utf8", warning, writing, "Text that is not UTF-8 is taken for windows-1252."},
    {"null-entry", error, host, "No entry is given to be added."},
    {"null-parameters", error, host, "No record is given to be added."},
    {"number-range", error, reading, "A number is beyond the range of its kind."},
    {"older-version", warning, writing, "An entry of an older database loses its base directory by the save."},
    {"other-type", error, host, "A record is read into one of another type."},
    {"other-warning", warning, reading, "A warning of the library that has no kind of its own."},
    {"out-of-order", warning, checking, "Rows or angles of a table do not ascend."},
    {"out-of-range", warning, checking,
     "A number lies outside the range of its keyword, a probability outside 0 to 1."},
    {"parameter-name-taken", warning, reading, "A parameter of a system has the name of another member."},
    {"read-failed", error, machine, "Reading came to an end that nobody foresaw, such as for want of memory."},
    {"record-loading", error, host, "A record is asked for while it is being read."},
    {"repeated-element", warning, reading, "An element that counts once stands twice; the first counts."},
    {"repeated-keyword", warning, reading, "A keyword is given again; the later value counts."},
    {"repeated-name", warning, checking,
     "Two elements of a list have one name; the later takes the earlier one's place."},
    {"repeated-outcome", warning, checking, "A row tells an outcome twice; the first answers."},
    {"repeated-range", warning, checking, "Two rows have one range; the later counts."},
    {"repeated-surface", warning, reading, "A damage table has a surface twice; the later answers."},
    {"repeated-type", warning, reading, "Two entries have one type; only one of them answers."},
    {"replaced-row", info, reading, "A row of a table gives way to a later one of its range."},
    {"save-failed", error, machine, "A save came to an end that nobody foresaw."},
    {"save-running", error, host, "A save is begun while another is running."},
    {"stays-text", warning, writing, "XML cannot hold a record, which stays a parameter file."},
    {"stray-parenthesis", error, reading, "A \")\" closes no list."},
    {"sum-above-one", warning, checking, "The outcomes of damage at a range add up to more than 1."},
    {"text-after-end", warning, reading, "Text behind the end of a file's list is not read."},
    {"text-follows", warning, reading, "Text behind the first list of a database or record is not read."},
    {"token-limit", error, reading, "A word or string is longer than is read."},
    {"type-item-missing", error, reading, "A record or component does not begin with its type."},
    {"type-not-kept", warning, checking, "A component is written back as one of another type."},
    {"type-not-written", info, writing, "A parameter file does not tell the type of its record; a database does."},
    {"unbound-variable", warning, checking, "A variable is used and nothing binds it."},
    {"unclosed-list", error, reading, "A list is still open at the end of the text."},
    {"unclosed-string", error, reading, "A string is still open at the end of the text."},
    {"uncovered-angle", warning, checking, "A surface has no answer for angles of incidence up to 90 degrees."},
    {"unexpected-text", warning, reading, "Text stands where XML has elements; it is kept and written back."},
    {"unknown-attribute", warning, reading, "An attribute is not known where it stands; it is kept and written back."},
    {"unknown-determinant", error, reading, "A table tells its probabilities in a form that is not known."},
    {"unknown-element", warning, reading,
     "An element is not known where it stands; it is kept and written back, or read as what is expected there."},
    {"unknown-keyword", warning, reading, "A keyword is not known where it stands; it is kept and written back."},
    {"unknown-port", warning, checking, "A connection or rule names a port that the system does not have, or none."},
    {"unknown-resource", warning, checking, "A component uses a supply that neither its object nor a system has."},
    {"unknown-state", warning, reading, "An object of a group file is of no known kind."},
    {"unknown-type", error, reading, "A type of record, component, system parameter or resource is not known."},
    {"unreadable", error, writing, "A value is not set, for that would alter what stands beside it."},
    {"unreadable-directory", warning, reading, "A directory cannot be read."},
    {"unreadable-entry", error, reading, "An entry of a database has no type and is left out."},
    {"unreadable-file", error, reading, "A file was opened and cannot be read."},
    {"unreadable-variable", error, reading, "The value of a variable of an entity file cannot be read."},
    {"unused-file", warning, checking, "Nothing in the database names the file."},
    {"unused-variable", warning, checking, "A variable is bound and nothing uses it."},
    {"unwritable-file", error, host, "A file cannot be written; the old one stays."},
    {"user-extension", error, reading, "The extension of the state repository that a record names cannot be made."},
    {"utf-16", error, reading, "A text is in UTF-16, which is not read."},
    {"variable-limit", error, reading, "Variables name each other too often, or too deep."},
    {"write-failed", error, machine, "Writing came to an end that nobody foresaw."},
    {"wrong-kind", error, reading, "A value is not of the kind that its keyword takes; the default stays."},
    {"xml-doctype", warning, reading, "A document type declaration is dropped."},
    {"xml-encoding", error, reading, "An XML file is in an encoding that is not read."},
    {"xml-entity", error, reading, "An XML file declares or uses an entity of its own."},
    {"xml-error", error, machine, "Reading an XML file came to an end that nobody foresaw."},
    {"xml-syntax", error, reading, "An XML file is not well formed."},
    {"xml-unwritable", error, host, "A tree cannot be written as XML."},
};

constexpr char const* theSeverities[] = {"error", "warning", "info"};
constexpr char const* theOrigins[] = {"reading", "checking", "writing", "machine", "host"};

char const* severityOf(Code const& code)
{
    return theSeverities[static_cast<int>(code.severity)];
}

char const* originOf(Code const& code)
{
    return theOrigins[static_cast<int>(code.from)];
}
} // namespace

std::span<Code const> allCodes()
{
    return theCodes;
}

void printCodes()
{
    for (Code const& code : theCodes)
    {
        std::printf("%-22.*s%-9s%-10s%.*s\n", static_cast<int>(code.name.size()), code.name.data(), severityOf(code),
                    originOf(code), static_cast<int>(code.meaning.size()), code.meaning.data());
    }
}

void writeCodes(JsonWriter& json)
{
    json.beginArray();
    for (Code const& code : theCodes)
    {
        json.beginObject().member("code", code.name).member("severity", severityOf(code));
        json.member("from", originOf(code)).member("meaning", code.meaning).endObject();
    }
    json.endArray();
}
