#pragma once

#include "platform/images/RgbImage.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace orlen {

/// A small convolutional network that gives the probability of each kind of picture. Any thread; pictures are
/// processed one at a time.
class SmallNetwork {
public:
    /// Nothing if this is not a network in ONNX form.
    [[nodiscard]] static std::optional<SmallNetwork> read(std::span<const std::uint8_t> onnx);

    ~SmallNetwork();
    SmallNetwork(SmallNetwork&& other) noexcept;
    SmallNetwork& operator=(SmallNetwork&& other) noexcept;

    /// One probability per class, summing to 1. Nothing for an empty picture, or if the network does not fit
    /// it.
    [[nodiscard]] std::optional<std::vector<float>> probabilities(const RgbImage& image) const;

private:
    struct Loaded;
    explicit SmallNetwork(std::unique_ptr<Loaded> loaded);

    std::unique_ptr<Loaded> m_loaded;
};

} // namespace orlen
