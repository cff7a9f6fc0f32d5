#pragma once

/// What the reader does with text that breaks the grammar.
struct AxlReadOptions
{
    /// Closes lists that are still open at the end of the text and answers what was read; otherwise that is an error.
    bool closeOpenLists = false;
};
