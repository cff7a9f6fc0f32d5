#include "AxReaderWriterFileExtensible.h"

#include "AxRecursiveReaderWriterIterator.h"
#include "AxRwInt.h"
#include "AxRwTemplatedListPtr.h"
#include "AxRwVariableBindings.h"
#include "Folder.h"
#include "platform/zedutil/Reading.h"

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
class Row : public AxReaderWriter
{
public:
    Row(AxSymbolString name, AxReaderWriterRegistry* registry) : AxReaderWriter(name, registry) {}
    char const* readerWriterType() const override { return "Row"; }

    AxRwInt value{{"value", "", "A number."}, registry()};
};

using Rows = AxRwTemplatedListPtr<Row, 1>;

/// A member with a keyword of its own, one that is reached through its file only, and one under its file's name.
class Weapon : public AxReaderWriter
{
public:
    explicit Weapon(AxSymbolString name = {}, AxReaderWriterRegistry* registry = nullptr)
        : AxReaderWriter(name, registry)
    {
        AxReaderWriter::registry()->addContentEntry("nested", &nested);
        tableFile.setContent(&table);
        rowsFile.setContent(&rows);
        nestedFile.setContent(&nested);
    }
    Weapon& operator=(Weapon const& other)
    {
        assign(other);
        return *this;
    }
    char const* readerWriterType() const override { return "Weapon"; }

    AxReaderWriterFile tableFile{{"table-file", "", "File of the table."}, registry()};
    Rows table{{"table", "", "A table."}, registry()};
    AxReaderWriterFile rowsFile{{"rows-file", "", "File of the rows."}, registry()};
    AxReaderWriterFileExtensible nestedFile{{"nested", "", "File of another record."}, registry()};
    Rows rows{AxSymbolString("rows"), nullptr};
    Row nested{AxSymbolString("nested"), nullptr};
};

/// A record whose file holds such a record again.
class Link : public AxReaderWriter
{
public:
    explicit Link(AxSymbolString name = {}, AxReaderWriterRegistry* registry = nullptr) : AxReaderWriter(name, registry)
    {
    }
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override
    {
        next = std::make_unique<Link>("next", nullptr);
        nextFile.setContent(next.get());
        AxReaderWriter::getSelf(expression, files, bindings);
    }
    using AxReaderWriter::getSelf;
    char const* readerWriterType() const override { return "Link"; }

    AxReaderWriterFile nextFile{{"next-file", "", "File of the next."}, registry()};
    std::unique_ptr<Link> next;
};

std::string compact(std::string const& text)
{
    std::string out;
    bool wasBlank = false;
    for (char const byte : text)
    {
        bool const isBlank = byte == ' ' || byte == '\n';
        if (!isBlank)
        {
            out += wasBlank ? " " : "";
            out += byte;
        }
        wasBlank = isBlank;
    }
    return out;
}

/// Makes a file old enough to be kept.
void settle(std::string const& file)
{
    timespec const times[2] = {{std::time(nullptr) - 10, 0}, {std::time(nullptr) - 10, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}
} // namespace

TEST(AxReaderWriterFile, ReadsTheContentAndWritesTheNameOnly)
{
    Folder const folder;
    folder.make("hit");
    folder.write("hit/a.hit", "(table (r (value 1)) (s (value 2)))");
    ReportedFindings findings;
    Weapon gun("gun");
    readFrom(gun, "(gun (table-file \"hit\\\\a.hit\") (rows-file \"hit/a.hit\"))", {}, folder.search());
    EXPECT_EQ(findings.codes(), "");
    EXPECT_EQ(gun.table.count(), 2);
    EXPECT_EQ(gun.rows.count(), 2);
    EXPECT_FALSE(gun.table.valueSpecified());
    EXPECT_FALSE(gun.tableFile.contentChanged());
    EXPECT_EQ(gun.tableFile.foundFilename().native(), folder.file("hit/a.hit"));
    EXPECT_EQ(compact(gun.writtenText()), "(gun (table-file \"hit\\\\a.hit\") (rows-file \"hit/a.hit\"))");
    EXPECT_EQ(compact(gun.writtenText(true)),
              "(gun (table-file \"hit\\\\a.hit\") (rows-file \"hit/a.hit\") (nested (value 0)))");
}

TEST(AxReaderWriterFile, TakesInlineContentWhereItHasNoKeywordOfItsOwn)
{
    char const* const text = "(gun (table (r (value 1))) (rows-file (r (value 2)) (s)) (nested (value 3)))";
    ReportedFindings findings;
    Weapon gun("gun");
    readFrom(gun, text);
    EXPECT_EQ(findings.codes(), "");
    EXPECT_EQ(gun.nested.value.value(), 3);
    EXPECT_EQ(compact(gun.writtenText()), text);
    Weapon copy("gun");
    copy = gun;
    EXPECT_EQ(compact(copy.writtenText()), text);
    EXPECT_TRUE(copy == gun);
    copy.rows.lookup("r")->value = 9;
    EXPECT_FALSE(copy == gun);
    readFrom(gun, "(gun (table-file (r)))");
    EXPECT_EQ(findings.codes(), "wrong-kind@1:18");
}

TEST(AxReaderWriterFile, WinsOverInlineContentWhichIsKept)
{
    Folder const folder;
    folder.write("a.hit", "(table (r (value 1)))");
    for (char const* const text :
         {"(gun (table-file \"a.hit\") (table (x) (y)))", "(gun (table (x) (y)) (table-file \"a.hit\"))"})
    {
        ReportedFindings findings;
        Weapon gun("gun");
        readFrom(gun, text, {}, folder.search());
        ASSERT_EQ(findings.all.size(), 1U);
        EXPECT_EQ(findings.all[0].code, "file-and-inline");
        EXPECT_EQ(gun.table.count(), 1);
        char const* const kept = "(gun (table-file \"a.hit\") (table (x) (y)))";
        EXPECT_EQ(compact(gun.writtenText()), kept);
        Weapon again("gun");
        readFrom(again, kept, {}, folder.search());
        EXPECT_EQ(compact(again.writtenText()), kept);
    }
}

TEST(AxReaderWriterFile, ReportsAMissingFileOnceAndKeepsItsName)
{
    Folder const folder;
    folder.write("A.hit", "(table)");
    ReportedFindings findings;
    Weapon gun("gun");
    gun.table.add(new Row("old", nullptr));
    gun.table.setValueSpecified(false, false);
    readFrom(gun, "(gun\n  (table-file \"a.hit\"))", {}, folder.search());
    EXPECT_EQ(findings.codes(), "missing-file@2:15");
    EXPECT_NE(findings.all[0].text.find(folder.path()), std::string::npos);
    EXPECT_EQ(findings.all[0].hint, "there is \"A.hit\"");
    EXPECT_EQ(gun.table.count(), 0);
    EXPECT_EQ(compact(gun.writtenText()), "(gun (table-file \"a.hit\"))");
    EXPECT_FALSE(gun.tableFile.load({}, {}));
    Weapon other("gun");
    readFrom(other, "(gun (table-file \"\"))");
    EXPECT_EQ(findings.all.size(), 2U);
}

TEST(AxReaderWriterFile, PrintsTheStatedLineForTextThatCannotBeParsed)
{
    Folder const folder;
    folder.write("bad.hit", "(table\n  (r (value 1))");
    folder.write("empty.hit", "; nothing\n");
    for (char const* const name : {"bad.hit", "empty.hit"})
    {
        ReportedFindings findings;
        Weapon gun("gun");
        readFrom(gun, std::string("(gun (table-file \"") + name + "\"))", {}, folder.search());
        EXPECT_EQ(findings.warnings(), "AxReaderWriterFile::getSelf failed while parsing " + folder.file(name) + '\n');
        ASSERT_EQ(findings.all.size(), 1U);
        EXPECT_EQ(findings.all[0].file, folder.file(name));
    }
}

TEST(AxReaderWriterFile, KeepsWhatStandsInAFileThatIsCutOff)
{
    Folder const folder;
    for (char const* const end : {"", "(r", "(r (value", "(r (value 2", "\"", "(s (value \"ab", "(r (value 1)) (s"})
    {
        SCOPED_TRACE(end);
        folder.write("cut.hit", "(table\n  (r (value 1))\n" + std::string(end));
        ReportedFindings findings;
        Weapon gun("gun");
        readFrom(gun, "(gun (table-file \"cut.hit\"))", {}, folder.search());
        ASSERT_GE(gun.table.count(), 1);
        EXPECT_EQ((*gun.table.begin())->value, 1);
        EXPECT_EQ(findings.all.size(), 1U);
        EXPECT_FALSE(gun.tableFile.load(folder.search(), {}));
    }
}

TEST(AxReaderWriterFile, SearchesInOrderAndBesideTheNamingFileFirst)
{
    Folder const folder;
    folder.make("one");
    folder.make("two");
    folder.write("one/a.hit", "(next (next-file \"b.hit\"))");
    folder.write("one/b.hit", "(one)");
    folder.write("two/a.hit", "(next)");
    folder.write("two/b.hit", "(two)");
    Link link("link");
    readFrom(link, "(link (next-file \"a.hit\"))", {},
             {AxFilename(folder.file("one")), AxFilename(folder.file("two"))});
    EXPECT_EQ(link.nextFile.foundFilename().native(), folder.file("one/a.hit"));
    EXPECT_EQ(link.next->nextFile.foundFilename().native(), folder.file("one/b.hit"));
    readFrom(link, "(link (next-file \"" + folder.file("two/b.hit") + "\"))", {}, {AxFilename(folder.file("one"))});
    EXPECT_EQ(link.nextFile.foundFilename().native(), folder.file("two/b.hit"));
}

TEST(AxReaderWriterFile, ReportsACycleWithItsChain)
{
    Folder const folder;
    folder.write("a.lnk", "(a (next-file \"b.lnk\"))");
    folder.write("b.lnk", "(b\n (next-file \"a.lnk\"))");
    ReportedFindings findings;
    Link link("link");
    readFrom(link, "(link (next-file \"a.lnk\"))", {}, folder.search());
    EXPECT_EQ(findings.codes(), "file-cycle@2:13");
    std::string const a = folder.file("a.lnk");
    std::string const b = folder.file("b.lnk");
    EXPECT_NE(findings.all[0].text.find(a + " -> " + b + " -> " + a), std::string::npos);
    EXPECT_EQ(findings.all[0].file, b);
    EXPECT_FALSE(link.next->next->next->next);
}

TEST(AxReaderWriterFile, EndsAChainThatIsTooLong)
{
    Folder const folder;
    for (int i = 0; i < 40; ++i)
    {
        folder.write(std::to_string(i), "(n (next-file \"" + std::to_string(i + 1) + "\"))");
    }
    ReportedFindings findings;
    Link link("link");
    readFrom(link, "(link (next-file \"0\"))", {}, folder.search());
    EXPECT_EQ(findings.codes(), "file-chain-limit@1:15");
}

TEST(AxReaderWriterFile, SeesAChangedFileInSpiteOfTheCache)
{
    Folder const folder;
    Weapon gun("gun");
    for (int i = 1; i < 4; ++i)
    {
        folder.write("a.hit", "(table (r (value " + std::to_string(i) + ")))");
        settle(folder.file("a.hit"));
        for (int again = 0; again < 2; ++again)
        {
            readFrom(gun, "(gun (table-file \"a.hit\"))", {}, folder.search());
            EXPECT_EQ(gun.table.lookup("r")->value.value(), i);
        }
    }
    AxReaderWriterFile::clearFileCache();
    EXPECT_TRUE(gun.tableFile.load(folder.search(), {}));
}

TEST(AxReaderWriterFile, ReportsTextBehindTheExpressionWhenItIsFirstRead)
{
    Folder const folder;
    folder.write("a.hit", "(table)\n (more)");
    settle(folder.file("a.hit"));
    AxReaderWriterFile::clearFileCache();
    ReportedFindings findings;
    Weapon gun("gun");
    readFrom(gun, "(gun (table-file \"a.hit\") (rows-file \"a.hit\"))", {}, folder.search());
    EXPECT_EQ(findings.codes(), "text-after-end@2:2");
}

TEST(AxReaderWriterFile, ResolvesReferencesInItsNameWhenTheyAreKnown)
{
    Folder const folder;
    folder.write("a.hit", "(table (r))");
    AxRwVariableBindings set;
    set.setString("name", "a");
    ReportedFindings findings;
    Weapon now("gun");
    readFrom(now, "(gun (table-file \"$(name).hit\"))", {&set}, folder.search());
    EXPECT_EQ(now.table.count(), 1);
    EXPECT_EQ(now.tableFile.filename().string(), "a.hit");
    for (char const* const text : {"(gun (table-file \"$(name).hit\"))", "(gun (table-file $file))"})
    {
        Weapon later("gun");
        readFrom(later, text, {}, folder.search());
        EXPECT_EQ(later.table.count(), 0);
        set.setString("file", "a.hit");
        later.bindLocalVariables({&set});
        EXPECT_EQ(later.table.count(), 1);
        EXPECT_EQ(compact(later.writtenText()), text);
    }
    EXPECT_EQ(findings.codes(), "");
}

TEST(AxReaderWriterFile, TellsWhetherItsContentWasChanged)
{
    Folder const folder;
    folder.write("a.hit", "(table (r (value 1)))");
    Weapon gun("gun");
    readFrom(gun, "(gun (table-file \"a.hit\") (rows-file \"a.hit\"))", {}, folder.search());
    Weapon copy("gun");
    copy = gun;
    EXPECT_FALSE(copy.tableFile.contentChanged());
    EXPECT_FALSE(copy.rowsFile.contentChanged());
    EXPECT_TRUE(copy == gun);
    copy.table.lookup("r")->value = 2;
    copy.rows.lookup("r")->value = 2;
    EXPECT_TRUE(copy.tableFile.contentChanged());
    EXPECT_TRUE(copy.rowsFile.contentChanged());
    EXPECT_FALSE(copy.rowsFile == gun.rowsFile);
    ReportedFindings findings;
    std::string out;
    copy.putSelf(out, 0, false, AxFilename("m1.ope"));
    EXPECT_EQ(findings.codes(), "content-not-saved@0:0 content-not-saved@0:0");
    copy.rowsFile.clearChanged();
    EXPECT_FALSE(copy.rowsFile.contentChanged());
}

TEST(AxReaderWriterFile, ItsContentIsSeenToChangeByAnyClock)
{
    Folder const folder;
    folder.write("a.hit", "(table (r (value 1)))");
    for (bool const isReadByTheClock : {false, true})
    {
        auto const setClock = [] { AxReaderWriter::setTimeSource([] { return 0.5; }); };
        isReadByTheClock ? setClock() : void();
        Weapon gun("gun", nullptr);
        readFrom(gun, "(gun (table-file \"" + folder.file("a.hit") + "\"))");
        setClock();
        EXPECT_FALSE(gun.tableFile.contentChanged());
        gun.table.lookup("r")->value = 2;
        EXPECT_TRUE(gun.tableFile.contentChanged()) << "at " << gun.table.recordUpdateTime();
        AxReaderWriter::setTimeSource({});
    }
}

TEST(AxReaderWriterFile, BoundVariablesAreNoChangeOfItsContent)
{
    Folder const folder;
    folder.write("a.hit", "(rows (r (value $v)))");
    AxRwVariableBindings set;
    readFrom(set, "(variable-bindings (v 7))");
    for (bool const isLocal : {false, true})
    {
        Weapon gun("gun");
        readFrom(gun, "(gun (rows-file \"a.hit\"))", {}, folder.search());
        EXPECT_TRUE(gun.rowsFile.hasVariableReference());
        isLocal ? gun.rowsFile.bindLocalVariables({&set}) : gun.rowsFile.bindVariables({&set});
        EXPECT_EQ(gun.rows.lookup("r")->value.value(), 7);
        EXPECT_FALSE(gun.rowsFile.contentChanged());
        gun.rows.lookup("r")->setName("s");
        gun.rows.lookup("s")->value = 8;
        isLocal ? gun.rowsFile.bindLocalVariables({&set}) : gun.rowsFile.bindVariables({&set});
        EXPECT_TRUE(gun.rowsFile.contentChanged()) << "an edit stays one";
        gun.rowsFile.clearAllVariableReferenceFlags();
        EXPECT_FALSE(gun.rowsFile.hasVariableReference());
    }
}

TEST(AxReaderWriterFile, IsANameAloneWithoutContent)
{
    Weapon gun("gun");
    EXPECT_TRUE(gun.rowsFile.hasChild(&gun.rows));
    EXPECT_FALSE(gun.tableFile.hasChild(&gun.table)) << "which is the record's";
    EXPECT_FALSE(gun.rowsFile.hasChild(&gun.table));
    EXPECT_FALSE(gun.rowsFile.save()) << "without a name";
    AxReaderWriterFile bare("file", nullptr);
    bare = AxFilename("a.hit");
    bare.bindVariables({});
    bare.bindLocalVariables({});
    bare.clearAllVariableReferenceFlags();
    bare.clearChanged();
    EXPECT_FALSE(bare.hasChild(&gun.rows));
    EXPECT_FALSE(bare.save());
    EXPECT_FALSE(bare.contentEnabled());
    EXPECT_FALSE(bare.contentChanged());
    EXPECT_FALSE(bare.hasVariableReference());
    EXPECT_TRUE(bare.unboundVariables().empty());
    gun.rowsFile = bare;
    EXPECT_EQ(gun.rowsFile.filename(), AxFilename("a.hit"));
    EXPECT_EQ(gun.rowsFile.content(), &gun.rows);
    bare.reset();
    EXPECT_TRUE(bare.filename().isNull());
}

TEST(AxReaderWriterFile, SavesTheContentToTheFileThatWasFound)
{
    Folder const folder;
    folder.write("a.hit", "(table (r (value 1)))");
    Weapon gun("gun");
    readFrom(gun, "(gun (table-file \"a.hit\"))", {}, folder.search());
    gun.table.lookup("r")->value = 2;
    EXPECT_TRUE(gun.tableFile.save());
    EXPECT_FALSE(gun.tableFile.contentChanged());
    EXPECT_EQ(folder.text("a.hit"), "(table\n  (r\n    (value 2)))\n");
    gun.tableFile = AxFilename(folder.file("no-such-directory/a.hit"));
    ReportedFindings findings;
    EXPECT_FALSE(gun.tableFile.save());
    EXPECT_EQ(findings.codes(), "cannot-write@0:0");
}

TEST(AxReaderWriterFile, DoesNotLoseLoadedContentWhenTheNameIsCleared)
{
    Folder const folder;
    folder.write("a.hit", "(table (r (value 1)))");
    Weapon gun("gun");
    readFrom(gun, "(gun (table-file \"a.hit\") (rows-file \"a.hit\"))", {}, folder.search());
    gun.tableFile.setFilename(AxFilename());
    gun.rowsFile.setFilename(AxFilename());
    gun.tableFile.setValueSpecified(false, false);
    EXPECT_EQ(compact(gun.writtenText()), "(gun (table (r (value 1))) (rows-file (r (value 1))))");
}

TEST(AxReaderWriterFileExtensible, TriesItsExtensionsWhenTheNameIsNowhere)
{
    Folder const folder;
    folder.write("gun.sys2", "(nested (value 5))");
    folder.write("other.sys", "(nested (value 6))");
    std::list<AxString> const before = *AxReaderWriterFileExtensible::getExtensionList();
    AxReaderWriterFileExtensible::addExtension(".sys2");
    AxReaderWriterFileExtensible::addExtension("sys2");
    EXPECT_EQ(AxReaderWriterFileExtensible::getExtensionList()->size(), before.size() + 1);
    struct
    {
        char const* name;
        int value;
    } const cases[] = {{"gun.sys", 5}, {"gun", 5}, {"other.sys", 6}};
    for (auto const& one : cases)
    {
        Weapon gun("gun");
        readFrom(gun, std::string("(gun (nested \"") + one.name + "\"))", {}, folder.search());
        EXPECT_EQ(gun.nested.value.value(), one.value);
        EXPECT_EQ(compact(gun.writtenText()), std::string("(gun (nested \"") + one.name + "\"))");
    }
    *AxReaderWriterFileExtensible::getExtensionList() = before;
}

TEST(AxReaderWriterFile, FindsFilesByExtensionInTheSameOrderEverywhere)
{
    Folder const folder;
    for (char const* const directory : {"b", "b/c", "a-x", "d.entity"})
    {
        folder.make(directory);
    }
    for (char const* const name :
         {"b/c/1.entity", "b/z.entity", "a-x/q.entity", "a.entity", "a.ENTITY", "b/a.txt", ".entity"})
    {
        folder.write(name, "");
    }
    ASSERT_EQ(::symlink(folder.file("b").c_str(), folder.file("link").c_str()), 0);
    ASSERT_EQ(::symlink("gone.entity", folder.file("b/lost.entity").c_str()), 0);
    ReportedFindings findings;
    std::string found;
    for (AxFilename const& file : AxReaderWriterFile::findFilesByExtension(AxFilename(folder.path()), ".entity"))
    {
        found += file.native().substr(folder.path().size() + 1) + ' ';
    }
    EXPECT_EQ(found, ".entity a-x/q.entity a.entity b/c/1.entity b/z.entity ");
    EXPECT_TRUE(AxReaderWriterFile::findFilesByExtension(AxFilename(folder.file("none")), "entity").empty());
    EXPECT_EQ(findings.codes(), "missing-file@0:0 unreadable-directory@0:0");
}

TEST(AxReaderWriterFile, OpensTheFirstRegularFileAlongThePaths)
{
    Folder const folder;
    folder.make("one");
    folder.make("one/a");
    folder.make("two");
    folder.write("two/a", "2");
    std::vector<AxFilename> const paths{AxFilename(folder.file("one")), AxFilename(folder.file("two"))};
    AxFilename found;
    std::FILE* const opened = AxReaderWriterFile::loadHighestPriorityFile("a", paths, found, true);
    ASSERT_TRUE(opened);
    EXPECT_EQ(std::fgetc(opened), '2');
    std::fclose(opened);
    EXPECT_EQ(found.native(), folder.file("two/a"));
    EXPECT_FALSE(AxReaderWriterFile::loadHighestPriorityFile("a", {paths[0]}, found, false));
    EXPECT_EQ(errno, EISDIR);
    EXPECT_FALSE(AxReaderWriterFile::loadHighestPriorityFile("no-such-file", paths, found, true));
    EXPECT_EQ(errno, ENOENT);
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0644), 0);
    EXPECT_FALSE(AxReaderWriterFile::loadHighestPriorityFile(AxFilename(folder.file("pipe")), {}, found, true));
}

TEST(AxReaderWriterFile, ReplacesWholeFilesOrLeavesThemAlone)
{
    Folder const folder;
    folder.write("a", "old");
    EXPECT_TRUE(AxReaderWriterFile::writeWholeFile(AxFilename(folder.file("a")), "new"));
    EXPECT_EQ(folder.text("a"), "new");
    folder.make("d");
    EXPECT_FALSE(AxReaderWriterFile::writeWholeFile(AxFilename(folder.file("d")), "new"));
    EXPECT_NE(errno, 0);
}

TEST(AxRecursiveReaderWriterIterator, MeetsMembersElementsAndContentsOnce)
{
    Weapon gun("gun");
    readFrom(gun, "(gun (table (r (value 1))) (rows-file (s)))");
    AxRecursiveReaderWriterIterator walk(*gun.registry());
    std::string names;
    for (AxReaderWriter* rw = walk.first(); rw; rw = walk.next())
    {
        EXPECT_EQ(rw, walk.current());
        names += rw->name().string().string() + ' ';
    }
    EXPECT_EQ(names, "table-file table r value rows-file rows s value nested nested value ");
    EXPECT_FALSE(walk.current());
}
