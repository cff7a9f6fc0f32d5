#pragma once

#include <gtest/gtest.h>
#include <string>

/// The text after an edit, "PATH=VALUE" or "-PATH"; the code of the fault when it was refused.
template <class Editor>
std::string edited(Editor& editor, std::string const& text, std::string const& edit)
{
    std::size_t const equals = edit.find('=');
    bool const isDone = edit.starts_with('-') ? editor.unset(edit.substr(1))
                                              : editor.set(edit.substr(0, equals), edit.substr(equals + 1));
    EXPECT_TRUE(isDone || editor.text() == text);
    EXPECT_EQ(editor.changes().empty(), editor.text() == text);
    return isDone ? editor.text() : editor.fault().code;
}
