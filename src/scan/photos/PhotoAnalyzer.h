#pragma once

#include "model/Finding.h"
#include "platform/images/ImageAnalysis.h"
#include "scan/Cand.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

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

/// Turns image files into findings: near-duplicates, screenshots, receipts, memes and blurry photos.
class PhotoAnalyzer {
public:
    /// Analyses one file; called from several threads at once.
    using Recognizer = std::function<std::optional<ImageAnalysis>(const std::string& path)>;

    PhotoAnalyzer(ScanProgress& progress, const ScanFlag& flag, Recognizer recognize)
        : m_progress(progress), m_flag(flag), m_recognize(std::move(recognize))
    {
    }

    /// Five findings, including empty ones: `photoDuplicates`, `screenshots`, `receipts`, `memes`, `blurry`.
    /// None if there are no images. Blocks; uses all cores.
    [[nodiscard]] std::vector<Finding> run(const std::vector<Cand>& images) const;

    /// The pictures that could be read, in the order of the input.
    [[nodiscard]] std::vector<PhotoInfo> analyze(const std::vector<Cand>& images) const;

    /// The findings of analysed pictures; with some groups missing if stopped. Pure.
    [[nodiscard]] static std::vector<Finding> findings(const std::vector<PhotoInfo>& photos,
                                                       const std::stop_token& stop = {});

private:
    ScanProgress& m_progress;
    const ScanFlag& m_flag;
    Recognizer m_recognize;
};

} // namespace orlen
