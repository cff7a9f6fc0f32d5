#include "OpenEditor.h"

#include <cstdio>

#include "Database.h"
#include "ReadContext.h"
#include "TextEditor.h"
#include "XmlEditor.h"
#include "XmlLayout.h"

OpenEditor::OpenEditor(std::string const& file, std::string const& text, std::string const& database,
                       std::string const& object, bool force)
{
    if (isXml(text))
    {
        myDatabase = databaseFor(file, database);
        if (myDatabase != nullptr)
        {
            myContext = std::make_unique<ReadContext>(file, *myDatabase);
            myEditor = std::make_unique<XmlEditor>(file, text, object, *myContext, force);
        }
        return;
    }
    TextTree const tree(text);
    if (!tree.isReadable() || !tree.root())
    {
        AxDiagnostic fault{.code = "empty-file", .line = 1, .column = 1, .text = "the file holds nothing to change"};
        fault = tree.isReadable() ? fault : tree.faults().front().diagnostic();
        fault.file = file;
        std::fprintf(stderr, "%s\n", fault.format().c_str());
        return;
    }
    myReading = TextReading::open(file, database);
    if (myReading != nullptr)
    {
        myEditor = std::make_unique<TextEditor>(file, text, *myReading, force);
    }
}

OpenEditor::~OpenEditor() = default;
