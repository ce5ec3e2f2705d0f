#pragma once

#include "benchmarks/RatioTable.h"

/// The topics of the benchmark program; each registers its pairs with the table.

void addMapBenchmarks(RatioTable& table);
void addEditingBenchmarks(RatioTable& table);
void addFileBenchmarks(RatioTable& table);
void addFilterBenchmarks(RatioTable& table);
void addGridBenchmarks(RatioTable& table);
void addCommandBenchmarks(RatioTable& table);
void addStartBenchmarks(RatioTable& table);
