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

#include "AxDiagnostic.h"
#include "AxLimits.h"
#include "AxReadWholeFile.h"
#include "AxWindows1252.h"

namespace
{
bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char one, unsigned char other) { return std::tolower(one) == std::tolower(other); });
}

/// Fills one environment from the events of one parser.
class XmlParse
{
public:
    XmlParse(AxFilename const& file, bool reports);
    AxEnvironmentPtr read(std::string_view text);

private:
    /// An element whose end has not been seen.
    struct OpenElement
    {
        AxEnvObjectPtr object;
        /// Whether it holds text that is more than layout; blanks then count too.
        bool keepsText = false;
    };

    /// One event; whatever its body throws stops the parser instead of passing through it.
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
        catch (std::exception const& error)
        {
            parse.fail("xml-error", error.what());
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

    void setHandlers();
    void place(AxEnvValue& node);
    AxEnvListPtr openList();
    void endText();
    static void dropLayout(AxEnvObject& object);
    void report(AxSeverity severity, char const* code, std::string text) const;
    void fail(char const* code, std::string text);

    struct ParserDeleter
    {
        void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
    };

    AxFilename const& myFile;
    bool myReports;
    std::unique_ptr<XML_ParserStruct, ParserDeleter> myParser;
    AxEnvironmentPtr myEnvironment = boost::make_shared<AxEnvironment>();
    std::vector<OpenElement> myOpen;
    /// Text of the value that is being gathered; null between values.
    AxEnvValuePtr myValue;
    std::string myText;
    bool myFailed = false;
};

XmlParse::XmlParse(AxFilename const& file, bool reports)
    : myFile(file), myReports(reports), myParser(XML_ParserCreate(nullptr))
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
    XML_SetEntityDeclHandler(
        parser, [](void* self, char const*, int, char const*, int, char const*, char const*, char const*, char const*)
        { static_cast<XmlParse*>(self)->fail("xml-entity", "entity declarations are not accepted"); });
    XML_SetSkippedEntityHandler(
        parser, [](void* self, char const* name, int)
        { static_cast<XmlParse*>(self)->fail("xml-entity", "entity \"" + std::string(name) + "\" is not declared"); });
    XML_SetUnknownEncodingHandler(parser, onEncoding, this);
}

AxEnvironmentPtr XmlParse::read(std::string_view text)
{
    if (text.size() > axLimits.fileSize)
    {
        fail("file-limit", "text is longer than " + std::to_string(axLimits.fileSize) + " bytes");
        return {};
    }
    XML_Status status = XML_Parse(myParser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE);
    if (status != XML_STATUS_OK)
    {
        fail("xml-syntax", XML_ErrorString(XML_GetErrorCode(myParser.get())));
    }
    return myFailed ? AxEnvironmentPtr() : myEnvironment;
}

void XmlParse::report(AxSeverity severity, char const* code, std::string text) const
{
    if (!myReports)
    {
        return;
    }
    AxDiagnostic finding;
    finding.severity = severity;
    finding.code = code;
    finding.file = myFile.string().string();
    finding.line = static_cast<unsigned>(XML_GetCurrentLineNumber(myParser.get()));
    finding.column = static_cast<unsigned>(XML_GetCurrentColumnNumber(myParser.get())) + 1;
    finding.text = std::move(text);
    AxDiagnostics::report(std::move(finding));
}

void XmlParse::fail(char const* code, std::string text)
{
    if (!myFailed)
    {
        myFailed = true;
        report(AxSeverity::Error, code, std::move(text));
        XML_StopParser(myParser.get(), XML_FALSE);
    }
}

void XmlParse::place(AxEnvValue& node)
{
    node.setPlace(static_cast<std::uint32_t>(XML_GetCurrentLineNumber(myParser.get())),
                  static_cast<std::uint32_t>(XML_GetCurrentColumnNumber(myParser.get())) + 1);
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
    for (int i = 0; i < count; i += 2)
    {
        AxEnvValuePtr value = object->setAttribute(attributes[i], attributes[i + 1]);
        if (value != nullptr)
        {
            place(*value);
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
    myText += text;
    if (myText.size() > axLimits.tokenSize)
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
    if (!isBlank(myText))
    {
        myOpen.back().keepsText = true;
    }
    myValue->setValue(AxString(std::move(myText)));
    openList()->add(myValue);
    myValue.reset();
    myText.clear();
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
    report(AxSeverity::Warning, "xml-doctype", "document type declaration \"" + std::string(name) + "\" is dropped");
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
    auto& parse = *static_cast<XmlParse*>(self);
    if (!parse.myFailed)
    {
        parse.myFailed = true;
        parse.report(AxSeverity::Error, "xml-encoding", "encoding \"" + std::string(name) + "\" is not supported");
    }
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

AxEnvironmentPtr guardedRead(std::string_view text, AxFilename const& name, bool reports)
{
    try
    {
        return XmlParse(name, reports).read(text);
    }
    catch (std::exception const& error)
    {
        if (reports)
        {
            reportFile(name, "xml-error", error.what());
        }
        return {};
    }
}
} // namespace

AxEnvironmentPtr AxEnvXMLReader::readText(std::string_view text, AxFilename const& name, bool* ok, bool reports)
{
    AxEnvironmentPtr environment = guardedRead(text, name, reports);
    if (ok != nullptr)
    {
        *ok = environment != nullptr;
    }
    return environment;
}

AxEnvironmentPtr AxEnvXMLReader::readFile(AxFilename const& file, bool* ok, bool reports)
{
    std::string text;
    int error = 0;
    if (axReadWholeFile(file, text, error))
    {
        return readText(text, file, ok, reports);
    }
    if (ok != nullptr)
    {
        *ok = false;
    }
    if (reports)
    {
        reportFile(file, "unreadable-file", std::string("cannot be read: ") + std::strerror(error));
    }
    return {};
}
