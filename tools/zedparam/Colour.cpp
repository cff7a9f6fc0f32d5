#include "Colour.h"

#include <cstdlib>
#include <unistd.h>

bool mayColour()
{
    char const* const noColour = std::getenv("NO_COLOR");
    return isatty(STDOUT_FILENO) != 0 && (noColour == nullptr || *noColour == '\0');
}

std::string coloured(std::string const& text, Colour colour)
{
    static bool const may = mayColour();
    return may ? "\033[" + std::to_string(static_cast<int>(colour)) + "m" + text + "\033[0m" : text;
}
