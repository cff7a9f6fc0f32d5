#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxModelSet.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxZedObjectParametersDB.h"
#include "AxZedObjectParametersList.h"
#include "SystemCalls.h"
#include "src/paramdb/DatabaseFixture.h"

#include <cerrno>
#include <functional>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using Kind = SystemFault::Kind;
/// File names, relative to the folder of the test, and contents.
using Files = std::map<std::string, std::string>;

char const* const theHidden = ".zedobjparam-";

/// Holds what every kind of save promises against every system call that it makes.
class SaveFaults : public DatabaseFixture
{
protected:
    /// One kind of save. `begin` reads what is to be saved, changes it and answers the step that may fail.
    struct Save
    {
        Files before;
        std::function<std::function<bool()>()> begin;
        /// Whether what is there now is read without a fault.
        std::function<void()> read;
        /// Whether the save may succeed without one of the files.
        bool goesOnWithout = false;
    };

    /// Empties the folder but for `files`.
    void lay(Files const& files)
    {
        for (auto const& old : boost::filesystem::directory_iterator(directory()))
        {
            boost::filesystem::remove_all(old.path());
        }
        for (auto const& [name, text] : files)
        {
            put(name, text);
        }
    }
    Files present() const
    {
        Files found;
        std::istringstream names(files());
        for (std::string name; names >> name;)
        {
            found[name] = get(name);
        }
        return found;
    }

    /// Saves under `fault`; whether it was said to succeed, or false when the process ended there.
    bool saved(Save const& save, SystemFault const& fault)
    {
        lay(save.before);
        std::function<bool()> const step = save.begin();
        bool const isEnding = fault.kind == Kind::Kill || fault.kind == Kind::KillInWrite;
        pid_t const child = isEnding ? fork() : 0;
        if (child > 0)
        {
            int status = 0;
            waitpid(child, &status, 0);
            EXPECT_TRUE(WIFEXITED(status));
            return WEXITSTATUS(status) == 0;
        }
        SystemFaultScope const scope(fault);
        bool const isSaved = step();
        if (isEnding)
        {
            _exit(isSaved ? 0 : 1);
        }
        return isSaved;
    }

    void expectWhole(Save const& save, Files const& after, SystemFault const& fault, bool isSaved)
    {
        // What fails after a save has succeeded is the removal of old files.
        bool const isHiddenAllowed = fault.kind == Kind::Fail ? isSaved : fault.kind != Kind::ShortWrite;
        Files shown;
        for (auto const& [name, text] : present())
        {
            if (name.find(theHidden) == std::string::npos)
            {
                shown[name] = text;
                auto const before = save.before.find(name);
                auto const wanted = after.find(name);
                EXPECT_TRUE((before != save.before.end() && before->second == text) ||
                            (wanted != after.end() && wanted->second == text))
                    << name << " is\n"
                    << text;
            }
            else
            {
                EXPECT_TRUE(isHiddenAllowed) << name;
            }
        }
        for (auto const& [name, text] : save.before)
        {
            EXPECT_TRUE(shown.contains(name)) << name;
        }
        if (fault.kind == Kind::Fail && !isSaved)
        {
            EXPECT_EQ(shown, save.before);
        }
        if (isSaved && !save.goesOnWithout)
        {
            EXPECT_EQ(shown, after);
        }
        save.read();
    }

    void holdUnderEveryFault(Save const& save)
    {
        ASSERT_TRUE(saved(save, {}));
        Files const after = present();
        ASSERT_NE(after, save.before);
        int const calls = SystemFaultScope::calls();
        EXPECT_GE(calls, 8);
        for (SystemFault fault :
             {SystemFault{Kind::Fail, 0, EIO}, SystemFault{Kind::FailOnwards, 0, ENOSPC}, SystemFault{Kind::ShortWrite},
              SystemFault{Kind::Kill}, SystemFault{Kind::KillInWrite}})
        {
            // Another one in so many of each kind.
            for (fault.n = 1 + static_cast<int>(fault.kind) % ZEDOBJPARAM_SHARE; fault.n <= calls;
                 fault.n += ZEDOBJPARAM_SHARE)
            {
                SCOPED_TRACE("kind " + std::to_string(static_cast<int>(fault.kind)) + ", call " +
                             std::to_string(fault.n) + " of " + std::to_string(calls));
                expectWhole(save, after, fault, saved(save, fault));
                if (HasFailure())
                {
                    return;
                }
            }
        }
    }

    /// Three records, saved once, so that their files have the names that the next save gives them.
    Files savedDatabase()
    {
        put("force/m1.ope", record("(mass 1.0)"));
        put("force/m2.ope", record("(mass 1.0)"));
        put("force.opd", database(entry(theTank, "force/m1.ope") + entry(theTanks, "force/m2.ope")));
        AxSxpParameterDb first;
        first.init();
        EXPECT_TRUE(first.loadAll(AxFilename(path("force.opd"))) && first.save(AxFilename(path("force.opd"))));
        boost::filesystem::remove(path("force/m1.ope"));
        boost::filesystem::remove(path("force/m2.ope"));
        return present();
    }
    std::shared_ptr<AxSxpParameterDb> edited() const
    {
        auto forces = std::make_shared<AxSxpParameterDb>();
        forces->init();
        EXPECT_TRUE(forces->loadAll(AxFilename(path("force.opd"))));
        for (AxObjectType const& type : {tank, tanks})
        {
            forces->lookup(type)->setMass(2.0);
        }
        return forces;
    }
    void expectDatabase(std::string const& name) const
    {
        AxSxpParameterDb forces;
        forces.init();
        ASSERT_TRUE(forces.load(AxFilename(path(name))));
        for (AxObjectType const& type : {tank, tanks})
        {
            AxZedObjectParameters const* const found = forces.lookup(type);
            ASSERT_TRUE(found);
            EXPECT_TRUE(found->mass() == 1.0 || found->mass() == 2.0) << found->mass();
        }
    }
};
} // namespace

TEST_F(SaveFaults, DatabaseInItsPlace)
{
    Save save;
    save.before = savedDatabase();
    save.goesOnWithout = true;
    save.before["extra.hit"] = "(old)\n";
    put("notes/extra.hit", "(new)\n");
    save.begin = [this]
    {
        std::shared_ptr<AxSxpParameterDb> const forces = edited();
        forces->addDependentParameterFileToCopyPair(put("notes/extra.hit", "(new)\n"), AxFilename(path("extra.hit")));
        return [this, forces] { return forces->save(AxFilename(path("force.opd"))); };
    };
    save.before["notes/extra.hit"] = "(new)\n";
    save.read = [this] { expectDatabase("force.opd"); };
    holdUnderEveryFault(save);
}

TEST_F(SaveFaults, DatabaseElsewhere)
{
    Save save;
    save.before = savedDatabase();
    save.begin = [this]
    {
        std::shared_ptr<AxSxpParameterDb> const forces = edited();
        boost::filesystem::create_directories(path("new"));
        return [this, forces] { return forces->save(AxFilename(path("new/force.opd"))); };
    };
    save.goesOnWithout = true;
    save.read = [this]
    {
        expectDatabase("force.opd");
        if (boost::filesystem::exists(path("new/force.opd")))
        {
            AxSxpParameterDb there;
            there.init();
            EXPECT_TRUE(there.load(AxFilename(path("new/force.opd"))));
        }
    };
    holdUnderEveryFault(save);
}

TEST_F(SaveFaults, FilesThatStandAlone)
{
    std::string const record = "(m1 (parameter-type \"zed-object-param\") (mass 1.0))\n";
    std::string const tables = "(hits (entity-range (entity-type 1 1 -1 -1 -1 -1 -1) (range-determinant (range-list "
                               "(range-entry 500.0 (hit 0.5))))))\n";
    std::vector<Save> saves(5);
    saves[0].before = {{"a.ope", record}};
    saves[0].begin = [this, record]
    {
        std::shared_ptr<AxZedObjectParameters> const read(created(record));
        read->setMass(2.0);
        return [this, read] { return db.dbWriter()->writeParameterFile(AxFilename(path("a.ope")), read.get()); };
    };
    saves[0].read = [this] { EXPECT_TRUE(created(get("a.ope"))); };
    saves[1].before = {{"a.hit", tables}};
    saves[1].begin = [this]
    {
        struct File
        {
            AxRangeProbabilityTable table{"hits", nullptr};
            AxReaderWriterFile file{"hit-file", nullptr};
        };
        auto const read = std::make_shared<File>();
        read->file.setContent(&read->table);
        read->file = AxFilename(path("a.hit"));
        EXPECT_TRUE(read->file.load({}, {}));
        read->table.removeAndDeleteAll();
        return [read] { return read->file.save(); };
    };
    saves[1].read = [this]
    {
        AxRangeProbabilityTable table{"hits", nullptr};
        EXPECT_TRUE(readFrom(table, get("a.hit")));
    };
    saves[2].before = {{"a.models", "(model-set (comment \"old\"))\n"}};
    saves[2].begin = [this]
    {
        auto const models = std::make_shared<AxModelSet>("model-set", nullptr);
        return [this, models] { return models->save(AxFilename(path("a.models"))); };
    };
    saves[2].read = [this]
    {
        AxModelSet models("model-set", nullptr);
        EXPECT_TRUE(models.load(AxFilename(path("a.models"))));
    };
    saves[3].before = {{"a.params", "(sim-object-parameters)\n"}};
    saves[3].begin = [this]
    {
        auto const all = std::make_shared<AxZedObjectParametersDB>("parameter-list", nullptr);
        all->init();
        all->addParameters(made("zed-object-param").release());
        return [this, all] { return all->writeParameterFile(path("a.params").c_str()); };
    };
    saves[3].read = [this]
    {
        AxZedObjectParametersDB all("parameter-list", nullptr);
        all.init();
        EXPECT_TRUE(all.readParameterFile(path("a.params").c_str()));
    };
    saves[4].before = {{"a.entity", "<old/>\n"}};
    saves[4].begin = [this]
    {
        AxEnvironmentPtr const tree = AxEnvXMLReader().readText("<new><part/></new>", AxFilename("new"));
        EXPECT_TRUE(tree);
        return [this, tree] { return AxEnvXMLWriter().writeFile(tree, AxFilename(path("a.entity"))); };
    };
    saves[4].read = [this] { EXPECT_TRUE(AxEnvXMLReader().readFile(AxFilename(path("a.entity")))); };
    for (Save const& save : saves)
    {
        SCOPED_TRACE(save.before.begin()->first);
        holdUnderEveryFault(save);
    }
}

TEST_F(SaveFaults, TablesThatAreCopiedOntoThemselvesStay)
{
    struct Database : AxSxpParameterDb
    {
        using AxSxpParameterDb::copyDependentParameterDirectories;
    };
    for (char const* table : {"ammoselect/a.asl", "damage/a.dmg", "detection/a.det", "hit/a.hit", "formation/a.frm"})
    {
        put(table, "(table)\n");
    }
    Database forces;
    EXPECT_TRUE(forces.copyDependentParameterDirectories(AxFilename(directory()), AxFilename(directory())));
    EXPECT_EQ(get("hit/a.hit"), "(table)\n");
    EXPECT_TRUE(forces.copyDependentParameterDirectories(AxFilename(directory()), AxFilename(path("new"))));
    EXPECT_EQ(get("new/formation/a.frm"), "(table)\n");
}

TEST_F(SaveFaults, APlaceThatCannotBeWrittenIsToldOnce)
{
    lay(savedDatabase());
    std::shared_ptr<AxSxpParameterDb> const forces = edited();
    put("blocked", "");
    warned();
    EXPECT_FALSE(forces->save(AxFilename(path("blocked/force.opd"))));
    EXPECT_EQ(warned(), path("blocked/force") +
                            ": error: Not a directory [cannot-create]\nCould not open parameter file " +
                            path("blocked/force/m1_1_1_1_225_1_1_-1_-1.ope") +
                            " for writing\nCould not open parameter file " + path("blocked/force.opd") +
                            " for writing\nCan't write top-level parameter database file " + path("blocked/force.opd") +
                            "\nError writing parameter database file " + path("blocked/force.opd") + '\n');
}
