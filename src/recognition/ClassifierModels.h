#pragma once

#include <cstdint>
#include <span>

/// The classifier's models, embedded in the program; made by training/classifier.
namespace orlen::ClassifierModels {

[[nodiscard]] std::span<const std::uint8_t> trees();   ///< a table of TreeEnsemble
[[nodiscard]] std::span<const std::uint8_t> pair();    ///< another, of two classes: screenshot, page
[[nodiscard]] std::span<const std::uint8_t> network(); ///< a network in ONNX form

} // namespace orlen::ClassifierModels
