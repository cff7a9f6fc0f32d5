#include "Commands.h"

#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

#include "CommandLine.h"
#include "Completion.h"
#include "Findings.h"

void addCompleteCommand(CommandLine& line)
{
    auto const words = std::make_shared<std::vector<std::string>>();
    line.add("complete", "What may stand in place of the last of the words of a command line; for shells.",
             [&line, words]
             {
                 Findings const silence(Findings::Print::Never);
                 // Nothing may come between what a user is writing.
                 if (int const nowhere = open("/dev/null", O_WRONLY); nowhere >= 0)
                 {
                     dup2(nowhere, STDERR_FILENO);
                     close(nowhere);
                 }
                 for (std::string const& word : completionsOf(line.app(), *words))
                 {
                     std::printf("%s\n", word.c_str());
                 }
                 return Fine;
             })
        .required("WORD", *words, "Those behind the command's name, behind --; the last is completed and may be empty")
        .hidden();
}
