#include "map/DataType.h"
#include "tool/ChangeReport.h"
#include "tool/JsonText.h"

namespace
{

void writeObject(JsonText& json, std::string_view name, const std::optional<MapObject>& object)
{
    if (!object)
        return;
    const RegisterEntry& head = object->head;
    const auto order = byteOrderCharacters(head);
    json.key(name);
    json.beginObject();
    json.member("space", spaceKeyword(object->space));
    json.member("address", head.address);
    json.member("tagname", head.tagname.view());
    json.member("type", typeName(head.type));
    if (object->isLengthKnown)
        json.member("registers", static_cast<std::int32_t>(head.registerCount));
    json.member("byteOrder", std::string_view(order.data(), order.size()));
    json.memberIs("write", head.write);
    json.member("description", head.description.view());
    json.memberIs("locked", head.locked);
    json.endObject();
}

void writeChange(JsonText& json, const ObjectChange& change)
{
    json.beginObject();
    json.key("changes");
    json.beginArray();
    for (const ChangeKind kind : change.kinds)
        json.text(changeName(kind));
    json.endArray();
    json.memberIs("breaking", change.isBreaking());
    json.memberIs("wasLocked", change.breaksLock());
    if (change.overwrittenAt)
        json.member("overwrittenAt", *change.overwrittenAt);
    if (change.uncoveredAt)
        json.member("uncoveredAt", *change.uncoveredAt);
    writeObject(json, "before", change.before);
    writeObject(json, "after", change.after);
    json.endObject();
}

} // namespace

std::string changesAsJson(const ChangeReport& report)
{
    const ChangeCounts counts = countsOf(report);
    JsonText json;
    json.beginObject();
    json.member("before", report.before);
    json.member("after", report.after);
    json.member("added", counts.added);
    json.member("removed", counts.removed);
    json.member("moved", counts.moved);
    json.member("changed", counts.changed);
    json.member("breaking", counts.breaking);
    json.member("locked", counts.locked);
    json.key("objects");
    json.beginArray();
    for (const ObjectChange& change : report.changes)
        writeChange(json, change);
    json.endArray();
    json.endObject();
    return json.take();
}
