#pragma once

#include "window/controls/SymbolProvider.h"

#include <QString>

#include <string>

namespace orlen {

/// Icons of other programs: "image://appicon/ID". Falls back to a badge with a symbol when there is no
/// readable icon. Reads the disk, so load it asynchronously. Any thread.
class AppIconProvider : public DrawnImageProvider {
public:
    static constexpr const char* kName = "appicon";

    /// `icon` is what a desktop entry says: an absolute path or a theme name; may be empty.
    [[nodiscard]] static QString id(const QString& symbol, const std::string& icon);

protected:
    void draw(QImage& image, const QString& id) const override;
};

} // namespace orlen
