#pragma once

#include "platform/images/FeaturePrint.h"
#include "recognition/LayoutDescriptor.h"

/// Projects a descriptor to the vector of a feature print: onto the directions in which pictures differ more
/// from each other than from their own re-encoded, cropped, rotated and re-lit copies. Learnt; see training/.
/// Pure; any thread.
namespace orlen::Projection {

/// A unit vector.
[[nodiscard]] FeaturePrint::Vector project(const LayoutDescriptor::Vector& descriptor);

} // namespace orlen::Projection
