#include "KeywordUse.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <memory>
#include <set>

#include "AxComponentDescriptor.h"
#include "AxZedObjectParameters.h"
#include "Catalogue.h"
#include "Collection.h"
#include "Findings.h"
#include "Json.h"
#include "Origin.h"
#include "RecordValue.h"

namespace
{
constexpr std::size_t theMostShown = 10;
constexpr std::size_t theFewestWithOutliers = 5;

std::string numberText(double number)
{
    return atomOf(number).text;
}

/// The type of the record or component that has the value, else the kind of the object around it.
std::string ownerOf(RecordWalk const& at)
{
    AxReaderWriterRegistry const* const registry = at.rw().parentRegistry();
    AxReaderWriter const* const owner = at.ownItem() != nullptr || registry == nullptr ? &at.rw() : registry->owner();
    if (auto const* record = dynamic_cast<AxZedObjectParameters const*>(owner))
    {
        return record->parameterType().string();
    }
    auto const* component = dynamic_cast<AxComponentDescriptor const*>(owner);
    return component != nullptr ? component->type().string() : owner != nullptr ? kindOf(typeid(*owner)) : "";
}

/// Takes up the values of one record after the other.
class Collector
{
public:
    Collector(KeywordPath const& path, KeywordUses& uses) : myPath(path), myUses(uses) {}

    void take(AxSxpParameterDbEntry& entry, RecordWalk& walk)
    {
        std::size_t ordinal = 0;
        myPlaces.goTo(walk.files().front());
        walk.run(myPath, [&](RecordWalk const& at) { take({0.0, &entry, ordinal++}, at); });
    }

private:
    void take(UsedValue value, RecordWalk const& at)
    {
        std::string const text = valueText(at);
        if ((text.empty() && at.ownItem() != nullptr) || !isKeyword(at) || isRepeated(at))
        {
            return;
        }
        KeywordUse& use = myUses[ownerOf(at)];
        unitOf(at, use.unit);
        bool const isGiven =
            at.ownItem() != nullptr || (at.rw().isDue() && (!isDueByItself(at) || myPlaces.of(at).line != 0));
        if (!isGiven)
        {
            ++use.defaults;
            return;
        }
        ++use.given;
        if (text.empty()) // a list or record: its values stand under their own keywords
        {
            return;
        }
        std::vector<Atom> atoms;
        appendAtoms(at, atoms);
        if (atoms.size() == 1 && atoms.front().isNumber)
        {
            value.number = atoms.front().number;
            use.numbers.push_back(std::move(value));
            return;
        }
        KeywordUse::Text& same = use.texts[text];
        same.first = same.count++ == 0 ? value : same.first;
    }

    /// Looked for at any depth, a keyword is not what elements call themselves.
    bool isKeyword(RecordWalk const& at) const
    {
        KeywordPath::Step const& last = myPath.steps().back();
        bool const isAnywhere = last.kind == KeywordPath::Step::Kind::Keyword && !myPath.isPlain();
        return !isAnywhere || at.keyword() == last.keyword || at.rw().hasAlias(last.keyword);
    }

    /// Whether a new record of that type gives the value already, so that it is written wherever it is left out.
    bool isDueByItself(RecordWalk const& at)
    {
        std::string const type = at.record().parameterType().string();
        auto const [found, isNew] = myDuePaths.try_emplace(type);
        if (isNew)
        {
            std::unique_ptr<AxZedObjectParameters> const fresh(AxZedObjectParameters::createParameters(type.c_str()));
            auto const note = [&paths = found->second](RecordWalk const& its)
            {
                if (its.rw().isDue())
                {
                    paths.insert(its.path());
                }
            };
            if (fresh != nullptr)
            {
                RecordWalk(std::string(), *fresh).run(myPath, note);
            }
        }
        return found->second.contains(at.path());
    }

    /// Whether another record has the value from the same place.
    bool isRepeated(RecordWalk const& at)
    {
        if (at.isInRecordsOwnFile() || at.rw().isVariableReference())
        {
            return false;
        }
        std::string place = at.file();
        for (SourceStep const& step : at.stepsInFile())
        {
            place.append("/").append(step.keyword.view()).append("#").append(std::to_string(step.occurrence));
        }
        return !myPlacesInShared.insert(std::move(place)).second;
    }

    KeywordPath const& myPath;
    KeywordUses& myUses;
    Places myPlaces;
    std::set<std::string> myPlacesInShared;
    std::map<std::string, std::set<std::string>> myDuePaths; // in a new record, by its type
};

/// The value below which that part of the sorted ones lies.
double quantile(std::vector<UsedValue> const& sorted, double part)
{
    double const at = part * static_cast<double>(sorted.size() - 1);
    auto const low = static_cast<std::size_t>(at);
    std::size_t const high = std::min(low + 1, sorted.size() - 1);
    return sorted[low].number + (at - static_cast<double>(low)) * (sorted[high].number - sorted[low].number);
}

/// Those farther from the middle half than one and a half times its width.
void findOutliers(KeywordUse& use)
{
    if (use.numbers.size() < theFewestWithOutliers)
    {
        return;
    }
    double const low = quantile(use.numbers, 0.25);
    double const high = quantile(use.numbers, 0.75);
    double const reach = 1.5 * (high - low);
    auto const distance = [&](UsedValue const& value) { return std::max(low - value.number, value.number - high); };
    std::ranges::copy_if(use.numbers, std::back_inserter(use.outliers),
                         [&](UsedValue const& value) { return distance(value) > reach; });
    std::ranges::stable_sort(use.outliers, std::ranges::greater(), distance);
}

using WantedPlaces = std::map<AxSxpParameterDbEntry*, std::multimap<std::size_t, UsedValue*>>; // by ordinal

void findPlaces(KeywordPath const& path, Database const& database, WantedPlaces& wanted)
{
    for (auto& [entry, values] : wanted)
    {
        database.withRecord(*entry,
                            [&, &entry = entry, &values = values](AxZedObjectParameters& record)
                            {
                                RecordWalk walk = Collection::walkThrough(database, *entry, record);
                                Origins origins(database, *entry, record);
                                std::size_t ordinal = 0;
                                walk.run(path,
                                         [&](RecordWalk const& at)
                                         {
                                             auto [first, last] = values.equal_range(ordinal++);
                                             for (; first != last; ++first)
                                             {
                                                 first->second->place = origins.of(at).valuePlace();
                                             }
                                         });
                            });
    }
}

/// Finds the places of the values that are shown, reading each of their records once more.
void locate(KeywordPath const& path, Database const& database, KeywordUses& uses)
{
    WantedPlaces wanted;
    auto const want = [&wanted](UsedValue& value) { wanted[value.entry].emplace(value.ordinal, &value); };
    for (auto& [owner, use] : uses)
    {
        if (!use.numbers.empty())
        {
            want(use.numbers.front());
            want(use.numbers.back());
        }
        for (std::size_t i = 0; i < std::min(use.outliers.size(), theMostShown); ++i)
        {
            want(use.outliers[i]);
        }
        for (auto& [text, its] : use.commonest)
        {
            want(its.first);
        }
    }
    std::vector<AxDiagnostic> unread;
    {
        Findings muted(Findings::Print::Never); // what there is to report of the records was reported
        findPlaces(path, database, wanted);
        unread = muted.unread();
    }
    std::ranges::for_each(unread, AxDiagnostics::report);
}

void findCommonest(KeywordUse& use)
{
    use.commonest.assign(use.texts.begin(), use.texts.end());
    std::ranges::stable_sort(use.commonest, std::ranges::greater(), [](auto const& text) { return text.second.count; });
    use.commonest.resize(std::min(use.commonest.size(), theMostShown));
}

void printValue(char const* title, UsedValue const& value)
{
    std::printf("    %-8s %s  %s\n", title, numberText(value.number).c_str(), value.place.text().c_str());
}

void writeValue(JsonWriter& json, UsedValue const& value)
{
    json.beginObject().key("value").real(value.number);
    value.place.write(json);
    json.endObject();
}
} // namespace

double KeywordUse::median() const
{
    double const halfway = quantile(numbers, 0.5);
    if (halfway == numbers[numbers.size() / 2].number)
    {
        return halfway;
    }
    // Between two decimals, without what their binary form adds.
    char text[32];
    auto const written = std::to_chars(std::begin(text), std::end(text), halfway, std::chars_format::general, 15);
    double rounded = halfway;
    std::from_chars(std::begin(text), written.ptr, rounded);
    return rounded;
}

KeywordUses usesOf(KeywordPath const& path, Database const& database, bool& isComplete)
{
    KeywordUses uses;
    Collector collector(path, uses);
    isComplete = database.forEachRecord("reading",
                                        [&](AxSxpParameterDbEntry& entry, AxZedObjectParameters& record, Progress&)
                                        {
                                            RecordWalk walk = Collection::walkThrough(database, entry, record);
                                            collector.take(entry, walk);
                                        });
    for (auto& [owner, use] : uses)
    {
        std::ranges::stable_sort(use.numbers, {}, &UsedValue::number);
        findOutliers(use);
        findCommonest(use);
    }
    locate(path, database, uses);
    return uses;
}

void printUses(KeywordUses const& uses)
{
    std::string without; // those that leave it out
    for (auto const& [owner, use] : uses)
    {
        if (use.given == 0)
        {
            without.append(without.empty() ? "" : ", ").append(owner);
            continue;
        }
        std::printf("  %s: given %zu %s", owner.c_str(), use.given, use.given == 1 ? "time" : "times");
        if (use.defaults != 0)
        {
            std::printf(", left out %zu %s", use.defaults, use.defaults == 1 ? "time" : "times");
        }
        std::printf(use.unit.empty() ? "\n" : ", in %s\n", use.unit.c_str());
        if (!use.numbers.empty())
        {
            printValue("minimum", use.numbers.front());
            std::printf("    %-8s %s\n", "median", numberText(use.median()).c_str());
            printValue("maximum", use.numbers.back());
        }
        for (std::size_t i = 0; i < std::min(use.outliers.size(), theMostShown); ++i)
        {
            printValue("outlier", use.outliers[i]);
        }
        if (use.outliers.size() > theMostShown)
        {
            std::printf("    and %zu more outliers\n", use.outliers.size() - theMostShown);
        }
        for (auto const& [text, its] : use.commonest)
        {
            std::printf("    %zu x %s, first %s\n", its.count, text.c_str(), its.first.place.text().c_str());
        }
        if (use.texts.size() > use.commonest.size())
        {
            std::printf("    and %zu more values\n", use.texts.size() - use.commonest.size());
        }
    }
    if (!without.empty())
    {
        std::printf("  left out by %s\n", without.c_str());
    }
}

void writeUses(JsonWriter& json, KeywordUses const& uses)
{
    json.beginObject();
    for (auto const& [owner, use] : uses)
    {
        json.key(owner).beginObject().member("unit", use.unit);
        json.key("given").integer(static_cast<long long>(use.given));
        json.key("left-out").integer(static_cast<long long>(use.defaults));
        if (!use.numbers.empty())
        {
            writeValue(json.key("minimum"), use.numbers.front());
            json.key("median").real(use.median());
            writeValue(json.key("maximum"), use.numbers.back());
            json.key("outliers").beginArray();
            for (std::size_t i = 0; i < std::min(use.outliers.size(), theMostShown); ++i)
            {
                writeValue(json, use.outliers[i]);
            }
            json.endArray();
        }
        if (!use.texts.empty())
        {
            json.key("values").beginArray();
            for (auto const& [text, its] : use.commonest)
            {
                json.beginObject().member("value", text).key("count").integer(static_cast<long long>(its.count));
                its.first.place.write(json);
                json.endObject();
            }
            json.endArray().key("distinct-values").integer(static_cast<long long>(use.texts.size()));
        }
        json.endObject();
    }
    json.endObject();
}
