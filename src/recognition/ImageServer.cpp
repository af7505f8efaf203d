#include "recognition/ImageServer.h"

#include "platform/images/ArchiveMessage.h"
#include "platform/images/DescriptorSocket.h"
#include "platform/images/ImageMessages.h"
#include "platform/images/PixelBuffer.h"
#include "platform/process/ProcessLimits.h"
#include "recognition/ArchiveReader.h"
#include "recognition/ImageDecoder.h"
#include "recognition/MediaReader.h"
#include "recognition/PictureLabels.h"
#include "recognition/PlainPicture.h"
#include "recognition/PrintMaker.h"
#include "recognition/Sharpness.h"

#include <exception>

namespace orlen::ImageServer {

namespace {

ImageMessages::PictureAnswer smallPicture(int file, const PictureBound& bound, PictureUse use, int buffer)
{
    std::optional<ImageDecoder::Decoded> decoded = ImageDecoder::decode(file, bound, use);
    if (!decoded)
        return {};
    std::vector<std::uint8_t>& pixels = decoded->small.pixels;
    pixels.insert(pixels.end(), decoded->alpha.begin(), decoded->alpha.end());
    if (!PixelBuffer::write(buffer, pixels))
        return {};
    return {{{decoded->upright(), {decoded->small.width, decoded->small.height}, decoded->pages}}};
}

ImageMessages::ArchiveAnswer archive(int file, int buffer)
{
    const auto contents = ArchiveReader::read(file);
    if (!contents)
        return {};
    const std::vector<std::uint8_t> bytes = ArchiveMessage::encoded(*contents);
    return {PixelBuffer::write(buffer, bytes) ? static_cast<std::uint32_t>(bytes.size()) : 0};
}

/// Nothing if it is not a question.
std::optional<std::string> answered(const DescriptorSocket::Message& message)
{
    const auto question = ImageMessages::decodedQuestion(message.bytes);
    const bool hasBuffer = question && (question->bound || question->isAboutArchive);
    if (!question || message.files.size() != (hasBuffer ? 2U : 1U))
        return std::nullopt;
    const int file = message.files.front().get();
    if (question->isAboutMedia)
        return ImageMessages::encoded(ImageMessages::MediaAnswer{MediaReader::read(file)});
    if (question->isAboutArchive)
        return ImageMessages::encoded(archive(file, message.files.back().get()));
    if (question->bound)
        return ImageMessages::encoded(
            smallPicture(file, *question->bound, question->use, message.files.back().get()));
    return ImageMessages::encoded(ImageMessages::Answer{analysis(file)});
}

} // namespace

std::optional<ImageAnalysis> analysis(int file)
{
    const auto decoded = ImageDecoder::decode(file, ImageDecoder::kForRecognition);
    if (!decoded)
        return std::nullopt;
    const RgbImage& thumbnail = decoded->small;
    ImageAnalysis analysis{decoded->width, decoded->height};
    analysis.traits = decoded->traits;
    analysis.traits.isGrey = PlainPicture::isGrey(thumbnail);
    analysis.traits.isFlat = PlainPicture::isFlat(thumbnail);
    analysis.sharpness = Sharpness::laplacianVariance(thumbnail);
    try {
        std::vector<ImageLabel> labels = PictureLabels::of(file, *decoded);
        // What a decoder fills in for missing rows would be compared as well.
        if (!analysis.traits.isDamaged)
            analysis.print = PrintMaker::printOf(thumbnail);
        analysis.labels = std::move(labels);
    } catch (const std::exception&) { // The libraries below throw when memory is short.
        return analysis;
    }
    return analysis;
}

void serve(int socket, const Limits& limits)
{
    if (!DescriptorSocket::send(socket, ImageMessages::kReady))
        return;
    while (const auto message =
               DescriptorSocket::receiveWithFiles(socket, ImageMessages::kLongest, limits.idle)) {
        ProcessLimits::endAfter(limits.picture);
        const std::optional<std::string> answer = answered(*message);
        ProcessLimits::endAfter(std::chrono::seconds(0));
        if (!answer || !DescriptorSocket::send(socket, *answer))
            return;
    }
}

} // namespace orlen::ImageServer
