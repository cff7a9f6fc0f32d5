#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <iterator>
#include <string_view>
#include <utility>

#include "AxNearest.h"
#include "AxNumberText.h"
#include "Commands.h"
#include "ShownPath.h"

namespace
{
bool isOption(std::string const& word)
{
    return word.size() > 1 && word.starts_with('-');
}
} // namespace

Command::Command(CLI::App& app, std::function<int()> run, int& exitCode) : myArguments(&app)
{
    app.callback(
        [this, run = std::move(run), &exitCode]
        {
            if (myReplaced != nullptr && myReplaced->empty() && myReplacement->empty())
            {
                throw CLI::RequiredError(myReplaced->get_name());
            }
            exitCode = run();
        });
}

template <class Value>
Command& Command::required(char const* name, Value& value, char const* help)
{
    optional(name, value, help);
    myLast->required();
    return *this;
}

template <class Value>
Command& Command::optional(char const* name, Value& value, char const* help)
{
    myLast = myArguments->add_option(name, value, help);
    return *this;
}

template Command& Command::required(char const*, std::string&, char const*);
template Command& Command::required(char const*, std::vector<std::string>&, char const*);
template Command& Command::optional(char const*, std::string&, char const*);
template Command& Command::optional(char const*, std::vector<std::string>&, char const*);
template Command& Command::optional(char const*, std::size_t&, char const*);
template Command& Command::optional(char const*, double&, char const*);

Command& Command::flag(char const* name, bool& value, char const* help)
{
    myLast = myArguments->add_flag(name, value, help);
    return *this;
}

Command& Command::oneFlagOf(char const* group)
{
    myArguments = myArguments->add_option_group(group)->require_option(1);
    return *this;
}

Command& Command::hidden()
{
    myArguments->group("");
    return *this;
}

Command& Command::footer(char const* text)
{
    myArguments->footer(text);
    return *this;
}

Command& Command::oneOf(std::vector<std::string> words)
{
    myLast->check(CLI::IsMember(std::move(words)));
    return *this;
}

Command& Command::between(int least, int most)
{
    myLast->check(CLI::Range(least, most));
    return *this;
}

Command& Command::notNegative()
{
    myLast->check(CLI::Validator(
        [](std::string const& value)
        {
            double number = 0.0;
            bool const isFine = axParseReal(value, number) && number >= 0.0;
            return isFine ? std::string() : "expected a number, 0 or more, found \"" + value + "\"";
        },
        "NONNEGATIVE"));
    return *this;
}

Command& Command::atMost(int count)
{
    myLast->expected(1, count);
    return *this;
}

Command& Command::check(std::function<std::string(std::string const& value)> fault)
{
    myLast->check(std::move(fault));
    return *this;
}

Command& Command::showDefault()
{
    myLast->capture_default_str();
    return *this;
}

Command& Command::excludes(char const* argument)
{
    myLast->excludes(myArguments->get_option(argument));
    return *this;
}

Command& Command::insteadOf(char const* argument)
{
    myReplaced = myArguments->get_option(argument);
    myReplacement = myLast;
    return excludes(argument);
}

CommandLine::CommandLine(char const* name, char const* help, char const* version, char const* footer)
    : myApp(std::make_unique<CLI::App>(help, name))
{
    myApp->set_version_flag("--version", version);
    myApp->require_subcommand(1);
    myApp->failure_message([](CLI::App const* app, CLI::Error const& error)
                           { return "zedparam: " + CLI::FailureMessage::simple(app, error); });
    myApp->footer(footer);
}

CommandLine::~CommandLine() = default;

Command& CommandLine::add(char const* name, char const* help, std::function<int()> run)
{
    myCommands.push_back(std::make_unique<Command>(*myApp->add_subcommand(name, help), std::move(run), myExitCode));
    return *myCommands.back();
}

/// False, after a line on the standard error stream, when the first word is no sub-command.
bool CommandLine::hasCommand(std::string const& word) const
{
    std::vector<std::string_view> known;
    for (CLI::App const* command : myApp->get_subcommands([](CLI::App const*) { return true; }))
    {
        known.push_back(command->get_name());
    }
    if (isOption(word) || std::ranges::find(known, word) != known.end())
    {
        return true;
    }
    std::fprintf(stderr, "zedparam: unknown command \"%s\"", word.c_str());
    if (std::string_view const nearest = axNearest(word, known); !nearest.empty())
    {
        std::fprintf(stderr, "; did you mean \"%s\"?", std::string(nearest).c_str());
    }
    std::fprintf(stderr, "\nzedparam --help lists the commands\n");
    return false;
}

void CommandLine::tellUnexpected() const
{
    std::vector<std::string> const words = myApp->remaining(true);
    auto const misspelt = std::ranges::find_if(words, isOption);
    std::string const& word = misspelt != words.end() ? *misspelt : words.front();
    std::vector<CLI::App*> const commands = myApp->get_subcommands();
    CLI::App const& command = commands.empty() ? *myApp : *commands.front();
    std::vector<std::string> names;
    for (CLI::Option const* option : command.get_options())
    {
        std::ranges::transform(option->get_lnames(), std::back_inserter(names),
                               [](std::string const& name) { return "--" + name; });
    }
    std::vector<std::string_view> const known(names.begin(), names.end());
    std::string_view const nearest = isOption(word) ? axNearest(word, known) : std::string_view();
    std::string const name = commands.empty() ? std::string() : command.get_name() + " ";
    std::string const fault = commands.empty() ? "unknown" : name + "takes no";
    std::fprintf(stderr, "zedparam: %s \"%s\"", fault.c_str(), word.c_str());
    if (!nearest.empty())
    {
        std::fprintf(stderr, "; did you mean \"%s\"?", std::string(nearest).c_str());
    }
    std::fprintf(stderr, "\nzedparam %s--help tells what it takes\n", name.c_str());
}

int CommandLine::run(int argc, char** argv)
{
    if (argc > 1 && !hasCommand(argv[1]))
    {
        return CouldNotRun;
    }
    std::for_each(argv + 1, argv + argc, rememberGivenPath);
    try
    {
        myApp->parse(argc, argv);
    }
    catch (CLI::Success const& help)
    {
        return myApp->exit(help);
    }
    catch (CLI::ExtrasError const&)
    {
        tellUnexpected();
        return CouldNotRun;
    }
    catch (CLI::ParseError const& error)
    {
        // An argument is missing as well where an option is misspelt and its value, or a command, was taken for it.
        std::ranges::any_of(myApp->remaining(true), isOption) ? tellUnexpected() : void(myApp->exit(error));
        return CouldNotRun;
    }
    return myExitCode;
}
