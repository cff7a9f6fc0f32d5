#pragma once

#include <string>
#include <vector>

namespace CLI
{
class App;
}

/// What may stand in place of the last of the words behind the command's name, each as that whole word: keywords,
/// types, object types of a database, paths of a file. One that ends in "/" or "=" goes on. Empty where files are
/// meant, and when a file that tells cannot be read.
std::vector<std::string> completionsOf(CLI::App const& app, std::vector<std::string> const& words);
