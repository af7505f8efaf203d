#include "recognition/ImageServer.h"

#include "platform/ProcessLimits.h"
#include "platform/images/DescriptorSocket.h"
#include "platform/images/ImageMessages.h"
#include "recognition/ImageClassifier.h"
#include "recognition/ImageDecoder.h"
#include "recognition/PrintMaker.h"
#include "recognition/Sharpness.h"

#include <exception>

namespace orlen::ImageServer {

std::optional<ImageAnalysis> analysis(int file)
{
    const std::optional<ImageDecoder::Decoded> decoded = ImageDecoder::decode(file);
    if (!decoded)
        return std::nullopt;
    const RgbImage& thumbnail = decoded->thumbnail;
    ImageAnalysis analysis{decoded->width, decoded->height};
    analysis.sharpness = Sharpness::laplacianVariance(thumbnail);
    try {
        std::vector<ImageLabel> labels = ImageClassifier::labels(thumbnail, {decoded->isFromCamera});
        analysis.print = PrintMaker::printOf(thumbnail);
        analysis.labels = std::move(labels);
    } catch (const std::exception&) { // The libraries below throw when memory is short.
        return analysis;
    }
    return analysis;
}

void serve(int socket, std::chrono::seconds limit)
{
    if (!DescriptorSocket::send(socket, ImageMessages::kReady))
        return;
    while (const std::optional<UniqueFd> file = DescriptorSocket::receiveFile(socket)) {
        ProcessLimits::endAfter(limit);
        const std::string answer = ImageMessages::encoded({analysis(file->get())});
        ProcessLimits::endAfter(std::chrono::seconds(0));
        if (!DescriptorSocket::send(socket, answer))
            return;
    }
}

} // namespace orlen::ImageServer
