#pragma once

#include "insight/reader/ListRequest.h"

#include <vector>

/// The sizes and dates that a list is narrowed to. Pure; any thread.
namespace orlen::AskReader {

/// Says one more condition of the files.
void narrow(ListRequest& request, const Text& condition, std::vector<Place> places);

/// False if a size stands alone.
[[nodiscard]] bool takeSizes(const Question& question, ListRequest& request);

/// The one date and the word it belongs to. False if that is unclear.
[[nodiscard]] bool takeDate(const Question& question, TimePoint now, ListRequest& request);

} // namespace orlen::AskReader
