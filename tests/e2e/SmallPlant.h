#pragma once

#include "tests/e2e/EndToEnd.h"

/// A map of two objects of that plant, and what is left of it without the first.
constexpr const char* twoObjects = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                   "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";
constexpr const char* secondObject = "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";

/// A test on a plant of a few tags whose map it lays out itself.
///
/// The database knows PUMP_RUN and PUMP2_RUN (Integer, may be written), PUMP_SPEED and PUMP2_SPEED (Numeric),
/// TANK_LEVEL (Numeric) and TANK_NAME (String of 5 characters).
class SmallPlant : public EndToEnd
{
protected:
    SmallPlant();

    /// Opens the program on a map.
    /// @param lines  the definition file's whole text
    ProgramUnderTest& openMap(std::string_view lines, const std::vector<std::string>& furtherArguments = {});

    /// Deletes the object of the first row and waits until it is gone.
    void deleteFirstRow(ProgramUnderTest& program);

    /// Makes the program, when it is started afterwards, as powerless against write protection as it is for everyone
    /// but root.
    static void obeyWriteProtection();

    /// The map's text as the file has it now.
    std::string savedMap() const { return contentOf(map); }

    std::filesystem::path database;
    std::filesystem::path map;
};
