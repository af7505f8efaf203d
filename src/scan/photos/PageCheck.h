#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"

/// Tells a copy of a page from another page of one layout, such as the next receipt of the same shop. Both
/// are laid over each other, and every word must be found where it belongs. Pure; any thread.
namespace orlen::PageCheck {

/// How large pictures of pages have to be: letters are a few pixels high.
inline constexpr PictureBound kDetail{{1024, 1024}, PictureBound::Fit::inside};

/// Whether no word of the one is another in the other. What only one of them shows, at the edges, is not
/// asked. True for pictures without words; false for those with none in common. Symmetric. Some 100
/// milliseconds for pictures of that size.
[[nodiscard]] bool isSamePage(const RgbImage& one, const RgbImage& other);

} // namespace orlen::PageCheck
