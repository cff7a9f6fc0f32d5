#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "AxlObj.h"
#include "PathText.h"
#include "Source.h"

class AxReaderWriter;
class AxReaderWriterFile;
class AxReaderWriterRegistry;
class AxZedObjectParameters;

/// Keywords from a record inwards, as users write them: "systems/main-gun/reload-time". A list has its elements by
/// name, a file member what it read; of several of one name "position[2]" is the second, and "real-resource["fuel"]"
/// the one that calls itself so. What is called by no keyword is looked for among what elements call themselves. A step
/// of "*" is any keyword; "**", once in a path, any number of steps, also none.
class KeywordPath
{
public:
    struct Step
    {
        enum class Kind
        {
            Keyword,
            Any,
            AnyDepth
        };
        Kind kind;
        AxSymbolString keyword{}; ///< null for any
        KeywordStep text{};
    };

    /// False, and `fault` tells why, for a text that is no path.
    static bool parse(std::string_view text, KeywordPath& out, std::string& fault);

    /// The path "**".
    static KeywordPath const& everything();

    std::string const& text() const { return myText; }
    std::span<Step const> steps() const { return mySteps; }
    /// Whether it names at most one object, but for lists with several elements of one name.
    bool isPlain() const;
    /// The last step as text.
    std::string_view last() const;

private:
    std::string myText;
    std::vector<Step> mySteps;
};

/// Goes through a record and the contents of its files along a path, and knows for each object how it is reached and
/// where it is read. Words that an object writes besides its members ("parameter-type") are come to as well.
class RecordWalk
{
public:
    using Visit = std::function<void(RecordWalk const& at)>;

    /// `file` is that of the record; `stepsToRecord` lead to it where it is not the first expression.
    RecordWalk(std::string file, AxZedObjectParameters& record, std::vector<SourceStep> stepsToRecord = {});

    /// Shows `visit` everything that the path names, each before what is below it.
    void run(KeywordPath const& path, Visit const& visit);

    // ---- Where the walk stands, for the visitor. ----
    /// The object, or the one that writes the word.
    AxReaderWriter& rw() const { return *myRw; }
    /// The list `(word item...)`; null where an object is visited.
    AxlObj const* ownItem() const { return myOwnItem; }
    /// From the record inwards; where several share a name with the position: "connections/connect[2]".
    std::string path() const;
    /// The name of the object or the word.
    AxSymbolString keyword() const { return mySteps.back().keyword; }
    /// The way from the record.
    std::span<SourceStep const> steps() const { return std::span(mySteps).subspan(myStepsToRecord); }
    /// The file that holds it.
    std::string const& file() const { return myFiles[myFile]; }
    bool isInRecordsOwnFile() const { return myFile == 0; }
    /// The way from the first expression of that file.
    std::span<SourceStep const> stepsInFile() const { return std::span(mySteps).subspan(myFirstStep); }

    /// From the first expression of the record's own file to the record.
    std::span<SourceStep const> stepsToRecord() const { return std::span(mySteps).first(myStepsToRecord); }
    /// All files come to so far, the record's own first.
    std::vector<std::string> const& files() const { return myFiles; }
    AxZedObjectParameters& record() const { return *myRecord; }

private:
    using Steps = std::span<KeywordPath::Step const>;

    void below(AxReaderWriter& rw, Steps rest);
    void members(AxReaderWriterRegistry const& registry, Steps rest);
    void elements(AxReaderWriter& rw, Steps rest);
    void content(AxReaderWriterFile const& file, Steps rest, AxReaderWriter* asMember, AxSymbolString keyword);
    void ownWords(AxReaderWriter& rw, Steps rest);
    void words(AxReaderWriter& rw, AxlObj const& items, Steps rest);
    void child(SourceStep const& step, AxReaderWriter& rw, AxlObj const* item, Steps rest, bool isNext);
    void arrive(AxReaderWriter& rw, AxlObj const* item, Steps rest);
    void visit(AxReaderWriter& rw, AxlObj const* item);

    AxZedObjectParameters* myRecord;
    std::vector<std::string> myFiles;
    std::size_t myFile = 0; // the one that is walked
    std::vector<SourceStep> mySteps;
    std::size_t myFirstStep = 0; // in that file
    AxReaderWriter* myRw = nullptr;
    AxlObj const* myOwnItem = nullptr;
    Visit const* myVisit = nullptr;
    std::string myOwnText; // kept for its memory
    std::size_t myStepsToRecord;
};
