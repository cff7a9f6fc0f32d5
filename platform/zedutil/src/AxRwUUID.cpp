#include "AxRwUUID.h"

#include "AxDiagnostic.h"
#include "AxReaderWriterFactory.h"
#include "AxlObj.h"
#include "AxlPrint.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/string_generator.hpp>
#include <boost/uuid/uuid_io.hpp>
#include <exception>

static AxTypeEntry<AxRwUUID> const uUIDEntry;

static bool parse(std::string_view text, boost::uuids::uuid& value)
{
    constexpr std::size_t canonicalLength = 36;
    if (text.size() != canonicalLength)
    {
        return false;
    }
    try
    {
        value = boost::uuids::string_generator()(text.begin(), text.end());
        return true;
    }
    catch (std::exception const&)
    {
        return false;
    }
}

AxRwUUID::~AxRwUUID() = default;

AxRwUUID& AxRwUUID::operator=(boost::uuids::uuid const& value)
{
    setValue(value);
    return *this;
}

AxRwUUID& AxRwUUID::operator=(AxString const& text)
{
    boost::uuids::uuid value{};
    if (!text.isNull() && !parse(text.string(), value))
    {
        AxDiagnostic fault;
        fault.severity = AxSeverity::Warning;
        fault.code = "bad-identifier";
        fault.text = '"' + text.string() + "\" is not " + expected() + "; the null identifier is taken";
        AxDiagnostics::report(std::move(fault));
        value = boost::uuids::uuid{};
    }
    setValue(value);
    return *this;
}

void AxRwUUID::generate()
{
    assignSpecified(*this, boost::uuids::random_generator()());
}

AxString AxRwUUID::string() const
{
    return AxString(boost::uuids::to_string(myValue));
}

bool AxRwUUID::readValue(AxlObj const*& items, boost::uuids::uuid& value)
{
    boost::uuids::uuid read{};
    if (!items || !items->isPair() || !parse(items->car()->text(), read))
    {
        return false;
    }
    value = read;
    items = items->cdr();
    return true;
}

void AxRwUUID::writeValue(std::string& out, boost::uuids::uuid const& value)
{
    axAppendQuoted(out, boost::uuids::to_string(value));
}
