#pragma once

#include "AxReaderWriter.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

/// A directory of its own for each test.
class Folder
{
public:
    Folder()
    {
        std::string name = ::testing::TempDir() + "zedobjparam-XXXXXX";
        myPath = ::mkdtemp(name.data());
    }
    ~Folder()
    {
        std::string const command = "rm -r '" + myPath + '\'';
        EXPECT_EQ(std::system(command.c_str()), 0);
    }
    std::string const& path() const { return myPath; }
    std::string file(std::string const& name) const { return myPath + '/' + name; }
    void make(std::string const& name) const { ::mkdir(file(name).c_str(), 0755); }
    void write(std::string const& name, std::string const& text) const { std::ofstream(file(name)) << text; }
    std::string text(std::string const& name) const
    {
        std::ifstream in(file(name));
        return {std::istreambuf_iterator<char>(in), {}};
    }
    AxFilenameList search() const { return {AxFilename(myPath)}; }

private:
    std::string myPath;
};
