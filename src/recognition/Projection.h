#pragma once

#include "platform/images/FeaturePrint.h"
#include "recognition/LayoutDescriptor.h"

/// From the descriptor to the vector of a feature print: the directions in which pictures differ more from
/// each other than from their own re-encoded, cropped, turned and re-lit copies. Learnt; see training/. Pure;
/// any thread.
namespace orlen::Projection {

/// Of length 1.
[[nodiscard]] FeaturePrint::Vector project(const LayoutDescriptor::Vector& descriptor);

} // namespace orlen::Projection
