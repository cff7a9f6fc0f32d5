#include "AxTreeCells.h"
#include "AxZedObjectParameters.h"

#include "AxDiagnostic.h"
#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxRwObjectType.h"
#include "AxStreams.h"
#include "AxTypeItem.h"
#include "AxUnknownType.h"
#include "AxZedObjectParameterFactory.h"
#include "AxZedStateRepositoryUserExtensionFactory.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace
{
constexpr char const* theRecordTypeHead = "parameter-type";
constexpr char const* theNoFactoryLine = "Can't create parameters without a parameter factory.\n";

AxDiagnostic located(AxlObj const* cell, char const* code, std::string text)
{
    AxDiagnostic made;
    made.code = code;
    made.line = cell->line();
    made.column = cell->column();
    made.path = AxReadFrame::path();
    made.text = std::move(text);
    return made;
}

AxSymbolString theBindingsHead()
{
    static AxSymbolString const head("variable-bindings");
    return head;
}

/// The empty symbol for an item without a head.
AxSymbolString headOf(AxlObj const* item)
{
    return item->car()->symbol();
}

AxSymbolString objectTypeHead()
{
    static AxSymbolString const head("object-type");
    return head;
}

AxSymbolString matchTypeHead()
{
    static AxSymbolString const head("match-type");
    return head;
}

bool isObjectType(AxSymbolString head)
{
    return head == objectTypeHead() || head == matchTypeHead();
}

std::unique_ptr<AxRwVariableBindings> bindingsOf(AxlObj const* item, AxBindingsList const& bindings)
{
    auto set = std::make_unique<AxRwVariableBindings>(theBindingsHead());
    set->getSelf(AxlObjPtr(item), AxReaderWriter::nullFilenames(), bindings);
    return set;
}

/// The type item of a record, wherever it stands; nil when there is none.
AxlObj const* typeItemOf(AxlObj const* record)
{
    for (AxlObj const* rest = record->cdr(); rest->isPair(); rest = rest->cdr())
    {
        if (rest->car()->car()->text() == theRecordTypeHead)
        {
            return rest->car();
        }
    }
    return AxlObj::nilCell();
}
} // namespace

/// Records of every class are read without cells but for the items that are no members.
struct AxZedObjectParameters::Entry : AxTypeEntry<AxZedObjectParameters>
{
    Entry() : AxTypeEntry(ops()) {}

    static AxTypeOps ops()
    {
        AxTypeOps ops = AxTypeOps::withCreator<AxZedObjectParameters>();
        ops.leadHead = theRecordTypeHead;
        ops.ownItem = [](AxReaderWriter& rw, AxlObj const* item, std::size_t, AxBindingsList& bindings)
        {
            auto& record = static_cast<AxZedObjectParameters&>(rw);
            if (headOf(item) == theBindingsHead())
            {
                AxRwVariableBindings const* const set = bindingsOf(item, bindings).release();
                auto const front = std::next(bindings.begin(), static_cast<int>(record.myVariableBindings.size()));
                record.myVariableBindings.push_back(set);
                bindings.insert(front, set);
                return true;
            }
            return record.takeItem(item, bindings);
        };
        ops.afterItems = [](AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings)
        { static_cast<AxZedObjectParameters&>(rw).finishReading(files, bindings); };
        return ops;
    }
};

AxZedObjectParameters::Entry const AxZedObjectParameters::ourEntry;
AxZedObjectParameterFactory* AxZedObjectParameters::theFactory = nullptr;

AxZedObjectParameterFactory* AxZedObjectParameters::factory()
{
    return theFactory;
}

void AxZedObjectParameters::setFactory(AxZedObjectParameterFactory* factory)
{
    theFactory = factory;
}

void AxZedObjectParameters::addParameterCreatorFcn(AxString const& name, CreatorFcn creator)
{
    if (!theFactory)
    {
        AxWarn("Can't add parameter creator without a parameter factory.\n");
        return;
    }
    theFactory->addCreatorFcn(name, creator);
}

AxZedObjectParameters* AxZedObjectParameters::creator(AxEnvironmentPtr env, AxEnvValuePtr* node)
{
    return new (std::nothrow) AxZedObjectParameters(AxSymbolString(), nullptr, env, node);
}

AxZedObjectParameters* AxZedObjectParameters::createParameters(char const* typeName, AxEnvironmentPtr const& env,
                                                               AxEnvValuePtr* node)
{
    if (!theFactory)
    {
        AxWarn("%s", theNoFactoryLine);
        return nullptr;
    }
    AxString const type(typeName);
    return AxTypeItem::made(
        AxTypeItem::Scope::cell(), type, [&] { return theFactory->createParameters(type, env, node); },
        [](AxZedObjectParameters& record) { record.init(); });
}

AxZedObjectParameters* AxZedObjectParameters::createParameters(AxlObjPtr const& list, AxFilenameList const& files,
                                                               AxBindingsList const& bindings)
{
    if (!theFactory)
    {
        AxWarn("%s", theNoFactoryLine);
        return nullptr;
    }
    // Files written by others may hold the type item further back.
    AxlObj const* const second = list->cdr()->car();
    AxlObj const* const typeItem = typeItemOf(list.get());
    AxlObj const* const typeCell = (typeItem->nil() ? second : typeItem)->cdr()->car();
    AxString const type = typeCell->pname();
    if (typeItem->nil() && !theFactory->knows(type))
    {
        AxlObj const* const place = second->line() != 0 ? second : list.get();
        AxDiagnostics::reportStated(located(place, "type-item-missing", "expected (parameter-type \"...\")"),
                                    AxZedObjectParameterFactory::unknownTypeLine(type));
        return nullptr;
    }
    return AxTypeItem::made(
        typeCell, type,
        [&]
        {
            AxTypeItem::Scope const place(typeCell);
            return createParameters(type.c_str());
        },
        [&](AxZedObjectParameters& record) { record.getSelf(list, files, bindings); });
}

void AxZedObjectParameters::preGetSelf()
{
    clearVariableBindings();
    myExtensionItem = axcNil();
}

void AxZedObjectParameters::getSelf(AxlObjPtr const& expression, AxFilenameList const& files,
                                    AxBindingsList const& bindings)
{
    if (expression->car()->isPair())
    {
        getSelf(AxReadFrame::named(expression, false), files, bindings);
        return;
    }
    std::vector<std::unique_ptr<AxRwVariableBindings>> own;
    for (AxlObj const* rest = expression->cdr(); rest->isPair(); rest = rest->cdr())
    {
        if (headOf(rest->car()) == theBindingsHead())
        {
            own.push_back(bindingsOf(rest->car(), bindings));
        }
    }
    if (own.empty())
    {
        AxReaderWriter::getSelf(expression, files, bindings);
    }
    else
    {
        AxBindingsList known = bindings;
        for (auto set = own.rbegin(); set != own.rend(); ++set)
        {
            known.push_front(set->get());
        }
        AxReaderWriter::getSelf(expression, files, known);
        for (std::unique_ptr<AxRwVariableBindings>& set : own)
        {
            myVariableBindings.push_back(set.release());
        }
    }
    if (!invalid())
    {
        finishReading(files, bindings);
    }
}

void AxZedObjectParameters::finishReading(AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxlObjPtr const extensionItem = std::move(myExtensionItem);
    myExtensionItem = axcNil();
    if (!createStateRepositoryUserExtension(extensionItem, files, bindings) && !extensionItem.nil())
    {
        keepItem(registry()->entry(registry()->size() - 1).keyword, AxTreeCells::printed(extensionItem.get()));
    }
    reportDuplicateData();
}

bool AxZedObjectParameters::createStateRepositoryUserExtension(AxlObjPtr const& item, AxFilenameList const& files,
                                                               AxBindingsList const& bindings)
{
    AxString const& type = stateRepositoryUserExtensionType();
    AxZedStateRepositoryUserExtensionFactory const* const extensions = AxZedStateRepositoryUserExtension::factory();
    std::string cause;
    std::string reason;
    std::unique_ptr<AxZedStateRepositoryUserExtension> made;
    if (type.isNull())
    {
        cause = "No state-repository-extension-type parameter specified";
    }
    else if (!extensions)
    {
        cause = "AxZedStateRepositoryUserExtension factory not specified";
    }
    else
    {
        try
        {
            made.reset(extensions->create(type));
        }
        catch (...)
        {
            reason = std::string(": ") + axReason();
        }
        if (!made)
        {
            bool const isKnown =
                std::find(extensions->keys().begin(), extensions->keys().end(), type) != extensions->keys().end();
            cause = "Cannot create state repository user extension";
            cause += isKnown ? "" : " " + type.string();
        }
    }
    if (!made)
    {
        AxDiagnostic failure = located(item.get(), "user-extension", cause + reason);
        failure.path = AxReaderWriter::name().string().string();
        AxDiagnostics::reportStated(
            std::move(failure),
            "AxZedObjectParameters::getSelf() : Error creating myStateRepositoryUserExtension\n" + cause + '\n');
        return false;
    }
    if (type == AxZedStateRepositoryUserExtension::baseType())
    {
        AxInfo << "Creating myStateRepositoryUserExtension of base type AxZedStateRepositoryUserExtension" << AxEndl;
    }
    AxZedStateRepositoryUserExtension* const extension = made.release();
    setStateRepositoryUserExtension(extension);
    if (!item.nil())
    {
        AxBindingsList known = myVariableBindings;
        known.insert(known.end(), bindings.begin(), bindings.end());
        extension->getSelf(item, files, known);
    }
    return true;
}

void AxZedObjectParameters::reportDuplicateData() const
{
    std::unordered_set<AxSymbolString> stateNames;
    for (AxRwProperty const* property : myStateData)
    {
        stateNames.insert(property->AxReaderWriter::name());
    }
    for (AxRwProperty const* property : myParameterData)
    {
        AxString const& name = property->AxReaderWriter::name().string();
        if (stateNames.contains(property->AxReaderWriter::name()))
        {
            std::string const line = AxReaderWriter::name().string().string() +
                                     " has duplicate parameter and state data named: " + name.string() +
                                     ".  Only state data will be published on the network by that name.";
            AxDiagnostic finding;
            finding.severity = AxSeverity::Warning;
            finding.code = "duplicate-data";
            finding.path = AxReaderWriter::name().string().string();
            finding.text = '"' + name.string() + "\" stands in both \"parameter-data\" and \"state-data\"";
            AxDiagnostics::reportStated(std::move(finding), line + '\n');
        }
    }
}

AxlObjPtr AxZedObjectParameters::getData(AxlObjPtr const& items, AxFilenameList const& files,
                                         AxBindingsList const& bindings)
{
    AxReadFrame* const frame = AxReadFrame::innermost;
    bool const isRead = frame && &frame->record == this;
    AxlObj const* lead = items.get();
    while (lead->isPair() && takeItem(lead->car(), bindings))
    {
        lead = lead->cdr();
    }
    std::vector<AxlObj const*> others;
    bool areAllOthers = true;
    for (AxlObj const* rest = lead; rest->isPair(); rest = rest->cdr())
    {
        if (isRead && isObjectType(headOf(rest->car())))
        {
            // One that cannot be read is kept behind what is kept before it.
            for (AxlObj const* other : others)
            {
                readItem(other, *frame, files, bindings);
            }
            others.clear();
        }
        bool const isTaken = takeItem(rest->car(), bindings);
        areAllOthers = areAllOthers && !isTaken;
        if (!isTaken)
        {
            others.push_back(rest->car());
        }
    }
    if (areAllOthers)
    {
        return AxlObjPtr(lead);
    }
    AxlObjPtr list = axcNil();
    for (auto item = others.rbegin(); item != others.rend(); ++item)
    {
        list = AxcCons(AxlObjPtr(*item), list);
    }
    return list;
}

bool AxZedObjectParameters::takeItem(AxlObj const* item, AxBindingsList const& bindings)
{
    static AxSymbolString const typeHead(theRecordTypeHead);
    static AxSymbolString const extensionHead("user-extension");
    static AxSymbolString const nameHead("record-name");

    AxSymbolString const head = headOf(item);
    if (head.isNull())
    {
        return false;
    }
    constexpr std::size_t noPlace = 3;
    std::size_t const place = head == extensionHead      ? 0
                              : head == objectTypeHead() ? 1
                              : head == matchTypeHead()  ? 2
                                                         : noPlace;
    AxReadFrame* const frame = AxReadFrame::innermost;
    // These are no members; behind the members there is room to note them.
    if (place != noPlace && frame && &frame->record == this && frame->markSeen(registry()->size() + place))
    {
        AxDiagnostic again = located(item, "repeated-keyword",
                                     '"' + head.string().string() + "\" is given again; the later value counts");
        again.severity = AxSeverity::Warning;
        AxDiagnostics::report(std::move(again));
    }
    if (place == 0)
    {
        myExtensionItem = AxlObjPtr(item);
        return true;
    }
    if (isObjectType(head))
    {
        AxRwObjectType type(head, nullptr);
        type.getSelf(AxlObjPtr(item), nullFilenames(), bindings);
        if (type.valueSpecified() && (!type.isVariableReference() || type.variableIsBound()))
        {
            (head == objectTypeHead() ? myObjectType : myMatchType) = type.value();
        }
        else
        {
            keepItem(AxSymbolString(), AxTreeCells::printed(item));
        }
        return true;
    }
    if (head == nameHead)
    {
        setName(item->cdr()->car()->pname());
        return true;
    }
    return head == typeHead || head == theBindingsHead();
}

void AxZedObjectParameters::putData(std::string& out, int indent)
{
    AxTypeItem::write(out, indent, theRecordTypeHead, type());
    for (AxRwVariableBindings const* bindings : myVariableBindings)
    {
        out += '\n';
        putIndent(out, indent + 1);
        const_cast<AxRwVariableBindings*>(bindings)->putSelf(out, indent + 1, true, AxFilename::nullFilename());
    }
}
