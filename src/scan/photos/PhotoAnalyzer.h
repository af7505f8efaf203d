#pragma once

#include "model/Finding.h"
#include "platform/images/ImageAnalysis.h"
#include "platform/images/RgbImage.h"
#include "scan/Cand.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class PictureMemory;
class ScanFlag;
class ScanProgress;

/// One analysed picture.
struct PhotoInfo {
    Cand cand;
    std::optional<FeaturePrint> print;
    double sharpness = 0; ///< see Sharpness
    std::vector<ImageLabel>
        labels;     ///< lower-cased, with a confidence above 0.15, in the order of the recogniser
    int width = 0;  ///< pixels of the whole picture; 0 when unknown
    int height = 0; ///< as width
    PictureTraits traits;
};

/// How many of the image files a scan has looked at; the others are left for the next ones.
struct PhotoCoverage {
    std::int64_t lookedAt = 0; ///< now or in an earlier scan, whether they could be read or not
    std::int64_t all = 0;
    friend bool operator==(const PhotoCoverage&, const PhotoCoverage&) = default;
};

/// Turns image files into findings: near-duplicates, screenshots, receipts, memes and blurry photos.
class PhotoAnalyzer {
public:
    /// Analyses one file; called from several threads at once.
    using Recognizer = std::function<std::optional<ImageAnalysis>(const std::string& path)>;

    /// Reads one file again, as large as PageCheck wants it; called from several threads at once.
    using CloserLook = std::function<std::optional<RgbImage>(const std::string& path)>;

    /// What is not remembered is looked at, up to this many.
    static constexpr std::size_t kMostNew = 1'500;

    /// Without a memory every image is new.
    PhotoAnalyzer(ScanProgress& progress, const ScanFlag& flag, Recognizer recognize,
                  PictureMemory* memory = nullptr, CloserLook look = {})
        : m_progress(progress), m_flag(flag), m_recognize(std::move(recognize)), m_memory(memory),
          m_look(std::move(look))
    {
    }

    struct Found {
        /// Five, including empty ones: `photoDuplicates`, `screenshots`, `receipts`, `memes`, `blurry`. None
        /// if there are no images.
        std::vector<Finding> findings;
        PhotoCoverage coverage;
    };
    /// Blocks; uses all cores.
    [[nodiscard]] Found run(const std::vector<Cand>& images) const;

    struct Analyzed {
        std::vector<PhotoInfo> photos; ///< those that could be read, in the order of the images
        PhotoCoverage coverage;
    };
    [[nodiscard]] Analyzed analyze(const std::vector<Cand>& images) const;

    /// The findings of analysed pictures; with some groups missing if stopped. Without a closer look pages
    /// that are laid out alike may be taken for copies.
    [[nodiscard]] static std::vector<Finding> findings(const std::vector<PhotoInfo>& photos,
                                                       const std::stop_token& stop = {},
                                                       const CloserLook& look = {});

private:
    /// Per image, null for one not looked at; without an analysis for one that cannot be read. A print is
    /// large.
    using AllKnown = std::vector<std::unique_ptr<std::optional<ImageAnalysis>>>;

    [[nodiscard]] AllKnown recall(const std::vector<Cand>& images) const;
    void look(const std::vector<Cand>& images, const std::vector<std::size_t>& chosen, AllKnown& known) const;
    void remember(const std::vector<Cand>& images, const std::vector<std::size_t>& looked,
                  const AllKnown& known) const;

    ScanProgress& m_progress;
    const ScanFlag& m_flag;
    Recognizer m_recognize;
    PictureMemory* m_memory;
    CloserLook m_look;
};

} // namespace orlen
