#pragma once

#include "model/Message.h"
#include "model/Rating.h"
#include "scan/Explanation.h"

#include <functional>
#include <vector>

/// What is done with a path, and why, as the command line and the window say it. Pure.
namespace orlen::ExplanationText {

/// At least one sentence: what protects the path, what excludes it, and what would offer it. `ratingText`
/// says how a rating stands in its sentence.
[[nodiscard]] std::vector<Message> sentences(const Explanation& told,
                                             const std::function<Value(Rating)>& ratingText);

} // namespace orlen::ExplanationText
