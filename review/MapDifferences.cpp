#include "review/MapDifferences.h"

#include "map/WrittenObjects.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace
{

/// Appends what differs between two states of the same object.
void appendKinds(std::vector<ChangeKind>& kinds, const MapObject& before, const MapObject& after)
{
    const RegisterEntry& was = before.head;
    const RegisterEntry& is = after.head;
    const auto append = [&](bool changed, ChangeKind kind)
    {
        if (changed)
            kinds.push_back(kind);
    };
    append(before.space != after.space || was.address != is.address, ChangeKind::Moved);
    append(was.type != is.type, ChangeKind::Retyped);
    append(was.registerCount != is.registerCount, ChangeKind::Resized);
    append(byteOrderCharacters(was) != byteOrderCharacters(is), ChangeKind::ByteOrder);
    append(was.write != is.write, ChangeKind::Write);
    append(was.description != is.description, ChangeKind::Description);
    append(was.locked != is.locked, ChangeKind::Lock);
}

/// What an object has to share with one that is gone to be taken for it.
struct Identity
{
    InternedText tagname;
    DataType type;
    std::optional<RegisterSpace> space; ///< nothing when any space will do

    friend bool operator==(const Identity&, const Identity&) = default;
};

struct IdentityHash
{
    std::size_t operator()(const Identity& identity) const
    {
        return std::hash<InternedText>{}(identity.tagname) * allDataTypes.size() +
               static_cast<std::size_t>(identity.type);
    }
};

/// The objects that have come, to be taken one by one by those that are gone; equal ones in the order of the map.
class Arrivals
{
public:
    Arrivals(const std::vector<MapObject>& arrived, bool insideSpace)
        : objects(arrived), bySpace(insideSpace), nextEqual(arrived.size(), none), taken(arrived.size(), false)
    {
        first.reserve(objects.size());
        for (std::size_t i = objects.size(); i-- > 0;)
        {
            const auto [entry, isNew] = first.try_emplace(identityOf(objects[i]), none);
            nextEqual[i] = std::exchange(entry->second, i);
        }
    }

    /// @return nothing when no object is left that the one that is gone may be
    const MapObject* take(const MapObject& gone)
    {
        const auto entry = first.find(identityOf(gone));
        if (entry == first.end() || entry->second == none)
            return nullptr;
        const std::size_t i = std::exchange(entry->second, nextEqual[entry->second]);
        taken[i] = true;
        return &objects[i];
    }

    /// The objects that nobody took.
    std::vector<MapObject> rest() const
    {
        std::vector<MapObject> left;
        for (std::size_t i = 0; i < objects.size(); ++i)
        {
            if (!taken[i])
                left.push_back(objects[i]);
        }
        return left;
    }

private:
    static constexpr auto none = static_cast<std::size_t>(-1);

    Identity identityOf(const MapObject& object) const
    {
        return {object.head.tagname, object.head.type, bySpace ? std::optional(object.space) : std::nullopt};
    }

    const std::vector<MapObject>& objects;
    bool bySpace;
    std::vector<std::size_t> nextEqual;
    std::vector<bool> taken;
    std::unordered_map<Identity, std::size_t, IdentityHash> first;
};

/// Collects what differs, address by address first.
class Comparison
{
public:
    void compareSlots(RegisterSpace space, const RegisterEntry& was, const RegisterEntry& is)
    {
        const bool wasObject = isWritten(was);
        const bool isObject = isWritten(is);
        if (wasObject && isObject && was.tagname == is.tagname)
        {
            addSame({space, was}, {space, is});
            return;
        }
        if (wasObject)
            gone.push_back({space, was});
        if (isObject)
            come.push_back({space, is});
    }

    std::vector<ObjectChange> finish()
    {
        pairMoved(true);
        pairMoved(false);
        for (const MapObject& object : gone)
            changes.push_back({object, std::nullopt, {ChangeKind::Removed}});
        for (const MapObject& object : come)
            changes.push_back({std::nullopt, object, {ChangeKind::Added}});
        const auto place = [](const ObjectChange& change)
        { return std::tuple(change.object().space, change.object().head.address, change.after.has_value()); };
        std::ranges::sort(changes, {}, place);
        return std::move(changes);
    }

private:
    void addSame(const MapObject& before, const MapObject& after)
    {
        std::vector<ChangeKind> kinds;
        appendKinds(kinds, before, after);
        if (!kinds.empty())
            changes.push_back({before, after, std::move(kinds)});
    }

    void pairMoved(bool insideSpace)
    {
        Arrivals arrivals(come, insideSpace);
        std::vector<MapObject> stillGone;
        for (const MapObject& object : gone)
        {
            if (const MapObject* const arrived = arrivals.take(object))
                addSame(object, *arrived);
            else
                stillGone.push_back(object);
        }
        gone = std::move(stillGone);
        come = arrivals.rest();
    }

    std::vector<ObjectChange> changes;
    std::vector<MapObject> gone;
    std::vector<MapObject> come;
};

} // namespace

std::vector<ObjectChange> mapDifferences(const RegisterMap& before, const RegisterMap& after)
{
    Comparison comparison;
    for (const RegisterSpace space : allSpaces)
    {
        for (int address = 0; address < registersPerSpace; ++address)
            comparison.compareSlots(space, before.slots(space)[address], after.slots(space)[address]);
    }
    return comparison.finish();
}
