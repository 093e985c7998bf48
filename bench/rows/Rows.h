#pragma once

#include "harness/Bench.h"

/// The families of rows, one in each file.
namespace orvanta::bench {

void hitRows(Bench& bench);
void hitSizeRows(Bench& bench);
void hitThreadedRow(Bench& bench);
void messageRows(Bench& bench);
void fallbackRow(Bench& bench);
void loadRows(Bench& bench);
void startupRows(Bench& bench);
void switchRows(Bench& bench);
void matchRows(Bench& bench);
void updateRows(Bench& bench);
void memoryRows(Bench& bench);
void firstTextRow(Bench& bench);
void switchQtRows(Bench& bench);

}  // namespace orvanta::bench
