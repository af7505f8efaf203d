#include "recognition/ImageClassifier.h"

#include "recognition/ClassifierModels.h"
#include "recognition/PictureFeatures.h"
#include "recognition/TreeEnsemble.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <exception>

// Trees over designed features look at each picture. A score becomes a confidence by two straight lines that
// meet at the turning point, the score from which on a word was right often enough on pictures of sources
// that the trees had not seen; it is given exactly the confidence at which the photo analysis decides.

namespace orlen {

namespace {

enum Kind : std::size_t { photo, screenshot, receipt, document, meme, illustration, kindCount };
using Scores = std::array<float, kindCount>; ///< adding up to 1

struct Word {
    const char* identifier;
    float turningPoint; ///< score from which on the word decides
    float decides;      ///< confidence from which on the photo analysis decides
};
constexpr Word kScreenshot{"screenshot", 0.85F, 0.3F};
constexpr Word kReceipt{"receipt", 0.75F, 0.2F};
constexpr Word kDocument{"document", 0.75F, 0.6F};
constexpr Word kMeme{"meme", 0.90F, 0.2F};
constexpr Word kIllustration{"illustration", 0.50F, 0.3F};

// Pairs of neighbouring letters or words on common lines, in one of the polarities. Few photos have as many
// and no page that can be read has less.
constexpr float kLeastPairs = 30;
constexpr float kCameraMeme = 0.3F; // of the score: people do caption what their camera took

struct Models {
    std::optional<TreeEnsemble> trees = TreeEnsemble::read(ClassifierModels::trees());
};

const Models& models()
{
    static const Models loaded;
    return loaded;
}

std::optional<Scores> scoresOf(const std::vector<PictureFeature>& features)
{
    const auto& trees = models().trees;
    if (!trees || trees->classes() != kindCount)
        return std::nullopt;
    std::vector<float> values;
    for (const PictureFeature& feature : features)
        values.push_back(feature.value);
    const auto probabilities = trees->probabilities(values);
    if (!probabilities)
        return std::nullopt;
    Scores scores{};
    std::copy(probabilities->begin(), probabilities->end(), scores.begin());
    return scores;
}

bool hasLetters(const std::vector<PictureFeature>& features)
{
    const float pairs = std::max(PictureFeatures::valueOf(features, "dark pairs"),
                                 PictureFeatures::valueOf(features, "light pairs"));
    return std::expm1(pairs) >= kLeastPairs;
}

ImageLabel labelOf(const Word& word, float score)
{
    const float confidence =
        score < word.turningPoint
            ? score / word.turningPoint * word.decides
            : word.decides + (score - word.turningPoint) / (1 - word.turningPoint) * (1 - word.decides);
    return {word.identifier, std::clamp(confidence, 0.0F, 1.0F)};
}

} // namespace

std::vector<ImageLabel> ImageClassifier::labels(const RgbImage& image, const Evidence& evidence)
{
    try {
        const auto features = PictureFeatures::of(image);
        auto scores = features.empty() ? std::nullopt : scoresOf(features);
        if (!scores)
            return {};
        if (evidence.isFromCamera) {
            (*scores)[screenshot] = 0;
            (*scores)[meme] *= kCameraMeme;
        }
        // A receipt and a document are one to the photo analysis: what speaks for either speaks for the
        // likelier.
        const bool isReceipt = (*scores)[receipt] >= (*scores)[document];
        const float page = hasLetters(features) ? (*scores)[receipt] + (*scores)[document] : 0;
        std::vector<ImageLabel> labels = {
            labelOf(kScreenshot, (*scores)[screenshot]), labelOf(isReceipt ? kReceipt : kDocument, page),
            labelOf(kMeme, (*scores)[meme]), labelOf(kIllustration, (*scores)[illustration])};
        std::stable_sort(labels.begin(), labels.end(), [](const ImageLabel& a, const ImageLabel& b) {
            return a.confidence > b.confidence;
        });
        return labels;
    } catch (const std::exception&) { // OpenCV, out of memory
        return {};
    }
}

} // namespace orlen
