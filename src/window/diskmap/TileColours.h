#pragma once

#include "insight/ReadingPair.h"
#include "tools/TreeNode.h"
#include "window/diskmap/RatedPaths.h"
#include "window/diskmap/TileShade.h"
#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace orlen {

/// What the colours of the disk map tell, which is the user's choice and remembered. Main thread.
class TileColours : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The disk map has them.")
    Q_PROPERTY(Meaning meaning READ meaning NOTIFY changed)
    /// What each shade stands for, in order. The last is that of all other tiles.
    Q_PROPERTY(QStringList legend READ legend NOTIFY changed)
    /// The icon of each shade; empty when the colours go without.
    Q_PROPERTY(QStringList symbols READ symbols NOTIFY changed)
    /// A few words on what the legend is about; may be empty.
    Q_PROPERTY(QString note READ note NOTIFY changed)
    /// Why the colours cannot tell what grew; empty if they can.
    Q_PROPERTY(QString growthRefusal READ growthRefusal NOTIFY changed)

public:
    enum Meaning { Kind, Age, Growth, Rating };
    Q_ENUM(Meaning)

    explicit TileColours(AppModel& app);

    /// `Kind` as long as nothing is known of what was chosen.
    [[nodiscard]] Meaning meaning() const;
    [[nodiscard]] QStringList legend() const;
    [[nodiscard]] QStringList symbols() const;
    [[nodiscard]] QString note() const;
    [[nodiscard]] QString growthRefusal() const;
    Q_INVOKABLE void choose(orlen::TileColours::Meaning meaning);

    /// A number of the legend.
    [[nodiscard]] int shadeOf(const TreeNode& node) const;
    /// What this shade of it tells of an item; empty when that is nothing or its kind.
    [[nodiscard]] QString fact(const TreeNode& node, int shade) const;

Q_SIGNALS:
    void changed();

private:
    void followFindings();
    void followReadings();
    [[nodiscard]] std::optional<std::int64_t> growthOf(const TreeNode& node) const;
    [[nodiscard]] TileShade::Advice adviceOf(const TreeNode& node) const;

    AppModel& m_app;
    Meaning m_wish = Kind;
    std::optional<Moment> m_since; ///< of the earlier scan; nothing if there are not two
    ReadingPair::Changes m_changes;
    mutable std::optional<RatedPaths> m_rated; ///< made when first needed
};

} // namespace orlen
