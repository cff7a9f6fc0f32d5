#pragma once

#include <string>

namespace CLI
{
class App;
class Option;
} // namespace CLI

// What the command says of itself, made from the descriptions of its sub-commands and their options.

/// "ope entity json" of an option that takes one of these; empty for others.
std::string choices(CLI::Option const& option);
std::string bashCompletion(CLI::App const& app);
std::string zshCompletion(CLI::App const& app);
/// A page for man(1).
std::string manPage(CLI::App const& app);
/// The help texts of all sub-commands.
std::string helpTexts(CLI::App const& app);
