#include "Dot.h"

#include <cstdio>
#include <memory>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{
using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// Runs `dot -Tsvg` from one open file to another.
bool runDot(std::FILE* from, std::FILE* to)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fileno(from), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, fileno(to), STDOUT_FILENO);
    char command[] = "dot";
    char format[] = "-Tsvg";
    char* const arguments[] = {command, format, nullptr};
    pid_t process = 0;
    int const error = posix_spawnp(&process, command, &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = -1;
    return error == 0 && waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
} // namespace

bool drawDot(std::string const& graph, std::string& svg)
{
    File const input(std::tmpfile(), std::fclose);
    File const output(std::tmpfile(), std::fclose);
    if (!input || !output || std::fwrite(graph.data(), 1, graph.size(), input.get()) != graph.size() ||
        std::fflush(input.get()) != 0 || std::fseek(input.get(), 0, SEEK_SET) != 0 ||
        !runDot(input.get(), output.get()))
    {
        return false;
    }
    std::string drawn;
    char buffer[65536];
    std::fseek(output.get(), 0, SEEK_SET);
    for (std::size_t size = 0; (size = std::fread(buffer, 1, sizeof buffer, output.get())) > 0;)
    {
        drawn.append(buffer, size);
    }
    std::size_t const start = drawn.find("<svg");
    if (start == std::string::npos)
    {
        return false;
    }
    svg = drawn.substr(start);
    return true;
}
