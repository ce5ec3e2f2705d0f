#pragma once

#include "text/Lines.h"

#include <string>

/// A plant of a few tags: PUMP_RUN and PUMP2_RUN (Integer, may be written), PUMP_SPEED and PUMP2_SPEED (Numeric),
/// TANK_LEVEL (Numeric) and TANK_NAME (String of 5 characters).
inline constexpr const char* pumpDatabase = R"({
  "database_groups": [ { "mask": "1", "flag": "MEA", "type": "flag", "desc": "Measured values" } ],
  "structure": [ { "lable": "Plant", "dbprefix": "" } ],
  "database": [
    { "Name": "PUMP_RUN", "Description": "Pump runs", "Type": "Integer", "Size": 1, "Elements": 2, "Groups": 0 },
    { "Name": "PUMP2_RUN", "Description": "Pump 2 runs", "Type": "Integer", "Size": 1, "Elements": 2, "Groups": 0 },
    { "Name": "PUMP_SPEED", "Description": "Speed", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 1 },
    { "Name": "PUMP2_SPEED", "Description": "Speed 2", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 1 },
    { "Name": "TANK_LEVEL", "Description": "Level", "Type": "Numeric", "Size": 4, "Elements": 1, "Groups": 1 },
    { "Name": "TANK_NAME", "Description": "Name", "Type": "String", "Size": 5, "Elements": 1, "Groups": 0 }
  ]
}
)";

/// A map of two objects of that plant.
inline constexpr const char* twoObjects = "HOLDING,00010,NONE,INT16,PUMP_RUN,Pump runs,1,UNLOCKED,OK\n"
                                          "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK\n";

/// What is left of it without the first, as it is saved.
inline const std::string secondObject =
    "HOLDING,00011,NONE,FLOAT,PUMP_SPEED,Speed,2,UNLOCKED,OK" + std::string(nativeLineEnd);
