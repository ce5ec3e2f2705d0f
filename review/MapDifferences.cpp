#include "review/MapDifferences.h"

#include "map/WrittenObjects.h"
#include "review/HeldRegisters.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace
{

/// What each object of a map holds.
class HeldRegistersOfMap
{
public:
    explicit HeldRegistersOfMap(const RegisterMap& map)
    {
        spaces.reserve(allSpaces.size());
        for (const RegisterSpace space : allSpaces)
            spaces.emplace_back(map.slots(space));
    }

    std::span<const std::uint32_t> of(const MapObject& object) const
    {
        return spaces[static_cast<std::size_t>(object.space)].of(object.head.address);
    }

private:
    std::vector<HeldRegisters> spaces;
};

/// Registers that both states of an object would hold if no other object took any.
std::uint32_t commonRegisters(const RegisterEntry& was, const RegisterEntry& is)
{
    const auto inSpace = [](const RegisterEntry& head)
    { return std::min<std::uint32_t>(head.registerCount, registersPerSpace - head.address); };
    return std::min(inSpace(was), inSpace(is));
}

/// What differs between two states of the same object, in the order of the kinds.
std::vector<ChangeKind> kindsOf(const MapObject& before, const MapObject& after, bool overwritten, bool uncovered)
{
    std::vector<ChangeKind> kinds;
    const RegisterEntry& was = before.head;
    const RegisterEntry& is = after.head;
    const auto append = [&](bool changed, ChangeKind kind)
    {
        if (changed)
            kinds.push_back(kind);
    };
    append(before.space != after.space || was.address != is.address, ChangeKind::Moved);
    append(was.type != is.type, ChangeKind::Retyped);
    append(before.isLengthKnown && after.isLengthKnown && was.registerCount != is.registerCount, ChangeKind::Resized);
    append(overwritten, ChangeKind::Overwritten);
    append(uncovered, ChangeKind::Uncovered);
    append(byteOrderCharacters(was) != byteOrderCharacters(is), ChangeKind::ByteOrder);
    append(was.write != is.write, ChangeKind::Write);
    append(was.description != is.description, ChangeKind::Description);
    append(was.locked != is.locked, ChangeKind::Lock);
    return kinds;
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
    Comparison(const RegisterMap& before, const RegisterMap& after) : heldBefore(before), heldAfter(after) {}

    void compareObjects(const MapObject& before, const MapObject& after)
    {
        const bool wasObject = isWritten(before.head);
        const bool isObject = isWritten(after.head);
        if (wasObject && isObject && before.head.tagname == after.head.tagname)
        {
            addSame(before, after);
            return;
        }
        if (wasObject)
            gone.push_back(before);
        if (isObject)
            come.push_back(after);
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
        const std::span<const std::uint32_t> had = heldBefore.of(before);
        const std::span<const std::uint32_t> has = heldAfter.of(after);
        const std::uint32_t common = commonRegisters(before.head, after.head);
        const std::optional<std::uint32_t> lost = firstHeldOnlyIn(had, has, common);
        const std::optional<std::uint32_t> found = firstHeldOnlyIn(has, had, common);
        std::vector<ChangeKind> kinds = kindsOf(before, after, lost.has_value(), found.has_value());
        if (kinds.empty())
            return;
        const auto addressOf = [&](std::optional<std::uint32_t> distance)
        { return distance ? std::optional(after.head.address + *distance) : std::nullopt; };
        changes.push_back({before, after, std::move(kinds), addressOf(lost), addressOf(found)});
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

    HeldRegistersOfMap heldBefore;
    HeldRegistersOfMap heldAfter;
    std::vector<ObjectChange> changes;
    std::vector<MapObject> gone;
    std::vector<MapObject> come;
};

} // namespace

std::vector<ObjectChange> mapDifferences(const RegisterMap& before, const RegisterMap& after,
                                         const UnsizedTexts& unsizedBefore, const UnsizedTexts& unsizedAfter)
{
    Comparison comparison(before, after);
    for (const RegisterSpace space : allSpaces)
    {
        for (int address = 0; address < registersPerSpace; ++address)
            comparison.compareObjects({space, before.slots(space)[address], !unsizedBefore.contains(space, address)},
                                      {space, after.slots(space)[address], !unsizedAfter.contains(space, address)});
    }
    return comparison.finish();
}
