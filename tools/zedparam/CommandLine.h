#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace CLI
{
class App;
class Option;
} // namespace CLI

/// A sub-command and its arguments, described in the order in which its help text lists them. This is all that the
/// commands see of the parser of the command line, whose headers take longer to compile than all else in them.
class Command
{
public:
    /// `run` answers what the process ends with, which goes to `exitCode`.
    Command(CLI::App& app, std::function<int()> run, int& exitCode);

    /// An argument that must be given: at its place, or behind its name when that begins with a hyphen. `value` is a
    /// text or a list of texts, and must live until the command has run.
    template <class Value>
    Command& required(char const* name, Value& value, char const* help);
    /// An argument that may be given; numbers, too. What is not given leaves its value as it is.
    template <class Value>
    Command& optional(char const* name, Value& value, char const* help);
    Command& flag(char const* name, bool& value, char const* help);
    /// Of the flags that follow, one must be given.
    Command& oneFlagOf(char const* group);
    /// No help text lists the command.
    Command& hidden();
    /// Stands below the arguments in the help text.
    Command& footer(char const* text);

    // Of the argument described last:

    Command& oneOf(std::vector<std::string> words);
    Command& between(int least, int most);
    Command& notNegative();
    /// How many values it takes, when these are texts.
    Command& atMost(int count);
    /// `fault` answers what is wrong with a value; empty when it is right.
    Command& check(std::function<std::string(std::string const& value)> fault);
    Command& showDefault();
    Command& excludes(char const* argument);
    /// It excludes that argument, and one of the two must be given.
    Command& insteadOf(char const* argument);

private:
    CLI::App* myArguments;
    CLI::Option* myLast = nullptr;
    CLI::Option* myReplaced = nullptr;
    CLI::Option* myReplacement = nullptr;
};

/// The command line of the process: its sub-commands, of which one runs.
class CommandLine
{
public:
    CommandLine(char const* name, char const* help, char const* version, char const* footer);
    CommandLine(CommandLine const&) = delete;
    CommandLine& operator=(CommandLine const&) = delete;
    ~CommandLine();

    Command& add(char const* name, char const* help, std::function<int()> run);
    /// Answers what the process ends with, after a line on the standard error stream when no command could run.
    int run(int argc, char** argv);

    CLI::App const& app() const { return *myApp; }

private:
    bool hasCommand(std::string const& word) const;
    void tellUnexpected() const;

    std::unique_ptr<CLI::App> myApp;
    std::vector<std::unique_ptr<Command>> myCommands;
    int myExitCode = 0;
};
