#include "AxParameterDbFiles.h"

#include "AxLimits.h"
#include "AxReaderWriterFile.h"
#include "AxRwVariableBindings.h"

#include <cstdarg>
#include <filesystem>
#include <sys/stat.h>

AxFilePtr axOpenToRead(AxFilename const& file)
{
    AxFilename found;
    return AxFilePtr(AxReaderWriterFile::loadHighestPriorityFile(file, {}, found, true));
}

AxFilename axDirectoryOf(AxFilename const& file)
{
    std::error_code ignored;
    std::string directory = std::filesystem::absolute(file.native(), ignored).parent_path().string();
    while (!directory.empty() && AxFilename::isSeparator(directory.back()))
    {
        directory.pop_back();
    }
    return AxFilename(directory);
}

AxFilename axPathOf(AxFilename const& file)
{
    std::string const& text = file.string().string();
    std::size_t const last = text.find_last_of("/\\");
    return last == std::string::npos || last == 0 ? AxFilename() : AxFilename(text.substr(0, last + 1));
}

AxFilename axPlaceBelow(AxFilename const& directory, AxFilename const& file)
{
    using std::filesystem::path;
    path const place =
        path(file.native()).lexically_normal().lexically_relative(path(directory.native()).lexically_normal());
    return place.empty() || *place.begin() == ".." ? AxFilename() : AxFilename(place.string());
}

void axBindDatabaseDirectory(AxRwVariableBindings& bindings, AxFilename const& directory)
{
    bindings.setString("opd-dir", directory.string());
}

std::string axFormat(char const* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    int const length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

AxDiagnostic axFault(char const* code, AxFilename const& file, std::string text, AxSeverity severity)
{
    AxDiagnostic fault;
    fault.severity = severity;
    fault.code = code;
    fault.file = file.native();
    fault.text = std::move(text);
    return fault;
}

AxDiagnostic axUnreadable(AxFilename const& file, std::FILE* open)
{
    struct stat status
    {
    };
    int const descriptor = open ? fileno(open) : -1;
    bool const isTooLarge =
        descriptor >= 0 && fstat(descriptor, &status) == 0 && status.st_size > static_cast<off_t>(axLimits.fileSize);
    return axFault("unreadable-file", file,
                   isTooLarge ? "the file is larger than " + std::to_string(axLimits.fileSize) + " bytes"
                              : std::string("the file cannot be read"));
}

AxDiagnostic axFaultAt(char const* code, unsigned line, unsigned column, std::string text, AxSeverity severity)
{
    AxDiagnostic fault = axFault(code, AxSourceScope::currentFile(), std::move(text), severity);
    fault.line = line;
    fault.column = column;
    return fault;
}
