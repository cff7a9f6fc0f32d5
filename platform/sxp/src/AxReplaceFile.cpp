#include "AxReplaceFile.h"

#include "AxFileTransaction.h"

#include <cerrno>
#include <exception>

bool axReplaceFile(AxFilename const& file, std::string_view text, int& error)
{
    try
    {
        AxFileTransaction files;
        return files.stage(file, text, error) && files.commit(error);
    }
    catch (std::exception const&)
    {
        error = ENOMEM;
        return false;
    }
}
