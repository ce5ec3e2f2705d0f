#include "map/MapExport.h"

#include "files/ReadFile.h"
#include "tests/core/TempFolder.h"
#include "text/Lines.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

struct Flags
{
    bool bytes = false;
    bool words = false;
    bool longs = false;
};

RegisterEntry object(DataType type, std::uint32_t count, std::string_view tagname, std::string_view description = {},
                     Flags flags = {})
{
    RegisterEntry entry;
    entry.type = type;
    entry.registerCount = count;
    entry.SwapBytes = flags.bytes;
    entry.SwapWords = flags.words;
    entry.SwapLongs = flags.longs;
    entry.tagname = InternedText(tagname);
    entry.description = InternedText(description);
    return entry;
}

RegisterEntry writable(RegisterEntry entry)
{
    entry.write = true;
    return entry;
}

void place(RegisterMap& map, RegisterSpace space, int address, const RegisterEntry& entry)
{
    map.placeObject(space, address, entry, static_cast<int>(entry.registerCount));
}

/// A text with line feeds, as this platform ends lines.
std::string native(std::string_view text)
{
    std::string result;
    for (const char c : text)
        result += c == '\n' ? std::string(nativeLineEnd) : std::string(1, c);
    return result;
}

/// Line `index` of the Holding section of a report, 0 being its first row.
std::string holdingRow(const RegisterMap& map, int index = 0)
{
    const std::string report = exportTextReport(map);
    std::size_t start = report.find("HOLDING REGISTERS");
    for (int line = 0; line < 3 + index; ++line)
        start = report.find(nativeLineEnd, start) + nativeLineEnd.size();
    return report.substr(start, report.find(nativeLineEnd, start) - start);
}

std::string csvRow(const RegisterMap& map)
{
    const std::string csv = exportCsv(map);
    const std::size_t start = csv.find(nativeLineEnd) + nativeLineEnd.size();
    return csv.substr(start, csv.find(nativeLineEnd, start) - start);
}

class MapExportFile : public testing::Test
{
protected:
    MapExportFile() { place(map, RegisterSpace::Coil, 3, object(DataType::Int16, 1, "PUMP")); }

    TempFolder folder;
    RegisterMap map;
};

} // namespace

TEST(MapExport, FormatFollowsTheEndOfThePath)
{
    EXPECT_EQ(exportFormatFor("/home/me/data.csv"), ExportFormat::Csv);
    EXPECT_EQ(exportFormatFor("MAP.CSV"), ExportFormat::Csv);
    EXPECT_EQ(exportFormatFor("map.cSv"), ExportFormat::Csv);
    EXPECT_EQ(exportFormatFor(".csv"), ExportFormat::Csv);
    EXPECT_EQ(exportFormatFor("map.csv.txt"), ExportFormat::Text);
    EXPECT_EQ(exportFormatFor("map.txt"), ExportFormat::Text);
    EXPECT_EQ(exportFormatFor("map.csv "), ExportFormat::Text);
    EXPECT_EQ(exportFormatFor("mapcsv"), ExportFormat::Text);
    EXPECT_EQ(exportFormatFor("csv"), ExportFormat::Text);
    EXPECT_EQ(exportFormatFor(""), ExportFormat::Text);
}

TEST(MapExport, EmptyMapIsACsvHeader)
{
    EXPECT_EQ(exportCsv(RegisterMap()), native("SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION\n"));
}

TEST(MapExport, EmptyMapIsAReportOfFourEmptySections)
{
    EXPECT_EQ(exportTextReport(RegisterMap()), native(R"(Modbus Register Map
-------------------

COIL REGISTERS
ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION
~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~

INPUT REGISTERS
ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION
~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~

STATUS REGISTERS
ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION
~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~

HOLDING REGISTERS
ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION
~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
)"));
}

namespace
{

/// Objects of every type in every space, placed against the order in which they are exported.
void fillWithEverything(RegisterMap& map)
{
    place(map, RegisterSpace::Holding, 65532, object(DataType::Double, 4, "FLOW_TOTAL", "Total", {true, true, true}));
    place(map, RegisterSpace::Holding, 100,
          object(DataType::Float, 2, "TANK_LEVEL", "Level in tank 1", {true, true, false}));
    place(map, RegisterSpace::Status, 12, object(DataType::String, 16, "UNIT_NAME", "Name of the unit"));
    place(map, RegisterSpace::Input, 0, object(DataType::Int32, 2, "RUN_HOURS", "Hours", {false, true, false}));
    place(map, RegisterSpace::Coil, 8, writable(object(DataType::Int16, 1, "PUMP_RUN", "Run, or stop")));
    place(map, RegisterSpace::Coil, 7, object(DataType::Int16, 1, "PUMP_FAULT", "Fault", {true, false, false}));
}

} // namespace

TEST(MapExport, CsvListsHeadsInSpaceAndAddressOrder)
{
    RegisterMap map;
    fillWithEverything(map);
    EXPECT_EQ(exportCsv(map), native(R"(SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION
COIL,00007,INT16,1,B--,PUMP_FAULT,Fault
COIL,00008,INT16,1,---,PUMP_RUN.1,Run, or stop
INPUT,00000,INT32,2,-W-,RUN_HOURS,Hours
STATUS,00012,STRING,16,---,UNIT_NAME,Name of the unit
HOLDING,00100,FLOAT,2,BW-,TANK_LEVEL,Level in tank 1
HOLDING,65532,DOUBLE,4,BWL,FLOW_TOTAL,Total
)"));
}

TEST(MapExport, ReportListsHeadsInTheirSections)
{
    RegisterMap map;
    fillWithEverything(map);
    EXPECT_EQ(exportTextReport(map), native(R"(Modbus Register Map
-------------------

COIL REGISTERS
ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION
~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
00007    INT16   1          B--    PUMP_FAULT            Fault
00008    INT16   1          ---    PUMP_RUN.1            Run, or stop

INPUT REGISTERS
ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION
~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
00000    INT32   2          -W-    RUN_HOURS             Hours

STATUS REGISTERS
ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION
~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
00012    STRING  16         ---    UNIT_NAME             Name of the unit

HOLDING REGISTERS
ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION
~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
00100    FLOAT   2          BW-    TANK_LEVEL            Level in tank 1
65532    DOUBLE  4          BWL    FLOW_TOTAL            Total
)"));
}

TEST(MapExport, ContinuationsFreeSlotsAndHeadlessSlotsAreLeftOut)
{
    RegisterMap map;
    place(map, RegisterSpace::Holding, 10, object(DataType::Double, 4, "A"));
    map.clearSlot(RegisterSpace::Holding, 10);
    place(map, RegisterSpace::Holding, 20, object(DataType::Int16, 1, "B"));
    map.slots(RegisterSpace::Holding)[20].used = false;
    EXPECT_EQ(exportCsv(map), exportCsv(RegisterMap()));
    EXPECT_EQ(exportTextReport(map), exportTextReport(RegisterMap()));
}

TEST(MapExport, ObjectCutOffByTheEndOfTheSpaceKeepsItsCount)
{
    RegisterMap map;
    place(map, RegisterSpace::Holding, 65535, object(DataType::String, 2147483647, "LAST", "End"));
    EXPECT_EQ(csvRow(map), "HOLDING,65535,STRING,2147483647,---,LAST,End");
    EXPECT_EQ(holdingRow(map), "65535    STRING  2147483647        ---    LAST                  End");
}

TEST(MapExport, UnknownTypeCodeIsNamedSo)
{
    RegisterMap map;
    place(map, RegisterSpace::Holding, 1, object(static_cast<DataType>(9), 1, "X", "Y"));
    EXPECT_EQ(csvRow(map), "HOLDING,00001,UNKOWN,1,---,X,Y");
    EXPECT_EQ(holdingRow(map), "00001    UNKOWN  1          ---    X                     Y");
}

TEST(MapExport, NothingFollowsTheDescription)
{
    RegisterMap map;
    place(map, RegisterSpace::Holding, 1, object(DataType::Int16, 1, ""));
    place(map, RegisterSpace::Holding, 2, writable(object(DataType::Int16, 1, "", "Text with blank ")));
    EXPECT_EQ(csvRow(map), "HOLDING,00001,INT16,1,---,,");
    EXPECT_EQ(holdingRow(map, 0), "00001    INT16   1          ---    " + std::string(20, ' ') + "  ");
    EXPECT_EQ(holdingRow(map, 1), "00002    INT16   1          ---    .1                    Text with blank ");
}

TEST(MapExport, LongTagnameIsNotCutAndPushesTheDescription)
{
    RegisterMap map;
    place(map, RegisterSpace::Holding, 1, object(DataType::Int16, 1, "TWENTY_CHARACTERS_XX", "Fits"));
    place(map, RegisterSpace::Holding, 2, writable(object(DataType::Int16, 1, "TWENTY_CHARACTERS_XX", "Pushed")));
    place(map, RegisterSpace::Holding, 3, writable(object(DataType::Int16, 1, "EIGHTEEN_CHARACTER", "Fits")));
    EXPECT_EQ(holdingRow(map, 0), "00001    INT16   1          ---    TWENTY_CHARACTERS_XX  Fits");
    EXPECT_EQ(holdingRow(map, 1), "00002    INT16   1          ---    TWENTY_CHARACTERS_XX.1  Pushed");
    EXPECT_EQ(holdingRow(map, 2), "00003    INT16   1          ---    EIGHTEEN_CHARACTER.1  Fits");
}

TEST(MapExport, CountsUpToThreeDigitsKeepTheColumns)
{
    RegisterMap map;
    place(map, RegisterSpace::Holding, 1, object(DataType::String, 128, "A", "x"));
    place(map, RegisterSpace::Holding, 1000, object(DataType::String, 1280, "B", "y"));
    EXPECT_EQ(holdingRow(map, 0), "00001    STRING  128        ---    A                     x");
    EXPECT_EQ(holdingRow(map, 1), "01000    STRING  1280        ---    B                     y");
}

TEST(MapExport, ColumnsArePaddedByCharacters)
{
    RegisterMap map;
    place(map, RegisterSpace::Holding, 1, object(DataType::Int16, 1, "F\u00fcllstand", "Stand in \u2103"));
    place(map, RegisterSpace::Holding, 2, object(DataType::Int16, 1, "\u6db2\u4f4d\U0001F4A7", "Level"));
    EXPECT_EQ(holdingRow(map, 0), "00001    INT16   1          ---    F\u00fcllstand             Stand in \u2103");
    EXPECT_EQ(holdingRow(map, 1), "00002    INT16   1          ---    \u6db2\u4f4d\U0001F4A7                   Level");
}

TEST(MapExport, TextsAreWrittenAsTheyStand)
{
    RegisterMap map;
    place(map, RegisterSpace::Holding, 1, object(DataType::Int16, 1, "A,\"B\".2", "x,\"y\"{z} %s"));
    EXPECT_EQ(csvRow(map), "HOLDING,00001,INT16,1,---,A,\"B\".2,x,\"y\"{z} %s");
    EXPECT_EQ(holdingRow(map), "00001    INT16   1          ---    A,\"B\".2               x,\"y\"{z} %s");
}

TEST(MapExport, FullMapHasALineForEveryRegister)
{
    RegisterMap map;
    for (const RegisterSpace space : allSpaces)
    {
        for (int address = 0; address < registersPerSpace; ++address)
            map.placeObject(space, address, object(DataType::Int16, 1, "T"), 1);
    }
    const std::string csv = exportCsv(map);
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 1 + spaceCount * registersPerSpace);
    EXPECT_TRUE(csv.ends_with(native("HOLDING,65535,INT16,1,---,T,\n")));
}

TEST_F(MapExportFile, NameDecidesWhatIsWritten)
{
    EXPECT_TRUE(exportMap(map, folder / "data.CSV"));
    EXPECT_EQ(readFile(folder / "data.CSV"), exportCsv(map));
    EXPECT_TRUE(exportMap(map, folder / "data.txt"));
    EXPECT_EQ(readFile(folder / "data.txt"), exportTextReport(map));
    EXPECT_TRUE(exportMap(map, folder / "data"));
    EXPECT_EQ(readFile(folder / "data"), exportTextReport(map));
}

TEST_F(MapExportFile, OldFileIsOverwrittenWhole)
{
    folder.write("data.csv", std::string(10000, 'x'));
    EXPECT_TRUE(exportMap(map, folder / "data.csv"));
    EXPECT_EQ(readFile(folder / "data.csv"), exportCsv(map));
}

TEST_F(MapExportFile, FolderThatIsMissingIsReported)
{
    EXPECT_FALSE(exportMap(map, folder / "missing" / "data.csv"));
}
