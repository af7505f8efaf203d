#pragma once

#include "window/controls/SymbolProvider.h"

#include <QString>

#include <string>

namespace orlen {

/// Icons of other programs: "image://appicon/ID". Where there is no icon, or none that can be read, a badge
/// with a symbol stands in. Reads the disk: ask for it asynchronously. Any thread.
class AppIconProvider : public DrawnImageProvider {
public:
    static constexpr const char* kName = "appicon";

    /// Of an icon as a desktop entry names it, an absolute path or a name of the theme; may be empty.
    [[nodiscard]] static QString id(const QString& symbol, const std::string& icon);

protected:
    void draw(QImage& image, const QString& id) const override;
};

} // namespace orlen
