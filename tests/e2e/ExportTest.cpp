// The map exported through the desktop's own dialog for choosing a file.

#include "tests/e2e/Patience.h"
#include "tests/e2e/SmallPlant.h"

namespace fs = std::filesystem;

namespace
{

constexpr const char* chooserTitle = "Export map as CSV or Text file";

class Export : public SmallPlant
{
protected:
    ProgramUnderTest& openMapToExport()
    {
        return openMap("COIL,00007,NONE,INT16,PUMP_RUN.1,Pump runs,1,LOCKED,OK\n"
                       "HOLDING,00100,BYTES+WORDS,FLOAT,TANK_LEVEL,Level in tank 1,2,UNLOCKED,OK\n");
    }

    void exportTo(ProgramUnderTest& program, const fs::path& path)
    {
        program.clickTool("Export map to text file");
        const Control chooser = program.waitForWindow(chooserTitle);
        program.typeInto(chooser, "Name:", path.string());
        // The list of completions that may be open would take a click on the button for itself.
        screen.pressKey("Return");
        program.waitUntilClosed(chooserTitle);
    }
};

} // namespace

TEST_F(Export, ANameEndingInCsvGivesValuesSeparatedByCommas)
{
    ProgramUnderTest& program = openMapToExport();
    const fs::path target = folder / "export.csv";
    exportTo(program, target);
    leaveWithoutQuestion();
    EXPECT_EQ(contentOf(target), "SECTION,ADDRESS,TYPE,REG_COUNT,BYTE_ORDER,TAGNAME,DESCRIPTION\n"
                                 "COIL,00007,INT16,1,---,PUMP_RUN.1,Pump runs\n"
                                 "HOLDING,00100,FLOAT,2,BW-,TANK_LEVEL,Level in tank 1\n");
}

TEST_F(Export, AnyOtherNameGivesTheTextReport)
{
    ProgramUnderTest& program = openMapToExport();
    const fs::path target = folder / "export.txt";
    exportTo(program, target);
    leaveWithoutQuestion();
    const std::string titles =
        "ADDRESS  TYPE    REG_COUNT  ORDER  TAGNAME               DESCRIPTION\n"
        "~~~~~~~  ~~~~    ~~~~~~~~~  ~~~~~  ~~~~~~~~~~~~~~~~~~~~  ~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~\n";
    EXPECT_EQ(contentOf(target), "Modbus Register Map\n"
                                 "-------------------\n"
                                 "\nCOIL REGISTERS\n" +
                                     titles +
                                     "00007    INT16   1          ---    PUMP_RUN.1            Pump runs\n"
                                     "\nINPUT REGISTERS\n" +
                                     titles + "\nSTATUS REGISTERS\n" + titles + "\nHOLDING REGISTERS\n" + titles +
                                     "00100    FLOAT   2          BW-    TANK_LEVEL            Level in tank 1\n");
}

TEST_F(Export, CancellingWritesNothing)
{
    ProgramUnderTest& program = openMapToExport();
    program.clickTool("Export map to text file");
    const Control chooser = program.waitForWindow(chooserTitle);
    program.clickButton(chooser, "Cancel");
    program.waitUntilClosed(chooserTitle);
    leaveWithoutQuestion();
    for (const auto& file : fs::recursive_directory_iterator(folder.path()))
        EXPECT_NE(file.path().filename(), "data.csv");
}
