#include "recognition/SmallNetwork.h"

#include "recognition/NetworkInput.h"

#include <opencv2/dnn.hpp>

#include <algorithm>
#include <array>
#include <exception>
#include <mutex>
#include <utility>

namespace orlen {

struct SmallNetwork::Loaded {
    cv::dnn::Net network; ///< running it changes it
    std::mutex mutex;
};

SmallNetwork::SmallNetwork(std::unique_ptr<Loaded> loaded) : m_loaded(std::move(loaded)) {}
SmallNetwork::~SmallNetwork() = default;
SmallNetwork::SmallNetwork(SmallNetwork&& other) noexcept = default;
SmallNetwork& SmallNetwork::operator=(SmallNetwork&& other) noexcept = default;

std::optional<SmallNetwork> SmallNetwork::read(std::span<const std::uint8_t> onnx)
{
    try {
        auto loaded = std::make_unique<Loaded>();
        // OpenCV takes the bytes as char and does not keep them.
        loaded->network = cv::dnn::readNetFromONNX(reinterpret_cast<const char*>(onnx.data()), onnx.size());
        if (loaded->network.empty())
            return std::nullopt;
        loaded->network.setPreferableBackend(cv::dnn::DNN_BACKEND_OPENCV);
        return SmallNetwork(std::move(loaded));
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

std::optional<std::vector<float>> SmallNetwork::probabilities(const RgbImage& image) const
{
    const std::vector<std::uint8_t> input = NetworkInput::of(image);
    if (input.empty())
        return std::nullopt;
    constexpr std::array shape = {1, NetworkInput::kChannels, NetworkInput::kSide, NetworkInput::kSide};
    try {
        cv::Mat blob(static_cast<int>(shape.size()), shape.data(), CV_32F);
        std::transform(input.begin(), input.end(), blob.ptr<float>(),
                       [](std::uint8_t v) { return static_cast<float>(v) / 255.0F; });
        const std::lock_guard lock(m_loaded->mutex);
        m_loaded->network.setInput(blob);
        const cv::Mat output = m_loaded->network.forward();
        return std::vector<float>(output.ptr<float>(), output.ptr<float>() + output.total());
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace orlen
