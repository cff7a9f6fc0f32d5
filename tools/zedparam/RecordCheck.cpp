#include "RecordCheck.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <memory>
#include <set>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Ax1DRegularTableFn.h"
#include "AxAmmoSelectTable.h"
#include "AxComponentDescriptor.h"
#include "AxComponentSystemDefinition.h"
#include "AxComponentSystemDescriptor.h"
#include "AxDmgMunitionTable.h"
#include "AxDmgSurfaceTable.h"
#include "AxPrbCoefficientList.h"
#include "AxPrbRangeList.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxRwProperty.h"
#include "AxRwVariableBindings.h"
#include "AxTargetPriorityList.h"
#include "AxZedObjectParameters.h"
#include "CheckedFiles.h"
#include "FindingPlaces.h"
#include "Findings.h"
#include "NameScan.h"
#include "RangeText.h"
#include "RecordValue.h"
#include "RowCheck.h"
#include "Supplies.h"
#include "Wiring.h"

namespace
{
std::string placeOf(AxReaderWriter const& rw)
{
    std::string place = "\"" + rw.name().string().string() + "\"";
    AxReaderWriterRegistry const* registry = rw.parentRegistry();
    if (registry != nullptr && registry->owner() != nullptr && !registry->owner()->name().isNull())
    {
        place += " of \"" + registry->owner()->name().string().string() + "\"";
    }
    return place;
}

template <class... Classes>
bool isAny(AxReaderWriter const& rw)
{
    return ((dynamic_cast<Classes const*>(&rw) != nullptr) || ...);
}

/// What a class is. Each is asked once, for the casts would cost more than all other work on a record.
struct Traits
{
    bool isFile;
    bool isList;
    bool isProperty;
    bool isTable;
    bool isComponent;
    bool hasRows;
    bool isNumber;
    bool tellsSupplies;

    bool isPlain() const { return !isFile && !isList && !isProperty && !isTable; }
};

Traits const& traitsOf(AxReaderWriter const& rw)
{
    static std::unordered_map<std::type_info const*, Traits> known;
    // The few classes that come up all the time are found without a look into the map.
    static std::array<std::pair<std::type_info const*, Traits>, 256> recent;
    std::type_info const* const type = &typeid(rw);
    auto& slot = recent[(std::bit_cast<std::uintptr_t>(type) >> 4) % recent.size()];
    if (slot.first == type)
    {
        return slot.second;
    }
    auto const [entry, isNew] = known.try_emplace(type);
    if (isNew)
    {
        double ignored = 0.0;
        entry->second = {dynamic_cast<AxReaderWriterFile const*>(&rw) != nullptr,
                         dynamic_cast<AxRwList const*>(&rw) != nullptr,
                         dynamic_cast<AxRwProperty const*>(&rw) != nullptr,
                         dynamic_cast<Ax1DRegularTableFn const*>(&rw) != nullptr,
                         dynamic_cast<AxComponentDescriptor const*>(&rw) != nullptr,
                         isAny<AxPrbRangeList, AxPrbCoefficientList, AxRangeProbabilityTable, AxAmmoSelectTable,
                               AxDmgMunitionTable, AxDmgSurfaceTable, AxTargetPriorityList>(rw),
                         numberIn(rw, ignored),
                         rw.isValue() || Supplies::areToldBy(rw)};
    }
    slot = {type, entry->second};
    return slot.second;
}

AxReaderWriterFile const* fileIn(AxReaderWriter const& rw)
{
    return traitsOf(rw).isFile ? dynamic_cast<AxReaderWriterFile const*>(&rw) : nullptr;
}

/// Whether a component is of the class that its type name stands for, so that it is read back as it is.
bool keepsType(AxComponentDescriptor const& component)
{
    static std::unordered_map<std::type_index, bool> known;
    auto const [entry, isNew] = known.try_emplace(typeid(component), true);
    if (isNew)
    {
        std::unique_ptr<AxComponentDescriptor> const fresh(
            AxComponentDescriptor::createComponentDescriptor(component.type().c_str()));
        AxComponentDescriptor const* const made = fresh.get();
        entry->second = made != nullptr && typeid(*made) == typeid(component);
    }
    return entry->second;
}

/// Walks a record and the contents of its files, and knows for each member where it is read.
class RecordCheck
{
public:
    RecordCheck(FindingPlaces& places, CheckedFiles& files, Findings& findings)
        : myPlaces(places), myFiles(files), myFindings(findings)
    {
    }

    void runRecord(AxZedObjectParameters& record)
    {
        checkNames();
        visitBelow(record);
        checkWiring(Wiring(record));
        checkRules(record);
        mySupplies.check(myPlaces, myFindings);
        finish();
    }
    void runContent(AxReaderWriter& content)
    {
        checkNames();
        visitBelow(content);
        finish();
    }

private:
    using Kind = AxReaderWriterFile::ContentKind;

    void finish()
    {
        for (std::size_t const file : myFilesWithRows)
        {
            myPlaces.isElement(file) ? checkRows(myPlaces.file(file), myPlaces.element().text(), myFindings)
                                     : checkRows(myPlaces.file(file), myFiles, myFindings);
        }
    }

    void visit(AxSymbolString keyword, AxReaderWriter& rw, int occurrence = SourceStep::theLast)
    {
        myPath.push_back({keyword, &rw, occurrence});
        rw.isValue() ? checkRange(rw) : checkType(rw);
        if (traitsOf(rw).tellsSupplies)
        {
            mySupplies.note(rw, myFile, myPath);
        }
        visitBelow(rw);
        myPath.pop_back();
    }

    void visitBelow(AxReaderWriter& rw)
    {
        if (AxReaderWriterRegistry const* registry = rw.registryIfAny())
        {
            visitMembers(*registry);
        }
        Traits const& traits = traitsOf(rw);
        if (traits.isPlain())
        {
            return;
        }
        if (traits.isList)
        {
            visitElements(dynamic_cast<AxRwList const&>(rw));
        }
        else if (auto const* property = dynamic_cast<AxRwProperty const*>(&rw))
        {
            if (property->rwValue() != nullptr)
            {
                visitBelow(*property->rwValue());
            }
        }
        else if (auto const* file = dynamic_cast<AxReaderWriterFile const*>(&rw))
        {
            visitFile(*file);
        }
        else if (auto const* table = dynamic_cast<Ax1DRegularTableFn const*>(&rw))
        {
            checkSteps(*table);
        }
    }

    void visitElements(AxRwList const& list)
    {
        if (traitsOf(list).hasRows)
        {
            myFilesWithRows.insert(myFile);
        }
        std::unordered_map<AxSymbolString, int> occurrences;
        for (AxListItem const* item = list.first(); item != nullptr; item = item->next())
        {
            AxReaderWriter& element = *AxRwList::element(item);
            visit(element.name(), element, occurrences[element.name()]++);
        }
    }

    void visitMembers(AxReaderWriterRegistry const& registry)
    {
        std::vector<AxReaderWriter const*> contents;
        std::size_t const first = myMembers.size();
        for (std::size_t i = 0, count = registry.size(); i < count; ++i)
        {
            AxRegistryEntry const entry = registry.entry(i);
            AxReaderWriter const& member = *entry.member;
            AxReaderWriterFile const* const file = fileIn(member);
            // A value or record that was not read holds its defaults.
            if (!entry.content && (member.valueSpecified() || !member.isValue() || file != nullptr))
            {
                myMembers.push_back(entry);
            }
            if (file != nullptr && file->contentKind() == Kind::Member && !file->foundFilename().isNull())
            {
                contents.push_back(file->content());
                visitContent(*file);
            }
        }
        for (std::size_t i = first; i < myMembers.size(); ++i)
        {
            AxRegistryEntry const entry = myMembers[i]; // what is below moves them
            if (std::ranges::find(contents, entry.member) == contents.end())
            {
                visit(entry.keyword, *entry.member);
            }
        }
        myMembers.resize(first);
    }

    void visitFile(AxReaderWriterFile const& file)
    {
        if (file.content() == nullptr)
        {
            noteFile(file.filename());
        }
        else if (file.contentKind() != Kind::Member)
        {
            visitContent(file);
        }
    }

    /// A file whose content is the engine's business is used, too.
    void noteFile(AxFilename const& file)
    {
        AxFilename const beside = AxFilename(myPlaces.file(myFile)).directory().combine(file);
        if (!file.isNull() && beside.exists())
        {
            myFiles.enter(beside.native());
        }
    }

    void visitContent(AxReaderWriterFile const& file)
    {
        bool isNew = true;
        std::vector<SourceStep> const outer = myPath;
        std::size_t const outerFile = myFile;
        if (!file.foundFilename().isNull())
        {
            std::string const found = file.foundFilename().native();
            isNew = myFiles.enter(found);
            myPath.clear();
            myFile = myPlaces.add(found);
            if (isNew)
            {
                checkNames();
            }
        }
        visitBelow(*file.content());
        auto const* system = dynamic_cast<AxComponentSystemDefinition const*>(file.content());
        if (system != nullptr && isNew)
        {
            checkWiring(Wiring(*system));
            checkPorts(*system);
        }
        myFile = outerFile;
        myPath = outer;
    }

    /// Reading keeps one of several components of one name, so the text is looked at.
    void checkNames()
    {
        if (myPlaces.isElement(myFile))
        {
            myPlaces.element().forEachRepeatedName(
                [this](AxEnvObject const& element)
                { reportName(element.name().string(), element.line(), element.column()); });
            return;
        }
        scanNames(myFiles.text(myPlaces.file(myFile)),
                  [this](std::string_view name, unsigned line, unsigned column) { reportName(name, line, column); });
    }

    void reportName(std::string_view name, unsigned line, unsigned column)
    {
        AxDiagnostic finding = myPlaces.warning("repeated-name", myFile,
                                                "another element of the list is called \"" + std::string(name) +
                                                    "\"; this one takes its place");
        finding.line = line;
        finding.column = column;
        myFindings.add(std::move(finding));
    }

    void checkType(AxReaderWriter const& rw)
    {
        auto const* component = traitsOf(rw).isComponent ? dynamic_cast<AxComponentDescriptor const*>(&rw) : nullptr;
        if (component != nullptr && !keepsType(*component))
        {
            myFindings.add(
                myPlaces.atValue("type-not-kept", myFile, myPath,
                                 "the component is written back as one of type \"" + component->type().string() + '"'));
        }
    }

    void checkRange(AxReaderWriter const& rw)
    {
        bool const isGivenNumber = traitsOf(rw).isNumber && rw.valueSpecified();
        if (std::string const fault = isGivenNumber ? rangeFault(rw) : std::string(); !fault.empty())
        {
            myFindings.add(myPlaces.atValue("out-of-range", myFile, myPath, placeOf(rw) + " is " + fault));
        }
    }

    void checkSteps(Ax1DRegularTableFn const& table)
    {
        if (!table.values().empty() && !(table.xStep() > 0.0))
        {
            myFindings.add(myPlaces.atValue("bad-step", myFile, myPath,
                                            "the table \"" + table.name().string().string() +
                                                "\" has no step above 0 and counts as empty"));
        }
    }

    void checkWiring(Wiring const& wiring)
    {
        checkWires(wiring,
                   [this](WireFault const& fault)
                   {
                       AxDiagnostic finding = myPlaces.atConnection(fault.code, myFile, fault.wire.source().string(),
                                                                    fault.wire.destination().string(), fault.text);
                       finding.hint = fault.hint;
                       myFindings.add(std::move(finding));
                   });
    }

    void checkPorts(AxComponentSystemDefinition const& system)
    {
        checkNamedPorts(system,
                        [this](char const* keyword, std::string const& port, std::string text)
                        {
                            AxDiagnostic finding = myPlaces.atItem("unknown-port", myFile, keyword, port, text);
                            myFindings.add(finding.line != 0
                                               ? std::move(finding)
                                               : myPlaces.atList("unknown-port", myFile, "meta-data", std::move(text)));
                        });
    }

    void checkRules(AxZedObjectParameters const& record)
    {
        checkAutomaticWires(record,
                            [this](char const* keyword, std::string const& port, std::string text) {
                                myFindings.add(myPlaces.atItem("unknown-port", myFile, keyword, port, std::move(text)));
                            });
    }

    FindingPlaces& myPlaces;
    CheckedFiles& myFiles;
    Findings& myFindings;
    Supplies mySupplies;
    std::size_t myFile = 0; // the one that is walked
    std::set<std::size_t> myFilesWithRows;
    std::vector<AxRegistryEntry> myMembers; // still to be visited, of all that the walk stands in
    std::vector<SourceStep> myPath;         // from its first expression inwards
};

void reportUnbound(AxZedObjectParameters const& record, FindingPlaces const& places, Findings& findings)
{
    for (auto const& [name, value] : record.unboundVariables())
    {
        findings.add(places.atReference("unbound-variable", name.string(),
                                        "nothing binds the variable \"" + name.string() + '"'));
    }
}

void reportUnused(AxZedObjectParameters const& record, FindingPlaces const& places, CheckedFiles& files,
                  Findings& findings)
{
    if (record.variableBindingsFromLoad().empty())
    {
        return;
    }
    CheckedFiles::Names const own = files.referencesOnce(places.file(0));
    for (AxRwVariableBindings const* bindings : record.variableBindingsFromLoad())
    {
        for (AxSymbolString const variable : bindings->names())
        {
            std::string const& name = variable.string().string();
            bool const isUsed = own.contains(name) || std::any_of(places.files().begin() + 1, places.files().end(),
                                                                  [&](std::string const& file)
                                                                  { return files.references(file).contains(name); });
            if (!isUsed)
            {
                findings.add(places.atBinding("unused-variable", name, "nothing uses the variable \"" + name + '"'));
            }
        }
    }
}
} // namespace

void checkRecord(std::string const& file, AxZedObjectParameters& record, Variables variables, CheckedFiles& files,
                 Findings& findings)
{
    FindingPlaces places(file, record.objectNode(), files);
    RecordCheck(places, files, findings).runRecord(record);
    if (variables == Variables::AllKnown)
    {
        reportUnbound(record, places, findings);
    }
    reportUnused(record, places, files, findings);
}

void checkContent(std::string const& file, AxReaderWriter& content, CheckedFiles& files, Findings& findings)
{
    FindingPlaces places(file, {}, files);
    RecordCheck(places, files, findings).runContent(content);
}
