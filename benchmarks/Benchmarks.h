#pragma once

#include "benchmarks/ResultTable.h"

/// The topics of the benchmark program; each adds its rows to the table.

void addCommandBenchmarks(ResultTable& table);
void addViewBenchmarks(ResultTable& table);
void addFileBenchmarks(ResultTable& table);
void addStartBenchmarks(ResultTable& table);
void addToolBenchmarks(ResultTable& table);
void addEnduranceBenchmarks(ResultTable& table);
