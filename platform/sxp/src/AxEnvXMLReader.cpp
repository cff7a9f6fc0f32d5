#include "AxEnvXMLReader.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <boost/make_shared.hpp>
#include <expat.h>

#include "AxCharacters.h"
#include "AxDiagnostic.h"
#include "AxFileBytes.h"
#include "AxGuarded.h"
#include "AxLimits.h"
#include "AxReadWholeFile.h"
#include "AxWindows1252.h"
#include "AxXmlDocument.h"

namespace
{
bool equalsIgnoringCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char one, unsigned char other) { return std::tolower(one) == std::tolower(other); });
}

/// Lines and columns of byte offsets, fast when they are asked for in rising order. The parser itself could tell them,
/// but not those of attributes, and counts characters where everything else here counts bytes.
class TextPlaces
{
public:
    struct Place
    {
        std::uint32_t line;
        std::uint32_t column;
    };

    explicit TextPlaces(std::string_view text) : myText(text) { restart(); }

    Place at(std::size_t offset)
    {
        offset = std::min(offset, myText.size());
        if (offset < myLineBegin)
        {
            restart();
        }
        while (myLineEnd < offset)
        {
            ++myLine;
            myLineBegin = myLineEnd + 1;
            myLineEnd = std::min(myText.find('\n', myLineBegin), myText.size());
        }
        return {myLine, static_cast<std::uint32_t>(offset - std::min(offset, myLineBegin)) + 1};
    }

private:
    void restart()
    {
        myLine = 1;
        myLineBegin = myText.starts_with("\xEF\xBB\xBF") ? 3 : 0;
        myLineEnd = std::min(myText.find('\n'), myText.size());
    }

    std::string_view myText;
    std::uint32_t myLine; // that of the offset asked for last
    std::size_t myLineBegin;
    std::size_t myLineEnd;
};

/// The offsets, from the "<", at which the attributes of a start tag begin.
class AttributeOffsets
{
public:
    explicit AttributeOffsets(std::string_view tag) : myTag(tag), myAt(tag.find_first_of(theBlanks)) {}

    std::size_t next()
    {
        std::size_t const begin = std::min(myTag.find_first_not_of(theBlanks, myAt), myTag.size());
        std::size_t const quote = myTag.find_first_of("\"'", begin);
        std::size_t const end = quote < myTag.size() ? myTag.find(myTag[quote], quote + 1) : quote;
        myAt = end < myTag.size() ? end + 1 : end;
        return begin;
    }

private:
    static constexpr char const* theBlanks = " \t\r\n";
    std::string_view myTag;
    std::size_t myAt;
};

/// Whether bytes 0 to 127 of the text are ASCII and stand for themselves.
bool isByteWise(std::string_view text)
{
    return text.substr(0, 4).find('\0') == std::string_view::npos && !text.starts_with("\xFE\xFF") &&
           !text.starts_with("\xFF\xFE");
}

/// Fills one environment from the events of one parser.
class XmlParse
{
public:
    XmlParse(std::string_view text, AxFilename const& file, bool reports);
    AxEnvironmentPtr read();

private:
    /// An element whose end has not been seen.
    struct OpenElement
    {
        AxEnvObjectPtr object;
        /// Whether it holds text that is more than layout; blanks then count too.
        bool keepsText = false;
    };

    /// One event; whatever its body throws stops the parser instead of passing through it, and is thrown behind it.
    template <void (XmlParse::*body)(char const*, char const*)>
    static void guarded(void* self, char const* first, char const* second)
    {
        run(self, [&](XmlParse& parse) { (parse.*body)(first, second); });
    }

    /// After a failure the parser may still tell of an event or two; they are of no interest.
    template <typename Body>
    static void run(void* self, Body body)
    {
        auto& parse = *static_cast<XmlParse*>(self);
        if (parse.myFailed)
        {
            return;
        }
        try
        {
            body(parse);
        }
        catch (...)
        {
            parse.myThrown = std::current_exception();
            parse.stop();
        }
    }

    static void onStart(void* self, char const* tag, char const** attributes);
    static void onCharacters(void* self, char const* text, int length);
    static int onEncoding(void* self, char const* name, XML_Encoding* encoding);

    void start(char const* tag, char const** attributes);
    void end(char const*, char const*);
    void characters(std::string_view text);
    void beginCdata(char const*, char const*);
    void comment(char const* text, char const*);
    void instruction(char const* target, char const* data);
    void doctype(char const* name, char const*);
    void endDoctype(char const*, char const*);

    void setHandlers();
    TextPlaces::Place currentPlace() const;
    std::size_t currentOffset() const;
    void place(AxEnvValue& node);
    AxEnvListPtr openList();
    void endText();
    static void dropLayout(AxEnvObject& object);
    AxDiagnostic findingHere(AxSeverity severity, char const* code, std::string text) const;
    void report(AxSeverity severity, char const* code, std::string text) const;
    void fail(char const* code, std::string text);
    void stop();

    struct ParserDeleter
    {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    std::string_view myText;
    bool myIsByteWise;
    mutable TextPlaces myPlaces;
    AxFilename const& myFile;
    bool myReports;
    std::unique_ptr<XML_ParserStruct, ParserDeleter> myParser;
    AxEnvironmentPtr myEnvironment = boost::make_shared<AxEnvironment>();
    std::vector<OpenElement> myOpen;
    /// Text of the value that is being gathered; null between values.
    AxEnvValuePtr myValue;
    std::string myGathered;
    bool myFailed = false;
    std::exception_ptr myThrown;
    AxDiagnostic myDoctype; ///< told at the end of the declaration
};

XmlParse::XmlParse(std::string_view text, AxFilename const& file, bool reports)
    : myText(text),
      myIsByteWise(isByteWise(text)),
      myPlaces(text),
      myFile(file),
      myReports(reports),
      myParser(XML_ParserCreate(nullptr))
{
    if (myParser == nullptr)
    {
        throw std::bad_alloc();
    }
    setHandlers();
}

void XmlParse::setHandlers()
{
    XML_Parser parser = myParser.get();
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, onStart, [](void* self, char const* tag) { guarded<&XmlParse::end>(self, tag, ""); });
    XML_SetCharacterDataHandler(parser, onCharacters);
    XML_SetCdataSectionHandler(
        parser, [](void* self) { guarded<&XmlParse::beginCdata>(self, "", ""); }, nullptr);
    XML_SetCommentHandler(parser, [](void* self, char const* text) { guarded<&XmlParse::comment>(self, text, ""); });
    XML_SetProcessingInstructionHandler(parser, guarded<&XmlParse::instruction>);
    XML_SetStartDoctypeDeclHandler(parser, [](void* self, char const* name, char const*, char const*, int)
                                   { guarded<&XmlParse::doctype>(self, name, ""); });
    XML_SetEndDoctypeDeclHandler(parser, [](void* self) { guarded<&XmlParse::endDoctype>(self, "", ""); });
    XML_SetEntityDeclHandler(
        parser, [](void* self, char const*, int, char const*, int, char const*, char const*, char const*, char const*)
        { run(self, [](XmlParse& parse) { parse.fail("xml-entity", "entity declarations are not accepted"); }); });
    XML_SetSkippedEntityHandler(
        parser,
        [](void* self, char const* name, int)
        {
            run(self, [name](XmlParse& parse)
                { parse.fail("xml-entity", "entity \"" + std::string(name) + "\" is not declared"); });
        });
    XML_SetUnknownEncodingHandler(parser, onEncoding, this);
}

AxEnvironmentPtr XmlParse::read()
{
    if (myText.size() > axLimits.fileSize)
    {
        fail("file-limit", "text is longer than " + std::to_string(axLimits.fileSize) + " bytes");
        return {};
    }
    XML_Status status = XML_Parse(myParser.get(), myText.data(), static_cast<int>(myText.size()), XML_TRUE);
    if (myThrown)
    {
        std::rethrow_exception(myThrown);
    }
    if (status != XML_STATUS_OK)
    {
        if (XML_GetErrorCode(myParser.get()) == XML_ERROR_NO_MEMORY)
        {
            throw std::bad_alloc();
        }
        fail("xml-syntax", XML_ErrorString(XML_GetErrorCode(myParser.get())));
    }
    return myFailed ? AxEnvironmentPtr() : myEnvironment;
}

AxDiagnostic XmlParse::findingHere(AxSeverity severity, char const* code, std::string text) const
{
    AxDiagnostic finding;
    finding.severity = severity;
    finding.code = code;
    finding.file = myFile.string().string();
    TextPlaces::Place const found = currentPlace();
    finding.line = found.line;
    finding.column = found.column;
    finding.text = std::move(text);
    return finding;
}

void XmlParse::report(AxSeverity severity, char const* code, std::string text) const
{
    if (myReports)
    {
        AxDiagnostics::report(findingHere(severity, code, std::move(text)));
    }
}

void XmlParse::fail(char const* code, std::string text)
{
    if (!myFailed)
    {
        stop();
        report(AxSeverity::Error, code, std::move(text));
    }
}

void XmlParse::stop()
{
    myFailed = true;
    XML_StopParser(myParser.get(), XML_FALSE);
}

TextPlaces::Place XmlParse::currentPlace() const
{
    if (myIsByteWise)
    {
        return myPlaces.at(currentOffset());
    }
    // In UTF-16 the byte-order mark counts as a character.
    auto const line = static_cast<std::uint32_t>(XML_GetCurrentLineNumber(myParser.get()));
    auto const column = static_cast<std::uint32_t>(XML_GetCurrentColumnNumber(myParser.get()));
    return {line, line == 1 && column > 0 ? column : column + 1};
}

std::size_t XmlParse::currentOffset() const
{
    return static_cast<std::size_t>(std::max<XML_Index>(XML_GetCurrentByteIndex(myParser.get()), 0));
}

void XmlParse::place(AxEnvValue& node)
{
    TextPlaces::Place const place = currentPlace();
    node.setPlace(place.line, place.column);
}

AxEnvListPtr XmlParse::openList()
{
    if (!myOpen.empty())
    {
        return myOpen.back().object;
    }
    return myEnvironment->root() == nullptr ? myEnvironment->prologue() : myEnvironment->epilogue();
}

void XmlParse::onStart(void* self, char const* tag, char const** attributes)
{
    run(self, [&](XmlParse& parse) { parse.start(tag, attributes); });
}

void XmlParse::start(char const* tag, char const** attributes)
{
    endText();
    if (myOpen.size() == axLimits.xmlDepth)
    {
        fail("nesting-limit", "elements are nested deeper than " + std::to_string(axLimits.xmlDepth));
        return;
    }
    auto object = boost::make_shared<AxEnvObject>(AxString(tag));
    place(*object);
    // Only what stands in the tag itself: defaults come from the declaration that is dropped.
    int count = XML_GetSpecifiedAttributeCount(myParser.get());
    if (count / 2 > static_cast<int>(axLimits.xmlAttributes))
    {
        fail("attribute-limit", "element has more than " + std::to_string(axLimits.xmlAttributes) + " attributes");
        return;
    }
    std::size_t const begin = currentOffset();
    auto const length = static_cast<std::size_t>(XML_GetCurrentByteCount(myParser.get()));
    AttributeOffsets offsets(myText.substr(std::min(begin, myText.size()), length));
    for (int i = 0; i < count; i += 2)
    {
        AxEnvValuePtr value = object->appendAttribute(attributes[i], attributes[i + 1]);
        std::size_t const offset = begin + offsets.next();
        if (value != nullptr)
        {
            TextPlaces::Place const found = myIsByteWise ? myPlaces.at(offset) : currentPlace();
            value->setPlace(found.line, found.column);
        }
    }
    if (myOpen.empty())
    {
        myEnvironment->setRoot(object);
    }
    else
    {
        openList()->add(object);
    }
    myOpen.push_back({object});
}

void XmlParse::end(char const*, char const*)
{
    endText();
    OpenElement element = std::move(myOpen.back());
    myOpen.pop_back();
    if (!element.keepsText)
    {
        dropLayout(*element.object);
    }
}

void XmlParse::dropLayout(AxEnvObject& object)
{
    std::vector<AxEnvValuePtr> children = object.children();
    bool any = std::any_of(children.begin(), children.end(), [](auto const& child) { return !child->isList(); });
    if (!any)
    {
        return;
    }
    object.removeAll();
    for (AxEnvValuePtr const& child : children)
    {
        if (child->isList())
        {
            object.add(child);
        }
    }
}

void XmlParse::onCharacters(void* self, char const* text, int length)
{
    run(self, [&](XmlParse& parse) { parse.characters({text, static_cast<std::size_t>(length)}); });
}

void XmlParse::characters(std::string_view text)
{
    if (myValue == nullptr)
    {
        myValue = boost::make_shared<AxEnvValue>();
        place(*myValue);
    }
    myGathered += text;
    if (myGathered.size() > axLimits.tokenSize)
    {
        fail("token-limit", "text is longer than " + std::to_string(axLimits.tokenSize) + " bytes");
    }
}

void XmlParse::beginCdata(char const*, char const*)
{
    characters({});
    myOpen.back().keepsText = true;
}

void XmlParse::endText()
{
    if (myValue == nullptr)
    {
        return;
    }
    if (!axIsBlank(myGathered))
    {
        myOpen.back().keepsText = true;
    }
    myValue->setValue(AxString(std::move(myGathered)));
    openList()->add(myValue);
    myValue.reset();
    myGathered.clear();
}

void XmlParse::comment(char const* text, char const*)
{
    endText();
    auto object = boost::make_shared<AxEnvObject>(AxEnvObject::commentType());
    place(*object);
    object->add(boost::make_shared<AxEnvValue>(AxString(text)));
    openList()->add(object);
}

void XmlParse::instruction(char const* target, char const* data)
{
    endText();
    auto object = boost::make_shared<AxEnvObject>(AxString(target), AxEnvObject::instructionType());
    place(*object);
    object->add(boost::make_shared<AxEnvValue>(AxString(data)));
    openList()->add(object);
}

void XmlParse::doctype(char const* name, char const*)
{
    myDoctype = findingHere(AxSeverity::Warning, "xml-doctype",
                            "document type declaration \"" + std::string(name) + "\" is dropped");
}

/// Told when nothing in it was refused, which would be the one thing to tell.
void XmlParse::endDoctype(char const*, char const*)
{
    if (myReports && !myFailed)
    {
        AxDiagnostics::report(std::move(myDoctype));
    }
}

int XmlParse::onEncoding(void* self, char const* name, XML_Encoding* encoding)
{
    if (equalsIgnoringCase(name, "windows-1252") || equalsIgnoringCase(name, "cp1252"))
    {
        for (unsigned byte = 0; byte < 256; ++byte)
        {
            encoding->map[byte] = axWindows1252(static_cast<unsigned char>(byte));
        }
        encoding->data = nullptr;
        encoding->convert = nullptr;
        encoding->release = nullptr;
        return XML_STATUS_OK;
    }
    run(self, [name](XmlParse& parse)
        { parse.fail("xml-encoding", "encoding \"" + std::string(name) + "\" is not supported"); });
    return XML_STATUS_ERROR;
}

void reportFile(AxFilename const& file, char const* code, std::string text)
{
    AxDiagnostic finding;
    finding.code = code;
    finding.file = file.string().string();
    finding.text = std::move(text);
    AxDiagnostics::report(std::move(finding));
}

/// Most documents are plain and need no parser.
AxEnvironmentPtr parsed(std::string&& text, AxFilename const& name, bool reports)
{
    AxXmlDocument::Ptr const plain = AxXmlDocument::scanned(std::move(text));
    return plain ? AxXmlDocument::environment(plain) : XmlParse(text, name, reports).read();
}

template <typename Read>
AxEnvironmentPtr guarded(AxFilename const& name, bool reports, bool* ok, Read read)
{
    AxEnvironmentPtr environment;
    try
    {
        environment = read();
    }
    catch (std::exception const& error)
    {
        if (reports)
        {
            axReportException("xml-error", name, &error);
        }
    }
    if (ok != nullptr)
    {
        *ok = environment != nullptr;
    }
    return environment;
}
} // namespace

AxEnvironmentPtr AxEnvXMLReader::readText(std::string_view text, AxFilename const& name, bool* ok, bool reports)
{
    return guarded(name, reports, ok, [&] { return parsed(std::string(text), name, reports); });
}

AxEnvironmentPtr AxEnvXMLReader::readOpenFile(std::FILE* file, AxFilename const& name, bool reports)
{
    return guarded(name, reports, nullptr,
                   [&]
                   {
                       std::string text;
                       // That reading failed says nothing of the reason.
                       return axReadRest(file, text) ? parsed(std::move(text), name, reports)
                                                     : readFile(name, nullptr, reports);
                   });
}

AxEnvironmentPtr AxEnvXMLReader::readFile(AxFilename const& file, bool* ok, bool reports)
{
    return guarded(file, reports, ok,
                   [&]
                   {
                       std::string text;
                       int error = 0;
                       if (axReadWholeFile(file, text, error))
                       {
                           return parsed(std::move(text), file, reports);
                       }
                       if (reports)
                       {
                           reportFile(file, "unreadable-file", std::string("cannot be read: ") + std::strerror(error));
                       }
                       return AxEnvironmentPtr();
                   });
}
