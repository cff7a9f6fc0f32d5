#pragma once

#include <string>
#include <string_view>

#include "AxEnvironment.h"

/// Appends an environment as XML. Throws std::runtime_error for what XML cannot hold.
///
/// An element with text among its children is written without any layout, since every blank inside would be read as
/// text. Where all its texts are blank or empty, an empty CDATA section in front tells that they are meant.
class AxXmlPrinter
{
public:
    /// `file` is named in reports.
    AxXmlPrinter(std::string& out, unsigned indentation, std::string const& file)
        : myOut(out), myIndentation(indentation), myFile(file)
    {
    }

    void print(AxEnvironment const& env);

private:
    void node(AxEnvValue const& value, unsigned level, bool inlined);
    void element(AxEnvList const& list, unsigned level, bool inlined);
    void content(AxEnvList const& list, std::string const& tag, unsigned level, bool inlined);
    void comment(AxEnvObject const& object);
    void instruction(AxEnvObject const& object);
    void attribute(std::string const& name, AxString const& value);
    void newLine(unsigned level);

    void appendName(std::string const& name);
    void appendEscaped(std::string_view text, bool inAttribute, std::string const& owner);
    /// `text` in UTF-8; throws unless XML can hold all of it.
    std::string checked(std::string_view text, std::string const& owner);

    std::string& myOut;
    unsigned myIndentation;
    std::string const& myFile;
};
