#include "map/PublishedName.h"
#include "review/Wording.h"
#include "text/Integers.h"
#include "text/Lines.h"
#include "tool/ChangeReport.h"

namespace
{

std::string addressOf(const MapObject& object)
{
    return std::string(spaceKeyword(object.space)) + ' ' + addressText(object.head.address);
}

std::string countOf(const MapObject& object)
{
    return std::to_string(static_cast<std::int32_t>(object.head.registerCount));
}

/// How long an object is that came or went.
std::string lengthOf(const MapObject& object)
{
    if (!object.isLengthKnown)
        return "of unknown length";
    return counted(static_cast<std::int32_t>(object.head.registerCount), "register");
}

std::string orderOf(const MapObject& object)
{
    const auto order = byteOrderCharacters(object.head);
    return {order.begin(), order.end()};
}

std::string fromTo(const std::string& before, const std::string& after)
{
    return ' ' + before + " -> " + after;
}

/// What changed, from what to what.
std::string detail(const ObjectChange& change, ChangeKind kind)
{
    const MapObject& object = change.object();
    switch (kind)
    {
    case ChangeKind::Added:
    case ChangeKind::Removed:
        return ", " + std::string(typeName(object.head.type)) + ", " + lengthOf(object);
    case ChangeKind::Moved:
        return " from " + addressOf(*change.before);
    case ChangeKind::Retyped:
        return fromTo(std::string(typeName(change.before->head.type)), std::string(typeName(change.after->head.type)));
    case ChangeKind::Resized:
        return fromTo(countOf(*change.before), countOf(*change.after));
    case ChangeKind::Overwritten:
        return " at " + addressText(*change.overwrittenAt);
    case ChangeKind::Uncovered:
        return " at " + addressText(*change.uncoveredAt);
    case ChangeKind::ByteOrder:
        return fromTo(orderOf(*change.before), orderOf(*change.after));
    case ChangeKind::Write:
        return object.head.write ? " allowed" : " no longer allowed";
    case ChangeKind::Description:
        return fromTo(inQuotes(change.before->head.description.view()),
                      inQuotes(change.after->head.description.view()));
    case ChangeKind::Lock:
        return object.head.locked ? " set" : " taken off";
    }
    return {};
}

struct Sign
{
    std::string_view text;
    Tone tone;
};

Sign signOf(const ObjectChange& change)
{
    if (!change.before)
        return {"+", Tone::Added};
    return change.after ? Sign{"~", Tone::Changed} : Sign{"-", Tone::Removed};
}

void appendChange(std::string& text, const ObjectChange& change, const Style& style)
{
    const Sign sign = signOf(change);
    const MapObject& object = change.object();
    style.append(text, sign.tone,
                 printable(std::string(sign.text) + ' ' + addressOf(object) + ' ' +
                           std::string(object.head.tagname.view()) + ':'));
    std::string details;
    for (const ChangeKind kind : change.kinds)
        details += (details.empty() ? " " : "; ") + std::string(changeName(kind)) + detail(change, kind);
    text += printable(details);
    if (change.isBreaking())
        text += " [breaking]";
    if (change.breaksLock())
    {
        text += ' ';
        style.append(text, Tone::Error, "error");
        text += ": the object was locked";
    }
    text += nativeLineEnd;
}

std::string ifAny(int count, const std::string& words)
{
    return count == 0 ? "" : ", " + std::to_string(count) + ' ' + words;
}

} // namespace

std::string changesAsText(const ChangeReport& report, const Style& style)
{
    std::string text;
    for (const ObjectChange& change : report.changes)
        appendChange(text, change, style);
    return text;
}

std::string heading(std::string_view file, const Style& style)
{
    std::string text;
    style.append(text, Tone::Place, "map " + printable(file));
    return text + std::string(nativeLineEnd);
}

ChangeCounts countsOf(const ChangeReport& report)
{
    ChangeCounts counts;
    for (const ObjectChange& change : report.changes)
    {
        const ChangeKind first = change.kinds.front();
        counts.added += first == ChangeKind::Added ? 1 : 0;
        counts.removed += first == ChangeKind::Removed ? 1 : 0;
        counts.moved += first == ChangeKind::Moved ? 1 : 0;
        counts.changed += first > ChangeKind::Moved ? 1 : 0;
        counts.breaking += change.isBreaking() ? 1 : 0;
        counts.locked += change.breaksLock() ? 1 : 0;
    }
    return counts;
}

std::string summary(const ChangeReport& report)
{
    if (report.changes.empty())
        return "no object differs";
    const ChangeCounts counts = countsOf(report);
    std::string text = ifAny(counts.added, "added") + ifAny(counts.removed, "removed") + ifAny(counts.moved, "moved") +
                       ifAny(counts.changed, "changed");
    text.erase(0, 2); // the first comma
    return "objects that differ: " + text + "; breaking: " + std::to_string(counts.breaking) +
           "; were locked: " + std::to_string(counts.locked);
}

std::string conclusion(const ChangeReport& report)
{
    return summary(report) + std::string(nativeLineEnd);
}
