#include "AxComponentSystemDescriptor.h"

#include "AxComponentSystemDefinition.h"
#include "AxFaultAt.h"
#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxRwVariableBindings.h"
#include "AxTreeCells.h"
#include "AxUnreadDefinition.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"
#include "axTryNew.h"

#include <vector>

static AxTypeEntry<AxComponentSystemDescriptor> const componentSystemDescriptorEntry;

namespace
{
/// A definition whose variables are being bound; the systems in it leave their references to the outermost.
class DefinitionScope
{
public:
    DefinitionScope() { ++ourDepth; }
    DefinitionScope(DefinitionScope const&) = delete;
    DefinitionScope& operator=(DefinitionScope const&) = delete;
    ~DefinitionScope() { --ourDepth; }

    static bool isOutermost() { return ourDepth == 1; }

private:
    static inline unsigned ourDepth = 0;
};

AxlObjPtr listOf(std::vector<AxlObj const*> const& cells)
{
    AxlObjPtr list;
    for (auto cell = cells.rbegin(); cell != cells.rend(); ++cell)
    {
        list = AxcCons(AxlObjPtr(*cell), list);
    }
    return list;
}
} // namespace

AxComponentSystemDescriptor::AxComponentSystemDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
    attachDefinition();
    myIsEnabled.setValueSpecified(true, false);
}

AxComponentSystemDescriptor::AxComponentSystemDescriptor(AxString const& name, AxReaderWriterRegistry* registry)
    : AxComponentSystemDescriptor(AxSymbolString(name), registry)
{
}

AxComponentSystemDescriptor::AxComponentSystemDescriptor(char const* name, AxReaderWriterRegistry* registry)
    : AxComponentSystemDescriptor(AxSymbolString(name), registry)
{
}

AxComponentSystemDescriptor::AxComponentSystemDescriptor(AxSymbolString name, AxComponentSystemDescriptor const& other,
                                                         AxReaderWriterRegistry* registry)
    : AxComponentSystemDescriptor(name, registry)
{
    *this = other;
}

AxComponentSystemDescriptor::AxComponentSystemDescriptor(AxComponentSystemDescriptor const& other,
                                                         AxReaderWriterRegistry* registry)
    : AxComponentSystemDescriptor(other.AxReaderWriter::name(), other, registry)
{
}

AxComponentSystemDescriptor::~AxComponentSystemDescriptor()
{
    mySystemDefinitionFile.setContent(nullptr);
}

AxComponentSystemDescriptor& AxComponentSystemDescriptor::operator=(AxComponentSystemDescriptor const& other)
{
    if (this != &other)
    {
        // What the other's definition declares may have changed since its members were made.
        for (std::size_t i = 0; i < other.registryIfAny()->size(); ++i)
        {
            AxRegistryEntry const entry = other.registryIfAny()->entry(i);
            if (!entry.content && !registry()->lookup(entry.keyword))
            {
                registry()->createMember(entry.member->readerWriterType(), entry.keyword);
            }
        }
        assign(other);
    }
    return *this;
}

void AxComponentSystemDescriptor::attachDefinition()
{
    AxSymbolString const keyword = mySystemDefinitionFile.AxReaderWriter::name();
    myDefinition = std::make_unique<AxComponentSystemDefinition>(keyword, nullptr);
    registry()->addContentEntry(keyword, myDefinition.get());
    mySystemDefinitionFile.setContent(myDefinition.get());
}

void AxComponentSystemDescriptor::resetSystemDefinition()
{
    mySystemDefinitionFile.setContent(nullptr);
    attachDefinition();
    mySystemDefinitionFile.clearChanged();
}

void AxComponentSystemDescriptor::setSystemDefinitionFile(AxFilename const& file)
{
    assignSpecified(mySystemDefinitionFile, file);
}

void AxComponentSystemDescriptor::setIsEnabled(bool enabled)
{
    assignSpecified(myIsEnabled, enabled);
}

void AxComponentSystemDescriptor::setPartOfRollUp(bool part)
{
    assignSpecified(myPartOfRollUp, part);
}

void AxComponentSystemDescriptor::addVariableBindingsFromMetaData()
{
    for (AxSystemParameterData const* parameter : myDefinition->metaData().paramterDataList())
    {
        AxSymbolString const keyword(parameter->parameterName());
        AxString const& type = parameter->variableType();
        if (keyword.isNull())
        {
            continue;
        }
        AxReaderWriter const* const present = registry()->lookup(keyword);
        AxReaderWriter* const made = present ? nullptr : registry()->createMember(type, keyword);
        if (made)
        {
            parameter->assignDefaultValueToReaderWriter(made);
        }
        else if (!present || !(type == present->readerWriterType()))
        {
            std::string text = "parameter \"" + keyword.string().string() + "\" of the system \"" +
                               AxReaderWriter::name().string().string() + "\" ";
            text += present ? "has the name of another member" : "is of the unknown type \"" + type.string() + '"';
            AxDiagnostics::report(axFaultAt(AxSeverity::Warning, present ? "parameter-name-taken" : "unknown-type",
                                            AxlObj::nilCell(), std::move(text)));
        }
    }
}

AxComponentSystemDescriptor* AxComponentSystemDescriptor::clone(AxReaderWriterRegistry* registry) const
{
    return axTryNew<AxComponentSystemDescriptor>(*this, registry);
}

AxlObjPtr AxComponentSystemDescriptor::getData(AxlObjPtr const& items, AxFilenameList const& files,
                                               AxBindingsList const& bindings)
{
    // The definition declares the keywords of other items, so it is read before them wherever it stands.
    std::vector<AxlObj const*> definition;
    std::vector<AxlObj const*> others;
    std::vector<std::pair<AxSymbolString, AxlObj const*>> open; ///< that may be declared, behind what they stand
    AxSymbolString last;
    for (AxlObj const* rest = items.get(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const* const item = rest->car();
        AxSymbolString const keyword = item->car()->symbol();
        AxReaderWriter const* const member = registry()->find(keyword);
        (member == &mySystemDefinitionFile ? definition : others).push_back(item);
        last = member ? member->AxReaderWriter::name() : last;
        if (!member && !keyword.isNull() && keyword != AxTreeCells::theXmlHead)
        {
            open.emplace_back(last, item);
        }
    }
    if (!definition.empty())
    {
        readItems(listOf(definition).get(), files, bindings);
    }
    addVariableBindingsFromMetaData();
    if (axHasUnreadDefinition(*this))
    {
        auto left = open.begin();
        std::erase_if(others,
                      [&](AxlObj const* item)
                      {
                          if (left == open.end() || left->second != item)
                          {
                              return false;
                          }
                          std::string text;
                          axAppendCell(text, item);
                          keepItem(left++->first, std::move(text));
                          return true;
                      });
    }
    return definition.empty() ? items : listOf(others);
}

void AxComponentSystemDescriptor::postGetSelf()
{
    if (!isReadForAnother())
    {
        bindReferencesInDefinition({});
    }
}

/// Whether what was read stands in the definition of a system that is being read, which binds the references of both.
/// Were they bound for each system in turn, the time would be the third power of the depth.
bool AxComponentSystemDescriptor::isReadForAnother()
{
    for (AxReadFrame const* inner = AxReadFrame::innermost; inner; inner = inner->outer)
    {
        if (!dynamic_cast<AxComponentSystemDefinition const*>(&inner->record))
        {
            continue;
        }
        for (AxReadFrame const* frame = inner->outer; frame; frame = frame->outer)
        {
            auto const* const system = dynamic_cast<AxComponentSystemDescriptor const*>(&frame->record);
            if (system && system->myDefinition.get() == &inner->record)
            {
                return true;
            }
        }
    }
    return false;
}

template <class Bind>
void AxComponentSystemDescriptor::bindParameters(Bind const& bind)
{
    for (std::size_t i = 0; i < registry()->size(); ++i)
    {
        AxRegistryEntry const entry = registry()->entry(i);
        if (!entry.content && entry.member != &mySystemDefinitionFile)
        {
            bind(*entry.member);
        }
    }
}

void AxComponentSystemDescriptor::bindVariables(AxBindingsList const& bindings)
{
    if (isVariableReference())
    {
        readBinding(nullFilenames(), bindings);
    }
    bindParameters([&](AxReaderWriter& member) { member.bindVariables(bindings); });
    DefinitionScope const scope;
    mySystemDefinitionFile.bindVariables(bindings);
    if (scope.isOutermost())
    {
        bindReferencesInDefinition({});
    }
}

void AxComponentSystemDescriptor::bindLocalVariables(AxBindingsList const& bindings)
{
    // As every record does it, but for the definition, which is walked once for all that may be known in it: walked
    // twice, the time would double with each definition inside another.
    if (isVariableReference() && !variableIsBound())
    {
        readBinding(nullFilenames(), bindings);
    }
    bindParameters([&](AxReaderWriter& member) { member.bindLocalVariables(bindings); });
    mySystemDefinitionFile.AxReaderWriter::bindLocalVariables(bindings);
    bindReferencesInDefinition(bindings);
}

void AxComponentSystemDescriptor::bindReferencesInDefinition(AxBindingsList const& others)
{
    if (!myDefinition->hasVariableReference())
    {
        return;
    }
    AxRwVariableBindings values;
    for (std::size_t i = 0; i < registry()->size(); ++i)
    {
        AxRegistryEntry const entry = registry()->entry(i);
        bool const isOpen = entry.member->isVariableReference() && !entry.member->variableIsBound();
        if (!entry.content && !isOpen && entry.member != &mySystemDefinitionFile)
        {
            std::string text = "(";
            entry.member->putData(text, 0);
            AxlInputStream stream(text + ')');
            values.set(entry.keyword, AxcRead(stream));
        }
    }
    bool const wasChanged = mySystemDefinitionFile.contentChanged();
    AxBindingsList sets = others;
    sets.push_front(&values); // the nearest counts
    myDefinition->bindLocalVariables(sets);
    if (!wasChanged)
    {
        mySystemDefinitionFile.clearChanged(); // a reference that is bound is written as it was
    }
}

char const* AxComponentSystemDescriptor::readerWriterType() const
{
    return "AxComponentSystemDescriptor";
}

char const* AxComponentSystemDescriptor::xmlType() const
{
    return "AxComponentSystemDescriptor";
}
