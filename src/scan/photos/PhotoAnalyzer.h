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
};

/// Turns image files into findings: near-duplicates, screenshots, receipts, memes and blurry photos.
class PhotoAnalyzer {
public:
    /// Looks at one file; called on many threads at once.
    using Recognizer = std::function<std::optional<ImageAnalysis>(const std::string& path)>;

    PhotoAnalyzer(ScanProgress& progress, const ScanFlag& flag, Recognizer recognize)
        : m_progress(progress), m_flag(flag), m_recognize(std::move(recognize))
    {
    }

    /// Five findings, empty ones included: `photoDuplicates`, `screenshots`, `receipts`, `memes`, `blurry`;
    /// none for no images. Blocks; images are analysed on all cores.
    [[nodiscard]] std::vector<Finding> run(const std::vector<Cand>& images) const;

    /// The analysed pictures in the order of the input, without those that could not be read.
    [[nodiscard]] std::vector<PhotoInfo> analyze(const std::vector<Cand>& images) const;

    /// What `run` makes of analysed pictures; stopped, of some of their groups only. Pure.
    [[nodiscard]] static std::vector<Finding> findings(const std::vector<PhotoInfo>& photos,
                                                       const std::stop_token& stop = {});

private:
    ScanProgress& m_progress;
    const ScanFlag& m_flag;
    Recognizer m_recognize;
};

} // namespace orlen
