#pragma once

#include "insight/reader/Deeds.h"

namespace orlen::AskReader {

/// Words that mean something else together: "put … in the trash", "what does … contain", "anything left from
/// apps". Pure; any thread.
void mergeIdioms(Phrases& phrases);

} // namespace orlen::AskReader
