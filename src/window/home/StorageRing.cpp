#include "window/home/StorageRing.h"

#include "window/lists/DisplayText.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <utility>

namespace orlen {

namespace {

constexpr double kArcGap = 3;     // between neighbours, pixels
constexpr double kCorner = 2.5;   // radius, pixels
constexpr double kShortest = 4;   // of a visible segment, pixels along the band
constexpr double kLeast = 0.0005; // smallest fraction of the volume that is drawn
constexpr double kTop = 90;       // degrees, as QPainterPath counts them
constexpr double kWholeTurn = 360;
constexpr double kReach = 8;      // how far from the band a point still means it, pixels
constexpr float kPaleness = 0.6F; // of all segments but the one that stands out

double degrees(double pixels, double radius)
{
    return pixels / radius * 180 / std::numbers::pi;
}

/// Opaque, since a segment is drawn twice where its border lies.
QColor paler(const QColor& colour, const QColor& track)
{
    const auto mixed = [](float own, float other) { return own + (other - own) * kPaleness; };
    return QColor::fromRgbF(mixed(colour.redF(), track.redF()), mixed(colour.greenF(), track.greenF()),
                            mixed(colour.blueF(), track.blueF()));
}

/// Enlarges segments too small to see at the cost of the others.
template <typename Fractions>
Fractions withLeast(Fractions fractions, double least)
{
    double missing = 0;
    double ample = 0;
    for (const double fraction : fractions) {
        if (fraction >= kLeast && fraction < least)
            missing += least - fraction;
        else if (fraction >= least)
            ample += fraction;
    }
    for (double& fraction : fractions) {
        if (fraction < kLeast)
            fraction = 0;
        else if (fraction < least)
            fraction = least;
        else
            fraction *= std::max(0.0, 1 - missing / ample);
    }
    return fractions;
}

} // namespace

StorageRing::StorageRing(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &StorageRing::styleChanged, this, [this] { update(); });
}

void StorageRing::setStorage(StorageModel* storage)
{
    if (m_storage == storage)
        return;
    if (m_storage)
        m_storage->disconnect(this);
    m_storage = storage;
    if (m_storage)
        connect(m_storage, &StorageModel::changed, this, &StorageRing::retarget);
    Q_EMIT storageChanged();
    retarget();
}

void StorageRing::retarget()
{
    Fractions target{};
    if (m_storage) {
        std::transform(kAllCategories.begin(), kAllCategories.end(), target.begin(),
                       [this](OrlenCategory category) { return m_storage->fraction(category); });
    }
    if (target == m_to)
        return;
    m_from = shown();
    m_to = target;
    setProgress(0);
    Q_EMIT retargeted();
}

void StorageRing::setProgress(double progress)
{
    if (m_progress == progress)
        return;
    m_progress = progress;
    Q_EMIT progressChanged();
    update();
}

StorageRing::Fractions StorageRing::shown() const
{
    Fractions fractions{};
    for (std::size_t at = 0; at < fractions.size(); ++at)
        fractions[at] = std::max(0.0, m_from[at] + (m_to[at] - m_from[at]) * m_progress);
    // Measured folders may add up to more than the used space, and a spring overshoots.
    const double sum = std::accumulate(fractions.begin(), fractions.end(), 0.0);
    if (sum > 1)
        std::for_each(fractions.begin(), fractions.end(), [sum](double& fraction) { fraction /= sum; });
    return fractions;
}

double StorageRing::radius() const
{
    return std::min(width(), height()) / 2 * (1 - m_thickness);
}

StorageRing::Fractions StorageRing::drawn() const
{
    const double least = (degrees(kArcGap, radius()) + degrees(kShortest, radius())) / kWholeTurn;
    return withLeast(shown(), least);
}

int StorageRing::categoryAt(QPointF point) const
{
    const QPointF place = point - boundingRect().center();
    const double half = std::min(width(), height()) / 2 * m_thickness + kReach;
    if (std::abs(std::hypot(place.x(), place.y()) - radius()) > half)
        return -1;
    // Clockwise from the top, as a fraction of the whole turn.
    const double turn = std::atan2(place.x(), -place.y()) / (2 * std::numbers::pi);
    double rest = turn < 0 ? turn + 1 : turn;
    const Fractions fractions = drawn();
    for (std::size_t at = 0; at < fractions.size(); ++at) {
        rest -= fractions[at];
        if (rest < 0)
            return static_cast<int>(at);
    }
    return -1;
}

int StorageRing::neighbour(int category, int step) const
{
    const int count = static_cast<int>(m_to.size());
    int at = category < 0 && step < 0 ? count : category;
    for (int tried = 0; tried < count; ++tried) {
        at = (at + step + count) % count;
        if (m_to[static_cast<std::size_t>(at)] >= kLeast)
            return at;
    }
    return -1;
}

/// An arc of the band, in degrees clockwise from the top. Inset by `corner` on all sides: stroking it with a
/// pen of twice that width and round joins restores its size, with rounded corners.
QPainterPath StorageRing::segment(double start, double length, double corner) const
{
    const double outer = std::min(width(), height()) / 2 - corner;
    const double inner = std::min(width(), height()) * (0.5 - m_thickness) + corner;
    const auto square = [centre = boundingRect().center()](double radius) {
        return QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    };
    const double begin = kTop - start;
    const double outerInset = degrees(corner, outer);
    const double innerInset = degrees(corner, inner);
    QPainterPath path;
    path.arcMoveTo(square(outer), begin - outerInset);
    path.arcTo(square(outer), begin - outerInset, -(length - 2 * outerInset));
    path.arcTo(square(inner), begin - length + innerInset, length - 2 * innerInset);
    path.closeSubpath();
    return path;
}

void StorageRing::paint(QPainter* painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    const double middle = radius();
    if (middle <= 0)
        return;
    const double gap = degrees(kArcGap, middle);
    const Fractions fractions = drawn();
    double start = 0;
    const auto draw = [&](double fraction, const QColor& colour) {
        const double length = fraction * kWholeTurn - gap;
        if (length > 0) {
            const double corner = std::min(kCorner, length / degrees(1, middle) / 3);
            painter->setPen(QPen(colour, 2 * corner, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
            painter->setBrush(colour);
            painter->drawPath(segment(start + gap / 2, length, corner));
        }
        start += fraction * kWholeTurn;
    };
    const double used = std::accumulate(fractions.begin(), fractions.end(), 0.0);
    if (used <= 0) {
        const double band = middle * 2 * m_thickness / (1 - m_thickness);
        painter->setPen(QPen(m_track, band));
        painter->setBrush(Qt::NoBrush);
        painter->drawEllipse(boundingRect().center(), middle, middle);
        return;
    }
    for (std::size_t at = 0; at < fractions.size(); ++at) {
        QColor colour = DisplayText::colour(kAllCategories[at]);
        if (m_current >= 0 && std::cmp_not_equal(m_current, at))
            colour = paler(colour, m_track);
        draw(fractions[at], colour);
    }
    draw(1 - used, m_track);
}

} // namespace orlen
