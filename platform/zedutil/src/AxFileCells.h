#pragma once

#include "AxDiagnostic.h"
#include "AxFilename.h"
#include "AxlReadResult.h"

#include <cstdint>
#include <string>
#include <sys/types.h>

/// Which file, and which state of it, a name stands for now.
struct AxFileIdentity
{
    /// False, with errno set, when there is no regular file of that name.
    bool look(AxFilename const& file);
    bool isSameFile(AxFileIdentity const& other) const { return device == other.device && inode == other.inode; }
    friend bool operator==(AxFileIdentity const&, AxFileIdentity const&) = default;

    dev_t device = 0;
    ino_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modified = 0; ///< nanoseconds
    std::int64_t changed = 0;  ///< nanoseconds; the status, so that a copied time stamp does not hide a new content
};

/// Takes the first expression of a file, the end-of-file cell when it has none. Cells are kept, so that a file that
/// many records name is tokenised once; a file that changed, or that was written too short a time ago to tell, is read
/// again. Text that follows the expression is reported; what a text that ends too early leaves open is not, and its
/// cells are not kept.
///
/// False, with errno set, for a file that cannot be read. Throws AxlSyntaxError.
bool axReadFileCells(AxFilename const& file, AxFileIdentity const& identity, AxlReadResult& read);

void axForgetFileCells();

/// Reports why a file that a record names could not be parsed.
void axReportParseFailure(std::string const& file, AxDiagnostic fault);
