#include "AxEnvXMLReader.h"
#include "AxLimits.h"
#include "AxReadWholeFile.h"
#include "AxReaderWriterFile.h"
#include "AxRwStringList.h"
#include "AxRwVariableBindings.h"
#include "src/paramdb/DatabaseFixture.h"

#include <cerrno>

namespace
{
/// What docs/reliability.md lists: accepted up to the limit, refused with one finding above it.
class Limits : public DatabaseFixture
{
protected:
    /// The code of the only finding; empty when there is none.
    std::string only()
    {
        std::string const code = findings.empty() ? "" : findings.front().code;
        EXPECT_LE(findings.size(), 1U);
        findings.clear();
        return code;
    }
    std::string ofXml(std::string const& text)
    {
        bool ok = false;
        AxEnvironmentPtr const tree = AxEnvXMLReader::readText(text, AxFilename("t.xml"), &ok);
        EXPECT_EQ(ok, tree != nullptr);
        return only();
    }
    std::string ofText(std::string const& text)
    {
        RecordPtr const read = made("zed-object-param");
        readFrom(*read, text);
        return only();
    }
    /// The display name that a record has where those variables are bound.
    std::string nameWith(std::string const& bindings, std::string const& name)
    {
        put("m1.ope", record("(display-name \"" + name + "\")"));
        put("force.opd", database(entry(theTank, "m1.ope"), "(version 101) (variable-bindings " + bindings + ")"));
        db.removeAll();
        EXPECT_TRUE(db.load(AxFilename(path("force.opd"))));
        AxZedObjectParameters const* const read = db.lookup(tank);
        return read ? read->displayName().string() : "(nothing)";
    }
};

std::string repeated(std::string const& text, std::size_t count)
{
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
    {
        all += text;
    }
    return all;
}
/// A list of its own kind; its words may stand in a file.
class Nest : public AxRwList
{
public:
    Nest(AxSymbolString name, AxReaderWriterRegistry* registry) : AxRwList(name, registry)
    {
        wordsFile.setContent(&words);
    }
    ~Nest() override { removeAndDeleteAll(); }
    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override
    {
        auto* const inner = new Nest("nest", nullptr);
        inner->getSelf(item, files, bindings);
        add(inner);
        return item;
    }
    Nest& innermost() { return isEmpty() ? *this : static_cast<Nest*>(firstElement())->innermost(); }

    AxReaderWriterFile wordsFile{"words-file", registry()};
    AxRwStringList words{"words", registry()};
};
} // namespace

TEST_F(Limits, NestingOfLists)
{
    for (auto const& [depth, code] : {std::pair(axLimits.cellNesting - 1, ""), std::pair(axLimits.cellNesting, ""),
                                      std::pair(axLimits.cellNesting + 1, "nesting-limit")})
    {
        std::string const text = std::string(depth, '(') + "deep" + std::string(depth, ')');
        std::string found;
        try
        {
            cellsOf(text);
        }
        catch (AxlSyntaxError const& error)
        {
            found = error.code();
        }
        EXPECT_EQ(found, code) << depth;
    }
}

TEST_F(Limits, NestingOfElements)
{
    for (auto const& [depth, code] : {std::pair(axLimits.xmlDepth - 1, ""), std::pair(axLimits.xmlDepth, ""),
                                      std::pair(axLimits.xmlDepth + 1, "nesting-limit")})
    {
        EXPECT_EQ(ofXml(repeated("<a>", depth) + repeated("</a>", depth)), code) << depth;
    }
}

TEST_F(Limits, AttributesOfAnElement)
{
    for (auto const& [count, code] : {std::pair(axLimits.xmlAttributes - 1, ""), std::pair(axLimits.xmlAttributes, ""),
                                      std::pair(axLimits.xmlAttributes + 1, "attribute-limit")})
    {
        std::string text = "<a";
        for (std::size_t i = 0; i < count; ++i)
        {
            text += " a" + std::to_string(i) + "=''";
        }
        EXPECT_EQ(ofXml(text + "/>"), code) << count;
    }
}

TEST_F(Limits, LengthOfATokenInEveryNotation)
{
    for (auto const& [length, code] : {std::pair(axLimits.tokenSize - 1, ""), std::pair(axLimits.tokenSize, ""),
                                       std::pair(axLimits.tokenSize + 1, "token-limit")})
    {
        std::string const token(length, 'x');
        EXPECT_EQ(ofText("(m1 (display-name \"" + token + "\"))"), code) << length;
        EXPECT_EQ(ofText("(m1 (display-name " + token + "))"), code) << length;
        EXPECT_EQ(ofXml("<a>" + token + "</a>"), code) << length;
    }
}

TEST_F(Limits, SizeOfAFile)
{
    AxFilename const file = put("big.ope", "(m1 (parameter-type \"zed-object-param\"))");
    boost::filesystem::resize_file(path("big.ope"), axLimits.fileSize + 1); // takes no room on the disk
    std::string text;
    int error = 0;
    EXPECT_FALSE(axReadWholeFile(file, text, error));
    EXPECT_EQ(error, EFBIG);
    put("force.opd", database(entry(theTank, "big.ope")));
    EXPECT_TRUE(db.load(AxFilename(path("force.opd"))));
    EXPECT_EQ(only(), "");
    EXPECT_FALSE(db.lookup(tank));
    EXPECT_FALSE(findings.empty());
    boost::filesystem::resize_file(path("big.ope"), 40);
    EXPECT_TRUE(db.lookup(tank));
}

TEST_F(Limits, ExpansionOfEntitiesAndVariables)
{
    std::string bomb = "<!DOCTYPE a [<!ENTITY x0 \"ha\">";
    for (int i = 1; i < 100; ++i)
    {
        std::string const before = "&x" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY x" + std::to_string(i) + " \"" + repeated(before, 10) + "\">";
    }
    EXPECT_FALSE(AxEnvXMLReader::readText(bomb + "]><a>&x99;</a>", AxFilename("t.xml")));
    EXPECT_EQ(only(), "xml-entity");
    std::string bindings = "(v0 \"ha\")";
    for (int i = 1; i < 40; ++i)
    {
        bindings += "(v" + std::to_string(i) + " \"" + repeated("$(v" + std::to_string(i - 1) + ")", 10) + "\")";
    }
    EXPECT_EQ(nameWith(bindings, "a $(v39)"), "a $(v39)");
    EXPECT_EQ(only(), "variable-limit");
    EXPECT_EQ(nameWith("(loop \"$(loop)\")", "a $(loop)"), "a $(loop)");
}

TEST_F(Limits, VariablesMadeOfEachOther)
{
    for (unsigned const length : {axLimits.variableChain - 1, axLimits.variableChain, axLimits.variableChain + 1})
    {
        std::string bindings = "(v1 \"ha\")";
        for (unsigned i = 2; i <= length; ++i)
        {
            bindings += "(v" + std::to_string(i) + " \"$(v" + std::to_string(i - 1) + ")\")";
        }
        std::string const expected = length > axLimits.variableChain ? "a $(v1)" : "a ha";
        EXPECT_EQ(nameWith(bindings, "a $(v" + std::to_string(length) + ")"), expected) << length;
        only();
    }
}

TEST_F(Limits, VariablesPutInBecauseOthersNameThem)
{
    std::size_t const most = axLimits.variableUses + 100; // the text itself names one
    for (auto const& [count, code] :
         {std::pair(most - 1, ""), std::pair(most, ""), std::pair(most + 1, "variable-limit")})
    {
        std::string const name = nameWith("(one \"x\")(all \"" + repeated("$(one)", count) + "\")", "a $(all)");
        EXPECT_EQ(name, "a " + (count > most ? "$(all)" : std::string(count, 'x')));
        EXPECT_EQ(only(), code) << count;
    }
}

TEST_F(Limits, FilesReadBecauseOthersNameThem)
{
    std::size_t const most = axLimits.fileLoads + 100; // the record itself names one
    put("one.sys", "(one)");
    for (auto const& [count, code] :
         {std::pair(most - 1, ""), std::pair(most, ""), std::pair(most + 1, "file-chain-limit")})
    {
        std::string systems;
        for (std::size_t i = 0; i < count; ++i)
        {
            systems += "(s" + std::to_string(i) + " (system-definition \"one.sys\"))";
        }
        put("all.sys", "(all (systems " + systems + "))");
        put("m1.ope", record("(systems (all (system-definition \"all.sys\")))"));
        put("force.opd", database(entry(theTank, "m1.ope")));
        db.removeAll();
        EXPECT_TRUE(db.load(AxFilename(path("force.opd"))));
        EXPECT_TRUE(db.lookup(tank));
        EXPECT_EQ(only(), code) << count;
    }
}

TEST_F(Limits, RecordsInEachOtherWhereNamesMayLeadToMore)
{
    put("words.txt", "(words \"far\" \"near\")");
    AxRwVariableBindings set;
    set.readText("(variable-bindings (more far near))", AxFilename(), {}, {});
    for (auto const& [open, fileCode, variableCode] :
         {std::tuple(axLimits.recordNesting - 1, "", ""), std::tuple(axLimits.recordNesting, "", ""),
          std::tuple(axLimits.recordNesting + 1, "file-chain-limit", "variable-limit")})
    {
        for (bool const isFile : {true, false})
        {
            Nest nest("nest", nullptr);
            std::string const text = repeated("(nest ", open) +
                                     (isFile ? "(words-file \"words.txt\")" : "(words $more)") + std::string(open, ')');
            nest.readText(text, AxFilename("nest.ope"), {AxFilename(directory())}, {&set});
            std::string const code = only();
            EXPECT_EQ(code, isFile ? fileCode : variableCode) << open;
            EXPECT_EQ(nest.innermost().words.size(), code.empty() ? 2U : 0U) << open;
        }
    }
}
