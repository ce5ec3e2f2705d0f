#include "map/DataType.h"

#include "text/Integers.h"

// The names are the words of the files and of the editor's list alike. They are compared exactly: "int16" is a word as
// unknown as "BOOL".

namespace
{

constexpr std::array<std::string_view, allDataTypes.size()> names{"INT16", "INT32", "FLOAT", "DOUBLE", "STRING"};

} // namespace

// "UNKOWN" is spelt so on purpose: the text is required as it stands, in files as well.
std::string_view typeName(DataType type)
{
    const auto code = static_cast<std::size_t>(type);
    return code < names.size() ? names[code] : "UNKOWN";
}

DataType typeFromName(std::string_view name)
{
    for (const DataType type : allDataTypes)
    {
        if (typeName(type) == name)
            return type;
    }
    return DataType::Int16; // an unknown name is no reason to drop a line or refuse an edit
}

std::int32_t registerCountFor(std::string_view name, std::string_view lengthText)
{
    // Through the type rather than the name, so that an unknown name has the one register of the INT16 that it becomes.
    switch (typeFromName(name))
    {
    case DataType::Int32:
    case DataType::Float:
        return 2;
    case DataType::Double:
        return 4;
    case DataType::String:
        // As C reads numbers: "3x" is 3, and a text without digits is 0 and places nothing.
        return parseInteger(lengthText);
    case DataType::Int16:
        break;
    }
    return 1;
}
