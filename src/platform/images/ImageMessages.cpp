#include "platform/images/ImageMessages.h"

#include "platform/images/ArchiveMessage.h"
#include "platform/images/MessageBytes.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

namespace orlen::ImageMessages {

namespace {

constexpr std::uint8_t kAnalysis = 0;
constexpr std::uint8_t kSmallPicture = 1;
constexpr std::uint8_t kIcon = 2;
constexpr std::uint8_t kPart = 3; ///< a small picture of a part
constexpr std::uint8_t kArchive = 4;
constexpr std::uint8_t kPage = 5;
constexpr std::uint8_t kMedia = 6;
constexpr std::uint8_t kThumbnail = 7; ///< a small picture of a thumbnail
constexpr std::uint8_t kNoPicture = 0;
constexpr std::uint8_t kPicture = 1;
constexpr std::uint8_t kNoPrint = 0;
constexpr std::uint8_t kPlainPrint = 1; ///< without an outline
constexpr std::uint8_t kPrint = 2;
constexpr std::int32_t kMostPages = 10'000'000;
constexpr std::int32_t kLongestWholeSide = 1'000'000;
/// Of any number that a film tells.
constexpr std::int32_t kMostOfMedia = 1'000'000'000;

constexpr int MediaFacts::*kMediaNumbers[] = {&MediaFacts::kilobits, &MediaFacts::width, &MediaFacts::height,
                                              &MediaFacts::frames};
constexpr std::string MediaFacts::*kMediaTexts[] = {
    &MediaFacts::title, &MediaFacts::artist, &MediaFacts::album, &MediaFacts::container, &MediaFacts::codec};

static_assert(1 + 2 * sizeof(std::int32_t) + sizeof(double) + 4 + sizeof(FeaturePrint::Direction) +
                  sizeof(std::uint16_t) + TileCode::kMostBytes + sizeof(PictureOutline) +
                  kMostLabels * (1 + kLongestIdentifier + sizeof(float)) <=
              kLongest);

bool fits(const ImageLabel& label)
{
    return !label.identifier.empty() && label.identifier.size() <= kLongestIdentifier;
}

void putLabels(MessageWriter& writer, const std::vector<ImageLabel>& labels)
{
    const auto fitting = std::count_if(labels.begin(), labels.end(), fits);
    auto left = static_cast<std::uint8_t>(std::min(kMostLabels, static_cast<std::size_t>(fitting)));
    writer.put(left);
    for (const ImageLabel& label : labels) {
        if (left == 0 || !fits(label))
            continue;
        writer.put(label.identifier);
        writer.put(label.confidence);
        --left;
    }
}

std::vector<ImageLabel> labels(MessageReader& reader)
{
    const auto count = reader.get<std::uint8_t>(0, kMostLabels);
    std::vector<ImageLabel> labels;
    for (std::uint8_t i = 0; i < count && reader.isValid(); ++i) {
        std::string identifier = reader.text(kLongestIdentifier);
        labels.push_back({std::move(identifier), reader.get(0.0F, 1.0F)});
    }
    return labels;
}

void put(MessageWriter& writer, const PictureOutline& outline)
{
    writer.put(outline.rows());
    writer.put(static_cast<std::uint8_t>(outline.blocks().size()));
    for (const PictureOutline::Block& block : outline.blocks())
        writer.put(block);
}

PictureOutline outline(MessageReader& reader)
{
    const auto rows = reader.get<PictureOutline::Rows>();
    std::vector<PictureOutline::Block> blocks(reader.get<std::uint8_t>(0, PictureOutline::kMostBlocks));
    for (PictureOutline::Block& block : blocks) {
        block = reader.get<PictureOutline::Block>();
        reader.require(block.isInside());
    }
    return {rows, blocks};
}

std::optional<FeaturePrint> print(MessageReader& reader)
{
    const auto kind = reader.get<std::uint8_t>(kNoPrint, kPrint);
    if (kind == kNoPrint)
        return std::nullopt;
    const auto direction = reader.get<FeaturePrint::Direction>();
    reader.require(std::ranges::any_of(direction, [](std::int8_t number) { return number != 0; }));
    constexpr auto kNever = std::numeric_limits<std::int8_t>::min();
    reader.require(std::ranges::find(direction, kNever) == direction.end());
    std::vector<std::uint8_t> tile = reader.bytes(TileCode::kMostBytes);
    if (kind == kPlainPrint)
        return FeaturePrint(direction, tile);
    return FeaturePrint(direction, std::move(tile), outline(reader));
}

/// The traits that a picture has or has not, one bit each.
constexpr bool PictureTraits::*kTraits[] = {&PictureTraits::isDamaged, &PictureTraits::isFlat,
                                            &PictureTraits::isGrey, &PictureTraits::hasPalette,
                                            &PictureTraits::isFromCamera};

void put(MessageWriter& writer, const PictureTraits& traits)
{
    writer.put(static_cast<std::uint8_t>(traits.format));
    unsigned bits = 0;
    unsigned bit = 1;
    for (const auto trait : kTraits) {
        bits |= traits.*trait ? bit : 0U;
        bit <<= 1U;
    }
    writer.put(static_cast<std::uint8_t>(bits));
}

PictureTraits traits(MessageReader& reader)
{
    constexpr auto kLastFormat = static_cast<std::uint8_t>(PictureFormat::jxl);
    constexpr std::uint8_t kAllBits = (1U << std::size(kTraits)) - 1;
    PictureTraits traits{.format = static_cast<PictureFormat>(reader.get<std::uint8_t>(0, kLastFormat))};
    unsigned bits = reader.get<std::uint8_t>(0, kAllBits);
    for (const auto trait : kTraits) {
        traits.*trait = (bits & 1U) != 0;
        bits >>= 1U;
    }
    return traits;
}

void put(MessageWriter& writer, PixelSize size)
{
    writer.put(std::int32_t{size.width});
    writer.put(std::int32_t{size.height});
}

/// At least one pixel each way.
PixelSize size(MessageReader& reader, PixelSize most)
{
    const auto width = reader.get<std::int32_t>(1, most.width);
    return {width, reader.get<std::int32_t>(1, most.height)};
}

PixelRect part(MessageReader& reader)
{
    PixelRect part;
    part.x = reader.get<std::int32_t>(0, kLongestWholeSide);
    part.y = reader.get<std::int32_t>(0, kLongestWholeSide);
    part.width = reader.get<std::int32_t>(1, kLongestWholeSide);
    part.height = reader.get<std::int32_t>(1, kLongestWholeSide);
    return part;
}

std::uint8_t kindOf(const Question& question)
{
    if (question.isAboutArchive || question.isAboutMedia)
        return question.isAboutMedia ? kMedia : kArchive;
    if (!question.bound)
        return kAnalysis;
    if (question.use != PictureUse::photo)
        return question.use == PictureUse::icon ? kIcon : kPage;
    if (question.bound->madeOf)
        return kThumbnail;
    return question.bound->part ? kPart : kSmallPicture;
}

PictureUse useOf(std::uint8_t kind)
{
    if (kind == kPage)
        return PictureUse::page;
    return kind == kIcon ? PictureUse::icon : PictureUse::photo;
}

} // namespace

std::string encoded(const Question& question)
{
    MessageWriter writer;
    const std::uint8_t kind = kindOf(question);
    writer.put(kind);
    if (question.bound) {
        put(writer, question.bound->size);
        writer.put(static_cast<std::uint8_t>(question.bound->fit));
    }
    if (kind == kPart) {
        const PixelRect& part = *question.bound->part;
        put(writer, PixelSize{part.x, part.y});
        put(writer, PixelSize{part.width, part.height});
    }
    if (kind == kThumbnail)
        writer.put(std::int64_t{*question.bound->madeOf});
    return writer.bytes();
}

std::optional<Question> decodedQuestion(std::string_view bytes)
{
    MessageReader reader(bytes);
    Question question;
    const auto kind = reader.get<std::uint8_t>(kAnalysis, kThumbnail);
    question.isAboutArchive = kind == kArchive;
    question.isAboutMedia = kind == kMedia;
    if (kind != kAnalysis && kind != kArchive && kind != kMedia) {
        const PixelSize wanted = size(reader, {kLongestSide, kLongestSide});
        const std::uint8_t lastFit = kind == kSmallPicture || kind == kThumbnail ? 1 : 0;
        const auto fit = static_cast<PictureBound::Fit>(reader.get<std::uint8_t>(0, lastFit));
        question = {PictureBound{wanted, fit}, useOf(kind)};
        if (kind == kPart)
            question.bound->part = part(reader);
        if (kind == kThumbnail)
            question.bound->madeOf = reader.get<std::int64_t>();
    }
    return reader.isValidWhole() ? std::optional(question) : std::nullopt;
}

std::string encoded(const Answer& answer, Outlines outlines)
{
    MessageWriter writer;
    writer.put(answer.analysis ? kPicture : kNoPicture);
    if (!answer.analysis)
        return writer.bytes();
    const ImageAnalysis& analysis = *answer.analysis;
    writer.put(std::int32_t{analysis.width});
    writer.put(std::int32_t{analysis.height});
    writer.put(analysis.sharpness);
    put(writer, analysis.traits);
    const auto kind = outlines == Outlines::with ? kPrint : kPlainPrint;
    writer.put(analysis.print ? kind : kNoPrint);
    if (analysis.print) {
        writer.put(analysis.print->direction());
        writer.put(analysis.print->packedTile());
        if (kind == kPrint)
            put(writer, analysis.print->outline());
    }
    putLabels(writer, analysis.labels);
    return writer.bytes();
}

std::optional<Answer> decodedAnswer(std::string_view bytes)
{
    MessageReader reader(bytes);
    Answer answer;
    if (reader.get<std::uint8_t>(kNoPicture, kPicture) == kPicture) {
        answer.analysis.emplace();
        answer.analysis->width = reader.get<std::int32_t>(0, kLongestWholeSide);
        answer.analysis->height = reader.get<std::int32_t>(0, kLongestWholeSide);
        // The sharpest possible picture stays far below.
        answer.analysis->sharpness = reader.get(0.0, 1e9);
        answer.analysis->traits = traits(reader);
        answer.analysis->print = print(reader);
        answer.analysis->labels = labels(reader);
    }
    return reader.isValidWhole() ? std::optional(std::move(answer)) : std::nullopt;
}

std::string encoded(const PictureAnswer& answer)
{
    MessageWriter writer;
    writer.put(answer.sizes ? kPicture : kNoPicture);
    if (answer.sizes) {
        put(writer, answer.sizes->whole);
        put(writer, answer.sizes->small);
        writer.put(answer.sizes->pages);
    }
    return writer.bytes();
}

std::optional<PictureAnswer> decodedPictureAnswer(std::string_view bytes, PixelSize most)
{
    MessageReader reader(bytes);
    PictureAnswer answer;
    if (reader.get<std::uint8_t>(kNoPicture, kPicture) == kPicture)
        answer.sizes = {size(reader, {kLongestWholeSide, kLongestWholeSide}), size(reader, most),
                        reader.get<std::int32_t>(0, kMostPages)};
    return reader.isValidWhole() ? std::optional(answer) : std::nullopt;
}

std::string encoded(const ArchiveAnswer& answer)
{
    MessageWriter writer;
    writer.put(std::uint32_t{answer.length});
    return writer.bytes();
}

std::optional<ArchiveAnswer> decodedArchiveAnswer(std::string_view bytes)
{
    MessageReader reader(bytes);
    const ArchiveAnswer answer{reader.get<std::uint32_t>(0, ArchiveMessage::kLongest)};
    return reader.isValidWhole() ? std::optional(answer) : std::nullopt;
}

std::string encoded(const MediaAnswer& answer)
{
    MessageWriter writer;
    writer.put(answer.facts ? kPicture : kNoPicture);
    if (!answer.facts)
        return writer.bytes();
    const MediaFacts& facts = *answer.facts;
    writer.put(std::int64_t{facts.length.count()});
    for (const auto number : kMediaNumbers)
        writer.put(std::int32_t{facts.*number});
    for (const auto text : kMediaTexts)
        writer.put(facts.*text);
    writer.put(static_cast<std::uint8_t>(facts.sounds.size()));
    for (const MediaFacts::Sound& sound : facts.sounds) {
        writer.put(sound.codec);
        writer.put(sound.language);
        writer.put(std::int32_t{sound.hertz});
        writer.put(std::int32_t{sound.channels});
    }
    return writer.bytes();
}

std::optional<MediaAnswer> decodedMediaAnswer(std::string_view bytes)
{
    constexpr std::int64_t kLongestPlay = 1'000'000'000'000;
    MessageReader reader(bytes);
    MediaAnswer answer;
    if (reader.get<std::uint8_t>(kNoPicture, kPicture) == kPicture) {
        MediaFacts& facts = answer.facts.emplace();
        facts.length = std::chrono::milliseconds(reader.get<std::int64_t>(0, kLongestPlay));
        for (const auto number : kMediaNumbers)
            facts.*number = reader.get<std::int32_t>(0, kMostOfMedia);
        for (const auto text : kMediaTexts)
            facts.*text = reader.textOrNone();
        const auto sounds = reader.get<std::uint8_t>(0, kMostSounds);
        for (std::uint8_t i = 0; i < sounds && reader.isValid(); ++i) {
            MediaFacts::Sound& sound = facts.sounds.emplace_back();
            sound.codec = reader.textOrNone();
            sound.language = reader.textOrNone();
            sound.hertz = reader.get<std::int32_t>(0, kMostOfMedia);
            sound.channels = reader.get<std::int32_t>(0, kMostOfMedia);
        }
    }
    return reader.isValidWhole() ? std::optional(std::move(answer)) : std::nullopt;
}

} // namespace orlen::ImageMessages
