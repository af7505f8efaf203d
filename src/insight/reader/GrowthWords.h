#pragma once

#include "insight/reader/Deeds.h"

namespace orlen::AskReader {

/// What says in other words that something grew: "why did I lose 20 GB", "is my home folder bigger than last
/// month". Pure; any thread.
void mergeGrowth(Phrases& phrases);

} // namespace orlen::AskReader
