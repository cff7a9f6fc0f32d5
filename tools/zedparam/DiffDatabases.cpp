#include "DiffDatabases.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <tuple>

#include "AxReadWholeFile.h"
#include "AxReaderWriterFile.h"
#include "AxRecursiveReaderWriterIterator.h"
#include "AxZedObjectParameters.h"
#include "Database.h"
#include "Progress.h"
#include "ReadFile.h"
#include "RecordText.h"
#include "Tables.h"

namespace
{
namespace fs = std::filesystem;

/// A record that is held only while it is compared.
class BorrowedRecord
{
public:
    BorrowedRecord(Database const& database, AxSxpParameterDbEntry& entry)
        : myEntry(entry), myRecord(database.getParameters(&entry))
    {
    }
    BorrowedRecord(BorrowedRecord const&) = delete;
    BorrowedRecord& operator=(BorrowedRecord const&) = delete;
    ~BorrowedRecord()
    {
        myEntry.setParameters(nullptr);
        delete myRecord;
    }

    AxZedObjectParameters* get() const { return myRecord; }
    Document document() const
    {
        return {.kind = Document::Kind::Record,
                .file = Database::fileOf(myEntry),
                .object = myRecord,
                .element = myRecord->objectNode()};
    }

private:
    AxSxpParameterDbEntry& myEntry;
    AxZedObjectParameters* myRecord;
};

/// One of the two databases, with what of its files is compared in the end.
struct Side
{
    std::string file;
    std::unique_ptr<Database> database{};
    fs::path directory{};
    std::vector<AxSxpParameterDbEntry*> entries{};
    std::map<std::string, std::string> files{}; ///< where they are, by their names as seen from the database
    std::vector<std::string> tables{};          ///< names of those that stand beside the database
};

auto keyOf(AxSxpParameterDbEntry const* entry)
{
    return std::tuple(entry->objectType(), entry->typeIsMatchType());
}

bool open(Side& side)
{
    side.database = Database::open(side.file);
    if (side.database == nullptr)
    {
        return false;
    }
    side.directory = fs::weakly_canonical(side.database->directory());
    side.entries = side.database->entries();
    std::ranges::sort(side.entries, {}, keyOf);
    return true;
}

std::string addFile(Side& side, fs::path const& file)
{
    fs::path const whole = fs::weakly_canonical(file);
    fs::path const below = whole.lexically_relative(side.directory);
    bool const isBelow = !below.empty() && *below.begin() != "..";
    std::string name = (isBelow ? below : whole).string();
    side.files.emplace(name, whole.string());
    return name;
}

void addFilesOf(Side& side, AxZedObjectParameters& record, std::set<std::string>& seen)
{
    AxRecursiveReaderWriterIterator all(*record.registry());
    for (AxReaderWriter const* rw = all.first(); rw != nullptr; rw = all.next())
    {
        auto const* file = dynamic_cast<AxReaderWriterFile const*>(rw);
        if (file != nullptr && !file->foundFilename().isNull() && seen.insert(file->foundFilename().native()).second)
        {
            addFile(side, file->foundFilename().native());
        }
    }
}

/// What a database file says, without files of records and without the entries that are only a type and a file.
Item headOf(std::string const& file)
{
    std::string text;
    readFile(file, text);
    TextTree const tree(std::move(text));
    Item head{.text = tree.root().head(), .place = tree.root().place()};
    for (TextItem item = tree.root().firstValue(); item; item = item.next())
    {
        if (item.head() != "parameter-files")
        {
            head.items.push_back(itemOf(item));
            continue;
        }
        Item entries{.text = item.head(), .place = item.place()};
        for (TextItem entry = item.firstValue(); entry; entry = entry.next())
        {
            bool isMore = false;
            for (TextItem value = entry.firstValue(); value; value = value.next())
            {
                isMore = isMore || (value.head() != "object-type" && value.head() != "filename");
            }
            if (isMore)
            {
                entries.items.push_back(itemOf(entry));
                std::erase_if(entries.items.back().items, [](Item const& value) { return value.text == "filename"; });
            }
        }
        if (!entries.items.empty())
        {
            head.items.push_back(std::move(entries));
        }
    }
    return head;
}

class DatabaseDiff
{
public:
    DatabaseDiff(Side& a, Side& b, DiffOptions const& options, DiffReport& report)
        : mySides{&a, &b}, myOptions(options), myReport(report)
    {
    }

    bool run()
    {
        compareHeads();
        compareEntries();
        for (Side* side : mySides)
        {
            for (fs::path const& table : tableFiles(*side->database))
            {
                side->tables.push_back(addFile(*side, table));
            }
        }
        compareFileSets();
        return myIsComplete;
    }

private:
    /// What the database files say; of the entries only what is more than a type and a file.
    void compareHeads()
    {
        Document const documents[2] = {{.file = mySides[0]->file}, {.file = mySides[1]->file}};
        Item const heads[2] = {headOf(mySides[0]->file), headOf(mySides[1]->file)};
        myReport.add({}, documents[0], documents[1], differencesOf(heads[0], heads[1], myOptions.tolerance));
    }

    void compareEntries()
    {
        auto const& a = mySides[0]->entries;
        auto const& b = mySides[1]->entries;
        Progress progress("comparing records", std::max(a.size(), b.size()));
        for (std::size_t i = 0, j = 0; i < a.size() || j < b.size(); progress.step())
        {
            if (j == b.size() || (i < a.size() && keyOf(a[i]) < keyOf(b[j])))
            {
                addOnly(0, *a[i++]);
            }
            else if (i == a.size() || keyOf(b[j]) < keyOf(a[i]))
            {
                addOnly(1, *b[j++]);
            }
            else
            {
                compareRecords(*a[i++], *b[j++]);
            }
        }
    }

    void addOnly(int side, AxSxpParameterDbEntry const& entry)
    {
        myReport.addOnly(entry.objectType().string().string(), side, Database::fileOf(entry));
    }

    void compareRecords(AxSxpParameterDbEntry& a, AxSxpParameterDbEntry& b)
    {
        BorrowedRecord const records[2] = {{*mySides[0]->database, a}, {*mySides[1]->database, b}};
        if (records[0].get() == nullptr || records[1].get() == nullptr)
        {
            myIsComplete = false;
            return;
        }
        for (int side = 0; side < 2; ++side)
        {
            addFilesOf(*mySides[side], *records[side].get(), mySeen[side]);
        }
        if (recordText(*records[0].get()) != recordText(*records[1].get()))
        {
            compareDocuments(a.objectType().string().string(), records[0].document(), records[1].document(), myOptions,
                             myReport);
        }
    }

    /// The files that both sides have, and the tables that one has.
    void compareFileSets()
    {
        for (auto const& [name, file] : mySides[0]->files)
        {
            auto const other = mySides[1]->files.find(name);
            if (other != mySides[1]->files.end() && other->second != file && !isSameText(file, other->second))
            {
                myIsComplete = compareFiles(name, file, other->second, {}, myOptions, myReport) && myIsComplete;
            }
        }
        for (int side = 0; side < 2; ++side)
        {
            for (std::string const& table : mySides[side]->tables)
            {
                if (!mySides[1 - side]->files.contains(table))
                {
                    myReport.addOnly(table, side, mySides[side]->files[table]);
                }
            }
        }
    }

    static bool isSameText(std::string const& a, std::string const& b)
    {
        std::string texts[2];
        int error = 0;
        return axReadWholeFile(AxFilename(a), texts[0], error) && axReadWholeFile(AxFilename(b), texts[1], error) &&
               texts[0] == texts[1];
    }

    Side* mySides[2];
    std::set<std::string> mySeen[2]; // files as they were found
    DiffOptions const& myOptions;
    DiffReport& myReport;
    bool myIsComplete = true;
};
} // namespace

bool compareDatabases(std::string const& a, std::string const& b, DiffOptions const& options, DiffReport& report)
{
    Side sides[2] = {{.file = a}, {.file = b}};
    return open(sides[0]) && open(sides[1]) && DatabaseDiff(sides[0], sides[1], options, report).run();
}
