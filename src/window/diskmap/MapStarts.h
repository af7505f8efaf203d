#pragma once

#include <QStringList>
#include <QUrl>

#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// The folders where the disk map may start, with the one where it does, wherever that is. A plain value.
class MapStarts {
public:
    void set(std::vector<std::string> places, const std::string& start);

    /// What the places are called.
    [[nodiscard]] QStringList names() const;
    /// Which of them this is; their number if it is none.
    [[nodiscard]] int indexOf(const std::string& start) const;
    /// The folder of a place; nothing if it does not exist.
    [[nodiscard]] std::optional<std::string> folder(int place) const;

    /// The first folder or file of these; nothing if there is none.
    [[nodiscard]] static std::optional<std::string> dropped(const QList<QUrl>& urls);

private:
    std::vector<std::string> m_places;
};

} // namespace orlen
