#include "AxlInputStream.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "AxExtFileInputStream.h"
#include "AxReadWholeFile.h"
#include "AxReplaceFile.h"
#include "AxlFunctions.h"

namespace
{
struct FileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

std::string pathOf(char const* name)
{
    return testing::TempDir() + name;
}
} // namespace

TEST(AxlInputStream, CountsLinesBothWays)
{
    AxlInputStream stream("ab\n\nc");
    std::string taken;
    for (int byte = stream.fgetc(); byte != AxlInputStream::endOfFile; byte = stream.fgetc())
    {
        taken += static_cast<char>(byte);
    }
    EXPECT_EQ(taken, "ab\n\nc");
    EXPECT_EQ(stream.lineCount(), 3);
    stream.ungetc('c');
    stream.ungetc('\n');
    EXPECT_EQ(stream.lineCount(), 2);
    EXPECT_EQ(stream.column(), 1U);
    stream.ungetc('\n');
    EXPECT_EQ(stream.lineCount(), 1);
    EXPECT_EQ(stream.column(), 3U);
    stream.ungetc(AxlInputStream::endOfFile);
    EXPECT_EQ(stream.peekc(), '\n');
    stream.incLineCount();
    EXPECT_EQ(stream.lineCount(), 2);
}

TEST(AxlInputStream, CountsLinesWherePlacesAreSkipped)
{
    AxlInputStream stream("a\nbc\n(d)\ne");
    stream.moveTo(4);
    stream.ungetc('c');
    EXPECT_EQ(stream.column(), 2U);
    EXPECT_EQ(stream.lineCount(), 2);
    stream.moveTo(5);
    AxlObjPtr const cell = AxcRead(stream);
    EXPECT_EQ(cell->line(), 3U);
    EXPECT_EQ(cell->column(), 1U);
    EXPECT_EQ(stream.fgetc_past_whitespace(), 'e');
    EXPECT_EQ(stream.lineCount(), 4);
    EXPECT_EQ(stream.column(), 2U);
}

TEST(AxlInputStream, SkipsBlanksAndFlushes)
{
    AxlInputStream stream(" \t\r\n\f\v\xFFrest;more");
    EXPECT_EQ(stream.fgetc_past_whitespace(), 0xFF);
    stream.flush_until(';');
    EXPECT_EQ(stream.fgetc(), 'm');
    stream.flush_until(';');
    EXPECT_EQ(stream.fgetc_past_whitespace(), AxlInputStream::endOfFile);
}

TEST(AxlFileInputStream, ReadsWhatIsLeftOfAFile)
{
    std::string const path = pathOf("rest.txt");
    std::string const text = "x(a)" + std::string(100000, ' ') + "(b)";
    int error = 0;
    ASSERT_TRUE(axReplaceFile(AxFilename(path), text, error));
    File file(std::fopen(path.c_str(), "r"));
    ASSERT_EQ(std::fgetc(file.get()), 'x');
    AxExtFileInputStream stream(file.get(), AxFilename(path));
    EXPECT_TRUE(stream.isValid());
    EXPECT_EQ(stream.filename(), AxFilename(path));
    EXPECT_EQ(stream.text(), text.substr(1));
    std::remove(path.c_str());
}

TEST(AxlFileInputStream, FailsCleanly)
{
    EXPECT_FALSE(AxlFileInputStream(nullptr).isValid());
    File directory(std::fopen(testing::TempDir().c_str(), "r"));
    AxlFileInputStream stream(directory.get());
    EXPECT_FALSE(stream.isValid());
    EXPECT_EQ(AxcRead(stream).get(), AxlObj::eofCell());
}

TEST(AxReadWholeFile, TellsWhyAFileCannotBeRead)
{
    std::string text = "old";
    int error = 0;
    EXPECT_FALSE(axReadWholeFile(AxFilename(pathOf("no-such-file")), text, error));
    EXPECT_EQ(error, ENOENT);
    EXPECT_EQ(text, "");
    EXPECT_FALSE(axReadWholeFile(AxFilename(testing::TempDir()), text, error));
    EXPECT_EQ(error, EISDIR);
    EXPECT_FALSE(axReadWholeFile(AxFilename("/dev/zero"), text, error));
    EXPECT_EQ(error, EINVAL);
}

TEST(AxReplaceFile, LeavesTheOldFileWholeOnFailure)
{
    int error = 0;
    EXPECT_FALSE(axReplaceFile(AxFilename(pathOf("no-such-directory/file")), "text", error));
    EXPECT_EQ(error, ENOENT);
    std::string const path = pathOf("replaced.txt");
    std::string text;
    for (std::string const& content : {std::string("one"), std::string(), std::string(100000, 'x')})
    {
        EXPECT_TRUE(axReplaceFile(AxFilename(path), content, error));
        EXPECT_TRUE(axReadWholeFile(AxFilename(path), text, error));
        EXPECT_EQ(text, content);
    }
    std::remove(path.c_str());
}
