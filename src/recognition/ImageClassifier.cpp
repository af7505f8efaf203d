#include "recognition/ImageClassifier.h"

#include "recognition/ClassifierModels.h"
#include "recognition/LineDirection.h"
#include "recognition/PictureFeatures.h"
#include "recognition/SmallNetwork.h"
#include "recognition/StatusBar.h"
#include "recognition/TreeEnsemble.h"

#include <opencv2/core/utility.hpp>

#include <algorithm>
#include <cmath>
#include <exception>
#include <iterator>
#include <optional>

// Two models that fail on different pictures judge each one: trees over hand-made features, and a small
// network. Their geometric mean is high only if neither has doubts. The photo analysis treats receipts and
// documents alike, so their scores are added up first. Both models are surer that a picture is a screenshot
// or a page than which of the two: other trees, which learnt nothing but that, have half the say. A score
// becomes a confidence along two line segments. They meet at the turning point: the score from which a label
// was right often enough on pictures from sources no model had seen. It maps to exactly the confidence at
// which the photo analysis decides.

namespace orlen {

namespace {

// The order of the models' probabilities.
enum Kind : std::size_t { photo, screenshot, receipt, document, meme, illustration, kindCount };
using Probabilities = std::vector<float>;

struct Scores {
    float photo = 0;
    float screenshot = 0;
    float page = 0; ///< a receipt or a document
    float meme = 0;
    float illustration = 0;
    bool isReceipt = false; ///< rather than a document, if it is a page
};

struct Word {
    const char* identifier;
    float turningPoint; ///< score from which on the word decides
    float decides;      ///< confidence from which on the photo analysis decides
};
constexpr Word kScreenshot{"screenshot", 0.50F, 0.3F};
constexpr Word kReceipt{"receipt", 0.60F, 0.2F};
constexpr Word kDocument{"document", 0.60F, 0.6F};
constexpr Word kMeme{"meme", 0.80F, 0.2F};
constexpr Word kIllustration{"illustration", 0.50F, 0.3F};
constexpr Word kPages[] = {kReceipt, kDocument};
constexpr Word kWords[] = {kScreenshot, kReceipt, kDocument, kMeme, kIllustration};
// Score of a page without a doubt: keyboards, seen alone, reach less, and nearly all receipts more.
constexpr float kSurePage = 0.76F;

// Pairs of neighbouring letters or words on lines, in one polarity. Few photos have this many, and no
// readable page has fewer.
constexpr float kLeastPairs = 30;
constexpr float kCameraMeme = 0.3F; // of the score: people do caption what their camera took
constexpr float kLeastShare = 1e-6F;
// Score from which on a phone's status bar makes it a screenshot: a phone that shows a photo looks like one.
// Six of 7,248 tall parts of photos seem to have such a bar.
constexpr float kUnderStatusBar = 0.05F;

struct Models {
    Models() { cv::setNumThreads(1); } // recognizers run side by side already
    std::optional<TreeEnsemble> trees = TreeEnsemble::read(ClassifierModels::trees());
    std::optional<TreeEnsemble> pair = TreeEnsemble::read(ClassifierModels::pair());
    std::optional<SmallNetwork> network = SmallNetwork::read(ClassifierModels::network());
};

const Models& models()
{
    static const Models loaded;
    return loaded;
}

Scores combined(const Probabilities& a, const Probabilities& b)
{
    const auto mean = [](float x, float y) {
        return std::sqrt(std::max(x, kLeastShare) * std::max(y, kLeastShare));
    };
    Scores scores;
    scores.photo = mean(a[photo], b[photo]);
    scores.screenshot = mean(a[screenshot], b[screenshot]);
    scores.page = mean(a[receipt] + a[document], b[receipt] + b[document]);
    scores.meme = mean(a[meme], b[meme]);
    scores.illustration = mean(a[illustration], b[illustration]);
    scores.isReceipt = a[receipt] + b[receipt] >= a[document] + b[document];
    const float sum = scores.photo + scores.screenshot + scores.page + scores.meme + scores.illustration;
    for (float* score : {&scores.photo, &scores.screenshot, &scores.page, &scores.meme, &scores.illustration})
        *score /= sum;
    return scores;
}

bool hasLetters(const std::vector<PictureFeature>& features)
{
    const float pairs = std::max(PictureFeatures::valueOf(features, "dark pairs"),
                                 PictureFeatures::valueOf(features, "light pairs"));
    return std::expm1(pairs) >= kLeastPairs;
}

/// Divides what the screenshot and the page have between them anew: the geometric mean of how it was divided
/// and of what the pair's trees say.
void divideAnew(Scores& scores, const Probabilities& pair)
{
    const float both = scores.screenshot + scores.page;
    const float first = std::sqrt(std::max(scores.screenshot, kLeastShare) * std::max(pair[0], kLeastShare));
    const float second = std::sqrt(std::max(scores.page, kLeastShare) * std::max(pair[1], kLeastShare));
    scores.screenshot = both * first / (first + second);
    scores.page = both - scores.screenshot;
}

std::optional<Scores> scoresOf(const RgbImage& image)
{
    const auto features = PictureFeatures::of(image);
    if (features.empty())
        return std::nullopt;
    const Models& all = models();
    if (!all.trees || !all.pair || !all.network)
        return std::nullopt;
    std::vector<float> values;
    values.reserve(features.size());
    for (const PictureFeature& feature : features)
        values.push_back(feature.value);
    const auto first = all.trees->probabilities(values);
    const auto second = all.network->probabilities(image);
    const auto pair = all.pair->probabilities(values);
    if (!first || !second || !pair || first->size() != kindCount || second->size() != kindCount ||
        pair->size() != 2)
        return std::nullopt;
    Scores scores = combined(*first, *second);
    divideAnew(scores, *pair);
    if (!hasLetters(features))
        scores.page = 0;
    return scores;
}

/// A page is one whichever side is up; everything else is taken as it is.
std::optional<Scores> scoresOfAnyTurn(const RgbImage& image)
{
    auto scores = scoresOf(image);
    if (!scores || scores->page >= kDocument.turningPoint || !LineDirection::isSideways(image))
        return scores;
    const auto turned = scoresOf(LineDirection::turned(image));
    return turned && turned->page >= kDocument.turningPoint ? turned : scores;
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
        auto scores = scoresOfAnyTurn(image);
        if (!scores)
            return {};
        if (scores->screenshot >= kUnderStatusBar && scores->screenshot < kScreenshot.turningPoint &&
            StatusBar::isOn(image))
            scores->screenshot = kScreenshot.turningPoint;
        if (evidence.isFromCamera) {
            scores->screenshot = 0;
            scores->meme *= kCameraMeme;
        }
        std::vector<ImageLabel> labels = {labelOf(kScreenshot, scores->screenshot),
                                          labelOf(scores->isReceipt ? kReceipt : kDocument, scores->page),
                                          labelOf(kMeme, scores->meme),
                                          labelOf(kIllustration, scores->illustration)};
        std::stable_sort(labels.begin(), labels.end(), [](const ImageLabel& a, const ImageLabel& b) {
            return a.confidence > b.confidence;
        });
        return labels;
    } catch (const std::exception&) { // OpenCV, out of memory
        return {};
    }
}

bool ImageClassifier::decides(const ImageLabel& label)
{
    return std::any_of(std::begin(kWords), std::end(kWords), [&](const Word& word) {
        return label.identifier == word.identifier && label.confidence >= word.decides;
    });
}

bool ImageClassifier::isSurelyPage(const ImageLabel& label)
{
    return std::any_of(std::begin(kPages), std::end(kPages), [&](const Word& word) {
        return label.identifier == word.identifier && label.confidence >= labelOf(word, kSurePage).confidence;
    });
}

} // namespace orlen
