#pragma once

#include "scan/photos/PhotoAnalyzer.h"
#include "scan/photos/PhotoGroups.h"

#include <stop_token>
#include <vector>

namespace orlen {
class ImageWorkers;
}

/// A second look at groups of pages, whose prints cannot tell receipts with other sums. Any thread.
namespace orlen::PageGroups {

/// The groups again, in which a receipt, document or screenshot stays only beside one that PageCheck takes
/// for the same. Pages that are not compared, because there are too many, because one cannot be read or
/// because it was stopped, are in no group. Blocks.
[[nodiscard]] std::vector<PhotoGroups::Group> checked(const std::vector<PhotoInfo>& photos,
                                                      std::vector<PhotoGroups::Group> groups,
                                                      const PhotoAnalyzer::CloserLook& look,
                                                      const std::stop_token& stop);

/// Reads through the workers, which it borrows.
[[nodiscard]] PhotoAnalyzer::CloserLook lookingThrough(ImageWorkers& workers, std::stop_token stop);

} // namespace orlen::PageGroups
