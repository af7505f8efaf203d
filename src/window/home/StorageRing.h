#pragma once

#include "window/home/StorageModel.h"

#include <QColor>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

#include <array>

class QPainterPath;

namespace orlen {

/// The storage breakdown as a ring: a segment per category, clockwise from the top, and a pale rest for free
/// space. When the breakdown changes, the ring keeps showing the old one and emits `retargeted`; moving
/// `progress` from 0 to 1 then turns it into the new one. Progress may overshoot 1. Main thread.
class StorageRing : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orlen::StorageModel* storage READ storage WRITE setStorage NOTIFY storageChanged REQUIRED)
    /// Width of the band as a fraction of the ring's diameter.
    Q_PROPERTY(double thickness MEMBER m_thickness NOTIFY styleChanged)
    /// Colour of the free part.
    Q_PROPERTY(QColor track MEMBER m_track NOTIFY styleChanged)
    Q_PROPERTY(double progress READ progress WRITE setProgress NOTIFY progressChanged)
    /// The category that stands out, by its place in the order of categories; -1 for none.
    Q_PROPERTY(int current MEMBER m_current NOTIFY styleChanged)

public:
    explicit StorageRing(QQuickItem* parent = nullptr);

    [[nodiscard]] StorageModel* storage() const { return m_storage; }
    void setStorage(StorageModel* storage);
    [[nodiscard]] double progress() const { return m_progress; }
    void setProgress(double progress);

    /// The category drawn at a point; -1 if there is none, as for free space.
    Q_INVOKABLE [[nodiscard]] int categoryAt(QPointF point) const;
    /// The category after this one, or before it for a `step` of -1, round the ring as it will be drawn; the
    /// first or last for -1. -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int neighbour(int category, int step) const;

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void storageChanged();
    void styleChanged();
    void progressChanged();
    void retargeted();

private:
    /// Fractions of the volume, by category.
    using Fractions = std::array<double, kAllCategories.size()>;

    void retarget();
    [[nodiscard]] Fractions shown() const;
    /// As `shown`, with small ones large enough to see.
    [[nodiscard]] Fractions drawn() const;
    /// Radius of the middle of the band, pixels.
    [[nodiscard]] double radius() const;
    [[nodiscard]] QPainterPath segment(double start, double length, double corner) const;

    QPointer<StorageModel> m_storage;
    double m_thickness = 0.1;
    QColor m_track = Qt::lightGray;
    double m_progress = 1;
    int m_current = -1;
    Fractions m_from{};
    Fractions m_to{};
};

} // namespace orlen
