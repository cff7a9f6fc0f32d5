#include "AxEnvXMLWriter.h"

#include <cstring>

#include "AxDiagnostic.h"
#include "AxReplaceFile.h"
#include "AxXmlPrinter.h"

namespace
{
void reportFailure(char const* code, std::string text, std::string file)
{
    AxDiagnostic finding;
    finding.code = code;
    finding.file = std::move(file);
    finding.text = std::move(text);
    AxDiagnostics::report(std::move(finding));
}

bool print(AxEnvironmentPtr const& env, unsigned indentation, std::string& out, std::string const& file)
{
    out.clear();
    try
    {
        if (env == nullptr || env->root() == nullptr)
        {
            reportFailure("xml-unwritable", "there is no root element to write", file);
            return false;
        }
        AxXmlPrinter(out, indentation, file).print(*env);
        return true;
    }
    catch (std::exception const& error)
    {
        reportFailure("xml-unwritable", error.what(), file);
    }
    out.clear();
    return false;
}
} // namespace

bool AxEnvXMLWriter::writeText(AxEnvironmentPtr const& env, std::string& out) const
{
    return print(env, myIndentation, out, {});
}

bool AxEnvXMLWriter::writeFile(AxEnvironmentPtr const& env, AxFilename const& file) const
{
    std::string text;
    if (!print(env, myIndentation, text, file.string().string()))
    {
        return false;
    }
    int error = 0;
    if (axReplaceFile(file, text, error))
    {
        return true;
    }
    reportFailure("unwritable-file", std::string("cannot be written: ") + std::strerror(error), file.string().string());
    return false;
}
