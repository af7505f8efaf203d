#include "platform/images/ImageMessages.h"

#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <type_traits>

namespace orlen::ImageMessages {

namespace {

constexpr std::uint8_t kAnalysis = 0;
constexpr std::uint8_t kSmallPicture = 1;
constexpr std::uint8_t kIcon = 2;
constexpr std::uint8_t kPart = 3; ///< a small picture of a part
constexpr std::uint8_t kNoPicture = 0;
constexpr std::uint8_t kPicture = 1;
constexpr std::int32_t kLongestWholeSide = 1'000'000;

static_assert(1 + 2 * sizeof(std::int32_t) + sizeof(double) + 4 + sizeof(FeaturePrint::Direction) +
                  sizeof(std::uint16_t) + TileCode::kMostBytes +
                  kMostLabels * (1 + kLongestIdentifier + sizeof(float)) <=
              kLongest);

class Writer {
public:
    template <typename Number>
    void put(const Number& number)
    {
        static_assert(std::is_trivially_copyable_v<Number>);
        std::array<char, sizeof(Number)> bytes; // NOLINT(cppcoreguidelines-pro-type-member-init)
        std::memcpy(bytes.data(), &number, sizeof number);
        m_bytes.append(bytes.data(), bytes.size());
    }
    void put(const std::string& text)
    {
        put(static_cast<std::uint8_t>(text.size()));
        m_bytes += text;
    }
    void put(const std::vector<std::uint8_t>& bytes)
    {
        put(static_cast<std::uint16_t>(bytes.size()));
        m_bytes.append(bytes.begin(), bytes.end());
    }
    [[nodiscard]] std::string bytes() { return std::move(m_bytes); }

private:
    std::string m_bytes;
};

/// Once anything was missing or out of range, everything after it is.
class Reader {
public:
    explicit Reader(std::string_view bytes) : m_bytes(bytes) {}

    template <typename Number>
    Number get()
    {
        static_assert(std::is_trivially_copyable_v<Number>);
        Number number{};
        if (const std::string_view bytes = take(sizeof number); m_isValid)
            std::memcpy(&number, bytes.data(), sizeof number);
        return number;
    }
    template <typename Number>
    Number get(Number least, Number most)
    {
        const auto number = get<Number>();
        require(number >= least && number <= most); // also false for NaN
        return m_isValid ? number : Number{};
    }
    std::string text(std::size_t longest)
    {
        const std::string_view bytes = take(get<std::uint8_t>());
        require(!bytes.empty() && bytes.size() <= longest && PathText::isValidUtf8(bytes));
        return m_isValid ? std::string(bytes) : std::string();
    }
    std::vector<std::uint8_t> bytes(std::uint16_t most)
    {
        const std::string_view bytes = take(get<std::uint16_t>(0, most));
        return {bytes.begin(), bytes.end()};
    }
    void require(bool holds) { m_isValid = m_isValid && holds; }
    [[nodiscard]] bool isValid() const { return m_isValid; }
    /// Whether everything was valid and nothing is left over.
    [[nodiscard]] bool isValidWhole() const { return m_isValid && m_bytes.empty(); }

private:
    std::string_view take(std::size_t length)
    {
        require(length <= m_bytes.size());
        if (!m_isValid)
            return {};
        const std::string_view taken = m_bytes.substr(0, length);
        m_bytes.remove_prefix(length);
        return taken;
    }

    std::string_view m_bytes;
    bool m_isValid = true;
};

bool fits(const ImageLabel& label)
{
    return !label.identifier.empty() && label.identifier.size() <= kLongestIdentifier;
}

void putLabels(Writer& writer, const std::vector<ImageLabel>& labels)
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

std::vector<ImageLabel> labels(Reader& reader)
{
    const auto count = reader.get<std::uint8_t>(0, kMostLabels);
    std::vector<ImageLabel> labels;
    for (std::uint8_t i = 0; i < count && reader.isValid(); ++i) {
        std::string identifier = reader.text(kLongestIdentifier);
        labels.push_back({std::move(identifier), reader.get(0.0F, 1.0F)});
    }
    return labels;
}

std::optional<FeaturePrint> print(Reader& reader)
{
    if (reader.get<std::uint8_t>(0, 1) == 0)
        return std::nullopt;
    const auto direction = reader.get<FeaturePrint::Direction>();
    reader.require(std::ranges::any_of(direction, [](std::int8_t number) { return number != 0; }));
    constexpr auto kNever = std::numeric_limits<std::int8_t>::min();
    reader.require(std::ranges::find(direction, kNever) == direction.end());
    return FeaturePrint(direction, reader.bytes(TileCode::kMostBytes));
}

/// The traits that a picture has or has not, one bit each.
constexpr bool PictureTraits::*kTraits[] = {&PictureTraits::isDamaged, &PictureTraits::isFlat,
                                            &PictureTraits::isGrey, &PictureTraits::hasPalette,
                                            &PictureTraits::isFromCamera};

void put(Writer& writer, const PictureTraits& traits)
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

PictureTraits traits(Reader& reader)
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

void put(Writer& writer, PixelSize size)
{
    writer.put(std::int32_t{size.width});
    writer.put(std::int32_t{size.height});
}

/// At least one pixel each way.
PixelSize size(Reader& reader, PixelSize most)
{
    const auto width = reader.get<std::int32_t>(1, most.width);
    return {width, reader.get<std::int32_t>(1, most.height)};
}

PixelRect part(Reader& reader)
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
    if (!question.bound)
        return kAnalysis;
    if (question.use == PictureUse::icon)
        return kIcon;
    return question.bound->part ? kPart : kSmallPicture;
}

} // namespace

std::string encoded(const Question& question)
{
    Writer writer;
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
    return writer.bytes();
}

std::optional<Question> decodedQuestion(std::string_view bytes)
{
    Reader reader(bytes);
    Question question;
    const auto kind = reader.get<std::uint8_t>(kAnalysis, kPart);
    if (kind != kAnalysis) {
        const PixelSize wanted = size(reader, {kLongestSide, kLongestSide});
        const std::uint8_t lastFit = kind == kSmallPicture ? 1 : 0;
        const auto fit = static_cast<PictureBound::Fit>(reader.get<std::uint8_t>(0, lastFit));
        question = {PictureBound{wanted, fit}, kind == kIcon ? PictureUse::icon : PictureUse::photo};
        if (kind == kPart)
            question.bound->part = part(reader);
    }
    return reader.isValidWhole() ? std::optional(question) : std::nullopt;
}

std::string encoded(const Answer& answer)
{
    Writer writer;
    writer.put(answer.analysis ? kPicture : kNoPicture);
    if (!answer.analysis)
        return writer.bytes();
    const ImageAnalysis& analysis = *answer.analysis;
    writer.put(std::int32_t{analysis.width});
    writer.put(std::int32_t{analysis.height});
    writer.put(analysis.sharpness);
    put(writer, analysis.traits);
    writer.put(static_cast<std::uint8_t>(analysis.print.has_value()));
    if (analysis.print) {
        writer.put(analysis.print->direction());
        writer.put(analysis.print->packedTile());
    }
    putLabels(writer, analysis.labels);
    return writer.bytes();
}

std::optional<Answer> decodedAnswer(std::string_view bytes)
{
    Reader reader(bytes);
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
    Writer writer;
    writer.put(answer.sizes ? kPicture : kNoPicture);
    if (answer.sizes) {
        put(writer, answer.sizes->whole);
        put(writer, answer.sizes->small);
    }
    return writer.bytes();
}

std::optional<PictureAnswer> decodedPictureAnswer(std::string_view bytes, PixelSize most)
{
    Reader reader(bytes);
    PictureAnswer answer;
    if (reader.get<std::uint8_t>(kNoPicture, kPicture) == kPicture)
        answer.sizes = {size(reader, {kLongestWholeSide, kLongestWholeSide}), size(reader, most)};
    return reader.isValidWhole() ? std::optional(answer) : std::nullopt;
}

} // namespace orlen::ImageMessages
