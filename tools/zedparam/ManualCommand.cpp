#include "Commands.h"

#include <cstdio>
#include <memory>

#include "CommandLine.h"
#include "Manual.h"

void addManualCommand(CommandLine& line)
{
    auto const form = std::make_shared<std::string>();
    line.add("manual", "This command's help texts, as other programs want them.",
             [&line, form]
             {
                 CLI::App const& app = line.app();
                 std::string const text = *form == "bash"  ? bashCompletion(app)
                                          : *form == "zsh" ? zshCompletion(app)
                                          : *form == "man" ? manPage(app)
                                                           : helpTexts(app);
                 bool const isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
                 return isWritten ? Fine : CouldNotRun;
             })
        .required("FORM", *form, "Completion for bash or zsh, a man page, or all help texts as Markdown")
        .oneOf({"bash", "zsh", "man", "markdown"});
}
