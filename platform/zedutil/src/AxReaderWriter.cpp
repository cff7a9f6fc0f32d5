#include "AxReaderWriter.h"

#include "AxPlainValue.h"
#include "AxReaderWriterFactory.h"
#include "AxReaderWriterFile.h"
#include "AxRegistryShape.h"
#include "AxRwList.h"
#include "AxRwProperty.h"

#include <algorithm>
#include <boost/filesystem/operations.hpp>
#include <cstring>

namespace
{
std::function<double()>& timeSource()
{
    static auto* const source = new std::function<double()>;
    return *source;
}

AxFilename& applicationPath()
{
    static auto* const path = new AxFilename;
    return *path;
}
} // namespace

AxReaderWriter::Rest::Rest(AxReaderWriter* owner, AxSymbolString itsName) : name(itsName), registry(owner) {}

AxReaderWriter::Rest::~Rest() = default;

/// The numbers of what stands apart. Never destroyed, because static objects may have such.
struct AxReaderWriter::RestTable
{
    std::vector<Rest*> all;
    std::vector<std::uint32_t> gaps; // numbers that are free

    static RestTable& get()
    {
        static auto* const table = new RestTable;
        return *table;
    }
    /// One for each member of an object that is made. False, and nothing done, where that takes more than a step.
    static bool bindNext(AxReaderWriter& member, AxKeyword const& keyword, AxReaderWriterRegistry& registry)
    {
        AxReaderWriter const& owner = *registry.myOwner;
        AxRegistryShape* const next = registry.myShape + 1;
        std::size_t const distance =
            reinterpret_cast<std::uintptr_t>(&member) - reinterpret_cast<std::uintptr_t>(&owner);
        if (!next->isFor(owner, keyword, distance) || registry.myOwn) [[unlikely]]
        {
            return false;
        }
        registry.bindTo(*next, member);
        return true;
    }
    /// A function of its own, so that the usual way needs no room on the stack.
    [[gnu::noinline]] static void bindOtherwise(AxReaderWriter& member, AxKeyword const& keyword,
                                                AxReaderWriterRegistry* registry)
    {
        if (registry)
        {
            registry->bind(member, keyword);
            return;
        }
        member.makeRest().name = AxSymbolString(keyword.text);
    }
    /// For an object that is not made after all; its destructor will not run.
    static void giveUp(AxReaderWriter& member)
    {
        if (member.hasRest())
        {
            member.leaveParent();
            member.dropRest();
        }
    }
};

AxReaderWriter::Rest** AxReaderWriter::ourRests = nullptr;

AxReaderWriter::AxReaderWriter(AxSymbolString name, AxReaderWriterRegistry* registry, bool specified)
    : myFlags(specified ? static_cast<std::uint16_t>(Specified) : std::uint16_t{0})
{
    try
    {
        if (!name.isNull())
        {
            makeRest().name = name;
        }
        enter(registry);
    }
    catch (...)
    {
        RestTable::giveUp(*this);
        throw;
    }
}

AxReaderWriter::AxReaderWriter(AxString const& name, AxReaderWriterRegistry* registry, bool specified)
    : AxReaderWriter(AxSymbolString(name), registry, specified)
{
}

AxReaderWriter::AxReaderWriter(char const* name, AxReaderWriterRegistry* registry, bool specified)
    : AxReaderWriter(AxSymbolString(name), registry, specified)
{
}

AxReaderWriter::AxReaderWriter(AxKeyword const& keyword, AxReaderWriterRegistry* registry, Flag flags) : myFlags(flags)
{
    if (!registry || !RestTable::bindNext(*this, keyword, *registry)) [[unlikely]]
    {
        try
        {
            RestTable::bindOtherwise(*this, keyword, registry);
        }
        catch (...)
        {
            RestTable::giveUp(*this);
            throw;
        }
    }
}

AxReaderWriter::AxReaderWriter(AxKeyword const& keyword, AxReaderWriterRegistry* registry, Flag flags,
                               std::uint64_t initial)
    : AxReaderWriter(keyword, registry, flags)
{
    if (myPlace == 0 || !registry->myShape->details->isInitial(initial)) [[unlikely]]
    {
        noteInitialValue(&initial, sizeof initial);
    }
}

AxReaderWriter::AxReaderWriter(AxSymbolString name, AxReaderWriter const& other, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
    carryState(other);
}

AxReaderWriter::AxReaderWriter(AxReaderWriter const& other) : AxReaderWriter(other.AxReaderWriter::name(), nullptr)
{
    carryState(other);
}

inline AxReaderWriterRegistry& AxReaderWriter::ownersRegistry() const
{
    auto const* const owner = reinterpret_cast<AxReaderWriter const*>(reinterpret_cast<std::uintptr_t>(this) -
                                                                      myPlace * AxRegistryShape::theUnit);
    return owner->restOrNull()->registry;
}

AxReaderWriter::~AxReaderWriter()
{
    if (myPlace == 0 || hasRest() || !ownersRegistry().leave(*this)) [[unlikely]]
    {
        leaveOtherwise();
    }
}

[[gnu::noinline]] void AxReaderWriter::leaveOtherwise()
{
    if (myPlace != 0)
    {
        ownersRegistry().removeMember(*this);
    }
    if (hasRest())
    {
        leaveParent();
        dropRest();
    }
}

void AxReaderWriter::leaveParent()
{
    if (AxReaderWriterRegistry* const parent = restOrNull()->parent)
    {
        parent->removeEntry(this);
    }
}

AxReaderWriter::Rest& AxReaderWriter::makeRest()
{
    auto made = std::make_unique<Rest>(this, AxReaderWriter::name());
    made->stamp = myStampOrNumber;
    std::vector<Rest*>& all = RestTable::get().all;
    std::vector<std::uint32_t>& gaps = RestTable::get().gaps;
    if (gaps.empty())
    {
        if (all.size() == all.capacity())
        {
            all.reserve(std::max<std::size_t>(64, 2 * all.size()));
            ourRests = all.data();
        }
        gaps.reserve(all.capacity()); // so that giving a number back takes no memory
        all.push_back(nullptr);
        gaps.push_back(static_cast<std::uint32_t>(all.size() - 1));
    }
    myStampOrNumber = gaps.back();
    gaps.pop_back();
    setFlag(RestApart, true);
    return *(all[myStampOrNumber] = made.release());
}

void AxReaderWriter::dropRest()
{
    Rest* const dropped = std::exchange(ourRests[myStampOrNumber], nullptr);
    RestTable::get().gaps.push_back(myStampOrNumber);
    myStampOrNumber = dropped->stamp;
    setFlag(RestApart, false);
    delete dropped;
}

AxReaderWriter::Rare& AxReaderWriter::rare()
{
    Rest& mine = rest();
    if (!mine.rare)
    {
        mine.rare = std::make_unique<Rare>();
    }
    return *mine.rare;
}

AxReaderWriter::Rare const* AxReaderWriter::rareOrNull() const
{
    Rest const* const mine = restOrNull();
    return mine ? mine->rare.get() : nullptr;
}

void AxReaderWriter::enter(AxReaderWriterRegistry* registry)
{
    if (registry)
    {
        registry->addEntry(AxReaderWriter::name(), this);
    }
}

AxReaderWriterRegistry* AxReaderWriter::parentRegistry() const
{
    if (myPlace != 0)
    {
        return &ownersRegistry();
    }
    Rest const* const mine = restOrNull();
    return mine ? mine->parent : nullptr;
}

AxKeyword const* AxReaderWriter::description() const
{
    AxReaderWriterRegistry const* const registry = parentRegistry();
    return registry ? registry->description(this) : nullptr;
}

AxSymbolString AxReaderWriter::name() const
{
    if (Rest const* const mine = restOrNull())
    {
        return mine->name;
    }
    return myPlace != 0 ? ownersRegistry().nameAt(myPlace) : AxSymbolString();
}

void AxReaderWriter::setName(AxString const& name)
{
    AxSymbolString const symbol(name);
    AxSymbolString const former = AxReaderWriter::name();
    AxReaderWriterRegistry* const registry = symbol != former ? parentRegistry() : nullptr;
    if (registry && (registry->ownEntry(this) || registry->lookup(former) == this))
    {
        registry->removeEntry(symbol.isNull() ? nullptr : registry->lookup(symbol));
        if (!registry->ownEntry(this))
        {
            registry->leaveShape();
        }
        registry->ownEntry(this)->keyword = symbol;
        if (AxReaderWriter* const owner = registry->owner(); owner && owner->flag(KeepsItems))
        {
            for (AxKeptItem& item : owner->rare().kept)
            {
                item.after = item.after == former ? symbol : item.after;
            }
        }
    }
    rest().name = symbol;
}

void AxReaderWriter::setValueSpecified(bool specified, bool ownOnly)
{
    setFlag(Specified, specified);
    if (AxReaderWriterRegistry* const members = ownOnly ? nullptr : registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            if (!entry.content)
            {
                entry.member->setValueSpecified(specified, false);
            }
        }
    }
}

bool AxReaderWriter::valueSpecified() const
{
    return flag(Specified);
}

void AxReaderWriter::addAlias(AxString const& alias)
{
    AxReaderWriter::addAlias(AxSymbolString(alias));
}

void AxReaderWriter::addAlias(AxSymbolString alias)
{
    if (!alias.isNull() && !AxReaderWriter::hasAlias(alias))
    {
        rare().aliases.push_back(alias);
    }
}

bool AxReaderWriter::hasAlias(AxSymbolString alias) const
{
    Rare const* const mine = rareOrNull();
    return mine && std::find(mine->aliases.begin(), mine->aliases.end(), alias) != mine->aliases.end();
}

std::vector<AxSymbolString> const& AxReaderWriter::aliases() const
{
    static std::vector<AxSymbolString> const none;
    Rare const* const mine = rareOrNull();
    return mine ? mine->aliases : none;
}

void AxReaderWriter::setReadonly(bool readonly)
{
    setFlag(Readonly, readonly);
}

void AxReaderWriter::reset()
{
    if (AxReaderWriterRegistry* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            if (!entry.content)
            {
                entry.member->reset();
            }
        }
    }
    dropReference();
    dropKeptItems();
    setFlag(Specified, false);
    setFlag(Invalid, false);
    stamp();
}

int AxReaderWriter::alignment() const
{
    return static_cast<int>(alignof(std::max_align_t));
}

void AxReaderWriter::setDefaultRWValue(AxReaderWriter* value)
{
    Rare const* const mine = rareOrNull();
    if (value != (mine ? mine->defaultValue.get() : nullptr))
    {
        rare().defaultValue.reset(value);
    }
}

AxReaderWriter* AxReaderWriter::defaultRWValue()
{
    Rare const* const mine = rareOrNull();
    return mine ? mine->defaultValue.get() : nullptr;
}

AxReaderWriter const* AxReaderWriter::defaultRWValue() const
{
    Rare const* const mine = rareOrNull();
    return mine ? mine->defaultValue.get() : nullptr;
}

void AxReaderWriter::noteInitialValue(void const* bytes, std::size_t size)
{
    if (myPlace != 0)
    {
        AxRegistryShape::Details& shared = *ownersRegistry().myShape->details;
        if (shared.initialSize == 0 && size <= sizeof shared.initial)
        {
            std::memcpy(shared.initial, bytes, size);
            shared.initialSize = size;
        }
        if (shared.initialSize == size && std::memcmp(shared.initial, bytes, size) == 0)
        {
            return;
        }
    }
    auto const* const first = static_cast<unsigned char const*>(bytes);
    rare().initial.assign(first, first + size);
}

bool AxReaderWriter::initialValue(void* bytes, std::size_t size) const
{
    if (Rare const* const mine = rareOrNull(); mine && mine->initial.size() == size)
    {
        std::memcpy(bytes, mine->initial.data(), size);
        return true;
    }
    if (myPlace == 0)
    {
        return false;
    }
    AxRegistryShape const* const shape = ownersRegistry().shapeOf(this);
    if (!shape || shape->details->initialSize != size)
    {
        return false;
    }
    std::memcpy(bytes, shape->details->initial, size);
    return true;
}

std::uint32_t AxReaderWriter::ourStamp = 0;
bool AxReaderWriter::ourHasTimeSource = false;

void AxReaderWriter::stampOtherwise()
{
    Rare* const mine = ourHasTimeSource ? &rare() : nullptr;
    std::uint32_t& last = (myFlags & RestApart) != 0 ? restOrNull()->stamp : myStampOrNumber;
    last = ++ourStamp; // with a clock as well, for its times may be equal or lie below what was stamped before
    if (!mine)
    {
        return;
    }
    try
    {
        mine->time = timeSource()();
        mine->timed = last;
    }
    catch (...)
    {
        mine->timed = 0; // the host's clock may throw anything; the stamp has to do
    }
}

void AxReaderWriter::setTimeSource(std::function<double()> source)
{
    timeSource() = std::move(source);
    ourHasTimeSource = static_cast<bool>(timeSource());
}

/// Of this object, its members and elements, and of what they hold besides.
std::uint32_t AxReaderWriter::latestStamp() const
{
    std::uint32_t latest = lastStamp();
    auto const include = [&latest](AxReaderWriter const* below)
    { latest = below ? std::max(latest, below->latestStamp()) : latest; };
    if (AxReaderWriterRegistry const* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            include(entry.content ? nullptr : entry.member);
        }
    }
    if (flag(List))
    {
        for (AxListItem const* item = static_cast<AxRwList const*>(this)->first(); item; item = item->next())
        {
            include(AxRwList::element(item));
        }
    }
    if (AxRwProperty const* const held = property())
    {
        include(held->rwValue());
    }
    if (auto const* const file = dynamic_cast<AxReaderWriterFile const*>(this))
    {
        include(file->contentKind() == AxReaderWriterFile::ContentKind::Member ? nullptr : file->content());
    }
    return latest;
}

double AxReaderWriter::recordUpdateTime() const
{
    Rare const* const mine = rareOrNull();
    std::uint32_t const last = lastStamp();
    double latest = mine && mine->timed != 0 && mine->timed == last ? mine->time : last;
    if (AxReaderWriterRegistry const* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            latest = entry.content ? latest : std::max(latest, entry.member->recordUpdateTime());
        }
    }
    if (flag(List))
    {
        for (AxListItem const* item = static_cast<AxRwList const*>(this)->first(); item; item = item->next())
        {
            latest = std::max(latest, AxRwList::element(item)->recordUpdateTime());
        }
    }
    return latest;
}

bool AxReaderWriter::wasUpdatedSince(double time) const
{
    return recordUpdateTime() > time;
}

AxRwProperty const* AxReaderWriter::property() const
{
    return nullptr;
}

AxRwProperty* AxReaderWriter::property()
{
    return nullptr;
}

char const* AxReaderWriter::readerWriterType() const
{
    return "AxReaderWriter";
}

char const* AxReaderWriter::xmlType() const
{
    return "readerWriter";
}

void AxReaderWriter::carryState(AxReaderWriter const& other)
{
    constexpr std::uint16_t carried = Specified | Inherited | VariableReference | VariableBound | KeepsItems;
    std::uint16_t const before = myFlags;
    myFlags = static_cast<std::uint16_t>((myFlags & ~carried) | (other.myFlags & carried));
    if (((before | other.myFlags) & (VariableReference | KeepsItems)) != 0)
    {
        Rare& mine = rare();
        if (Rare const* const theirs = other.rareOrNull())
        {
            mine.variableName = theirs->variableName;
            mine.written = theirs->written;
            mine.kept = theirs->kept;
            adoptKeptItems(other);
        }
        else
        {
            mine.variableName = AxSymbolString();
            mine.written.clear();
            mine.kept.clear();
        }
    }
    stamp();
}

void AxReaderWriter::adoptKeptItems(AxReaderWriter const& other)
{
    for (AxKeptItem& item : rare().kept)
    {
        if (item.replaces)
        {
            AxReaderWriter const* const mine = registry()->lookup(item.after);
            item.stamp = mine && other.standsFor(item) ? mine->lastStamp() : ourStamp + 1;
        }
    }
}

bool AxReaderWriter::standsFor(AxKeptItem const& item) const
{
    AxReaderWriterRegistry const* const members = item.replaces ? registryIfAny() : nullptr;
    AxReaderWriter const* const member = members ? members->lookup(item.after) : nullptr;
    return member && (member->lastStamp() == item.stamp || member->inherited());
}

AxReaderWriter& AxReaderWriter::operator=(AxReaderWriter const& other)
{
    assign(other);
    return *this;
}

void AxReaderWriter::assign(AxReaderWriter const& other)
{
    if (this == &other)
    {
        return;
    }
    AxReaderWriterRegistry* const mine = registryIfAny();
    AxReaderWriterRegistry const* const theirs = other.registryIfAny();
    if (mine && theirs)
    {
        std::size_t const shared = mine->myShape == theirs->myShape ? mine->assignShared(*theirs) : 0;
        for (std::size_t i = shared; i < mine->size(); ++i)
        {
            AxRegistryEntry const entry = mine->entry(i);
            AxReaderWriter const* const source = entry.content ? nullptr : theirs->find(entry.keyword);
            if (source)
            {
                factory()->copyReaderWriter(source, entry.member);
            }
        }
    }
    carryState(other);
}

bool AxReaderWriter::operator==(AxReaderWriter const& other) const
{
    AxReaderWriterRegistry const* const mine = registryIfAny();
    AxReaderWriterRegistry const* const theirs = other.registryIfAny();
    if (!mine || !theirs)
    {
        return (mine ? mine->comparedCount() : 0) == (theirs ? theirs->comparedCount() : 0);
    }
    return *mine == *theirs;
}

bool AxReaderWriter::hasChild(AxReaderWriter const* child) const
{
    if (AxReaderWriterRegistry const* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxReaderWriter const* const member = members->entry(i).member;
            if (member == child || member->hasChild(child))
            {
                return true;
            }
        }
    }
    if (flag(List))
    {
        for (AxListItem const* item = static_cast<AxRwList const*>(this)->first(); item; item = item->next())
        {
            AxReaderWriter const* const element = AxRwList::element(item);
            if (element == child || element->hasChild(child))
            {
                return true;
            }
        }
    }
    return false;
}

std::vector<std::pair<AxSymbolString, std::string>> AxReaderWriter::keptItems() const
{
    std::vector<std::pair<AxSymbolString, std::string>> items;
    if (flag(KeepsItems))
    {
        for (AxKeptItem const& item : rareOrNull()->kept)
        {
            items.emplace_back(item.after, item.text);
        }
    }
    return items;
}

void AxReaderWriter::keepItem(AxSymbolString after, std::string text)
{
    rare().kept.push_back({after, std::move(text)});
    setFlag(KeepsItems, true);
}

void AxReaderWriter::keepBehind(AxSymbolString keyword)
{
    if (flag(KeepsItems))
    {
        for (AxKeptItem& item : rare().kept)
        {
            item.after = item.after.isNull() ? keyword : item.after;
        }
    }
}

void AxReaderWriter::dropKeptItems()
{
    if (flag(KeepsItems))
    {
        rare().kept.clear();
        setFlag(KeepsItems, false);
    }
}

AxFilename AxReaderWriter::appPath()
{
    AxFilename& path = applicationPath();
    if (path.isNull())
    {
        boost::system::error_code ignored;
        path = AxFilename(boost::filesystem::current_path(ignored).string());
    }
    return path;
}

void AxReaderWriter::setAppPath(AxFilename const& path)
{
    applicationPath() = path;
}

AxBindingsList const& AxReaderWriter::nullVariableReference()
{
    static AxBindingsList const none;
    return none;
}

AxFilenameList const& AxReaderWriter::nullFilenames()
{
    static AxFilenameList const none;
    return none;
}
