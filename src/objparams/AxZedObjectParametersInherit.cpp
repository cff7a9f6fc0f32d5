#include "AxZedObjectParameters.h"

#include "AxReaderWriterFactory.h"

namespace
{
/// A variable belongs to the record that names it: another record takes the value. Elements of lists keep theirs, since
/// an inherited list is never written.
void dropReferences(AxReaderWriter& rw)
{
    rw.setIsVariableReference(false);
    AxReaderWriterRegistry const* const members = rw.registryIfAny();
    for (std::size_t i = 0; members && i < members->size(); ++i)
    {
        AxRegistryEntry const entry = members->entry(i);
        if (!entry.content)
        {
            dropReferences(*entry.member);
        }
    }
}

/// A value that is taken, or left, whole.
void inheritWhole(AxReaderWriter& mine, AxReaderWriter const& theirs, bool takesDefaults)
{
    if (mine.valueSpecified() || !(takesDefaults || theirs.valueSpecified() || theirs.inherited()))
    {
        return;
    }
    auto* const file = dynamic_cast<AxReaderWriterFile*>(&mine);
    if (file && file->content() && file->content()->isDue())
    {
        return; // the content was given here, so the other's file does not apply
    }
    if (AxReaderWriter::factory()->copyReaderWriter(&theirs, &mine))
    {
        dropReferences(mine);
        mine.setValueSpecified(false, false);
        mine.dropKeptItems();
        mine.setInherited(true);
        if (file && !static_cast<AxReaderWriterFile const&>(theirs).contentChanged())
        {
            file->clearChanged();
        }
    }
}

bool isNestedRecord(AxReaderWriter const& member)
{
    AxReaderWriterRegistry const* const members = member.registryIfAny();
    return members && members->size() != 0 && !dynamic_cast<AxRwList const*>(&member) &&
           !dynamic_cast<AxReaderWriterFile const*>(&member) && !dynamic_cast<AxRwBoundingVolume const*>(&member);
}

void inheritMember(AxReaderWriter& mine, AxReaderWriterRegistry const& sources, AxSymbolString keyword,
                   bool takesDefaults)
{
    AxReaderWriter const* const theirs = sources.find(keyword);
    if (!theirs)
    {
        return;
    }
    if (!isNestedRecord(mine))
    {
        inheritWhole(mine, *theirs, takesDefaults);
        return;
    }
    AxReaderWriterRegistry const* const inner = theirs->registryIfAny();
    AxReaderWriterRegistry const& members = *mine.registry();
    for (std::size_t i = 0; inner && i < members.size(); ++i)
    {
        AxRegistryEntry const entry = members.entry(i);
        if (!entry.content)
        {
            inheritMember(*entry.member, *inner, entry.keyword, takesDefaults);
        }
    }
}
} // namespace

void AxZedObjectParameters::inheritFrom(AxZedObjectParameters const& parent, bool takesDefaults)
{
    static AxSymbolString const displayName("display-name");
    static AxSymbolString const extension("user-extension");
    bool const sharesExtension =
        myUserExtension && parent.myUserExtension && myUserExtension->type() == parent.myUserExtension->type();
    AxReaderWriterRegistry const& members = *registry();
    for (std::size_t i = 0; i < members.size(); ++i)
    {
        AxRegistryEntry const entry = members.entry(i);
        if (entry.keyword != displayName && (entry.keyword != extension || sharesExtension))
        {
            inheritMember(*entry.member, *parent.registryIfAny(), entry.keyword, takesDefaults);
        }
    }
}

void AxZedObjectParameters::inheritValues(AxZedObjectParameters const* parent)
{
    if (parent && parent != this)
    {
        inheritFrom(*parent, false);
    }
}

void AxZedObjectParameters::inheritValuesFromThisType(AxZedObjectParameters const* other)
{
    if (other && other != this && other->type() == type())
    {
        inheritFrom(*other, true);
    }
}
