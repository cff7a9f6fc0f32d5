#include "Commands.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>

#include "Manual.h"

void addManualCommand(CLI::App& app, int& exitCode)
{
    auto const form = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("manual", "This command's help texts, as other programs want them.");
    command->add_option("FORM", *form, "Completion for bash or zsh, a man page, or all help texts as Markdown")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "man", "markdown"}));
    command->callback(
        [&app, form, &exitCode]
        {
            std::string const text = *form == "bash"  ? bashCompletion(app)
                                     : *form == "zsh" ? zshCompletion(app)
                                     : *form == "man" ? manPage(app, app.version())
                                                      : helpTexts(app);
            bool const isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
            exitCode = isWritten ? Fine : CouldNotRun;
        });
}
