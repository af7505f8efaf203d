#pragma once

namespace orlen {

/// A colour in CIE L*a*b* (daylight), where equal distances look about equally large.
struct LabColour {
    float lightness = 0; ///< 0 to 100
    float a = 0;         ///< green to red
    float b = 0;         ///< blue to yellow

    /// From sRGB, 0 to 255 each.
    [[nodiscard]] static LabColour fromRgb(float red, float green, float blue);
};

} // namespace orlen
