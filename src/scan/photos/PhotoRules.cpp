#include "scan/photos/PhotoRules.h"

#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"
#include "scan/ScanTexts.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace orlen::PhotoRules {

namespace {

using Words = std::initializer_list<std::string_view>;

constexpr double kSharpEnough = 22.0;
/// Narrower ones are icons and thumbnails, which have no detail to lose.
constexpr int kNarrowestBlurry = 301;

/// How the desktops name their screenshots, in small letters.
// clang-format off
constexpr std::string_view kScreenshotNames[] = {
    "screenshot", "screen shot", "bildschirmfoto", "capture d", "copie d", "captura de", "captura desde", "captura_de",
    "capturas de", "pantallazo", "schermata", "cattura schermo", "cattura_schermo", "cattura dello schermo",
    "schermafdruk", "skjermbilde", "zrzut ekranu", "zrzut_ekranu", "zrzut-ekranu", "zrzutekranu", "снимок экрана",
    "لقطة شاشة", "لقطة_شاشة", "لقطة-شاشة", "لقطة الشاشة", "لقطة_الشاشة", "スクリーンショット", "スクリーンキャプチャ",
    "画面キャプチャ", "截图", "截屏", "屏幕截图", "屏幕快照", "微信截图", "企业微信截图", "qq截图",
};
// clang-format on
constexpr std::string_view kScreenshotFolder = "screenshots";

/// Whether a label of that confidence at least has one of the words in it.
bool shows(const PhotoInfo& photo, Words words, float confidence)
{
    return std::any_of(photo.labels.begin(), photo.labels.end(), [&](const ImageLabel& label) {
        return label.confidence >= confidence &&
               std::any_of(words.begin(), words.end(), [&](std::string_view word) {
                   return label.identifier.find(word) != std::string::npos;
               });
    });
}

bool isNamedScreenshot(const std::string& path)
{
    const std::string name = LanguageTools::lowerCase(PathText::lastComponent(path));
    const std::string_view folder = PathText::lastComponent(PathText::parent(path));
    return PathText::asciiLower(folder) == kScreenshotFolder ||
           std::any_of(std::begin(kScreenshotNames), std::end(kScreenshotNames),
                       [&](std::string_view start) { return name.starts_with(start); });
}

bool isReceipt(const PhotoInfo& photo)
{
    return shows(photo, {"receipt", "invoice"}, 0.2F) || shows(photo, {"document", "paper"}, 0.6F);
}

bool isMeme(const PhotoInfo& photo)
{
    return shows(photo, {"meme"}, 0.2F) ||
           (shows(photo, {"text"}, 0.5F) &&
            shows(photo, {"cartoon", "illustration", "comic", "poster", "people"}, 0.3F));
}

} // namespace

std::optional<Verdict> verdict(const PhotoInfo& photo)
{
    if (isNamedScreenshot(photo.cand.path) || shows(photo, {"screenshot"}, 0.3F))
        return Verdict{FindingKind::screenshots, ScanTexts::kScreenshot};
    if (isReceipt(photo))
        return Verdict{FindingKind::receipts, ScanTexts::kReceipt};
    if (isMeme(photo))
        return Verdict{FindingKind::memes, ScanTexts::kMeme};
    const bool showsFocus = !photo.traits.isFlat && !photo.traits.isDamaged;
    if (showsFocus && photo.sharpness < kSharpEnough && photo.width >= kNarrowestBlurry)
        return Verdict{FindingKind::blurry,
                       Message{ScanTexts::kBlurry, {{"score", std::int64_t{std::llround(photo.sharpness)}}}}};
    return std::nullopt;
}

} // namespace orlen::PhotoRules
