#include "window/predict/PredictionModel.h"

#include "app/Format.h"
#include "clean/Persist.h"
#include "insight/InsightTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace orlen {

namespace {

constexpr double kDaysPerWeek = 7;
/// A date further away says nothing.
constexpr double kMostDaysTold = 2 * 365.0;
/// More than any disk holds, yet far below 64 bits.
constexpr double kLargestRate = 1e18;

QString rateText(double bytesPerDay)
{
    const double weekly = std::clamp(bytesPerDay * kDaysPerWeek, -kLargestRate, kLargestRate);
    const std::int64_t bytes = std::llround(weekly);
    if (bytes == 0)
        return DisplayText::text(WindowTexts::kNoChange);
    return DisplayText::text(Message(bytes > 0 ? WindowTexts::kGrowth : WindowTexts::kDecline,
                                     {{"size", Bytes{std::abs(bytes)}}}));
}

} // namespace

PredictionModel::PredictionModel(AppModel& app) : m_app(app)
{
    connect(m_app.storage(), &Storage::snapshotsChanged, this, &PredictionModel::update);
    update();
}

void PredictionModel::update()
{
    Prediction prediction = m_app.storage()->prediction();
    setRows(m_prediction.perCategory, prediction.perCategory,
            [](const auto& growth) { return rawValue(growth.first); });
    m_prediction = std::move(prediction);
    // Each bar is scaled to all the others.
    allChanged();
    m_curve = m_prediction.enoughData ? ForecastCurve::of(m_app.storage()->snapshots()) : ForecastCurve{};
    Q_EMIT changed();
}

QString PredictionModel::snapshotsText() const
{
    const auto count = static_cast<std::int64_t>(m_app.storage()->snapshots().size());
    return DisplayText::text(
        Message(WindowTexts::kSnapshots, {{"count", count}, {"folder", Format::shownPath(Persist::dir())}}));
}

QString PredictionModel::asOf() const
{
    if (!m_prediction.enoughData)
        return {};
    const TimePoint last = m_app.storage()->snapshots().back().date;
    std::vector<Message> said{{WindowTexts::kAsOf, {{"date", Moment{last}}}}};
    if (m_prediction.daysLeft && *m_prediction.daysLeft < kMostDaysTold) {
        const std::chrono::duration<double, std::chrono::days::period> left(*m_prediction.daysLeft);
        const TimePoint full = last + std::chrono::duration_cast<std::chrono::hours>(left);
        said.push_back({InsightTexts::kFullAround, {{"date", Moment{full}}}});
    }
    return DisplayText::text(Message::joined(std::move(said), Several::Joint::sentences));
}

bool PredictionModel::reachesFull() const
{
    return m_curve.forecast && !(m_curve.forecast->second.y > 0);
}

QString PredictionModel::endDate() const
{
    return m_curve.forecast ? DisplayText::date(m_curve.dateAt(m_curve.forecast->second.x)) : QString();
}

QString PredictionModel::firstDate() const
{
    return hasSnapshots() ? DisplayText::date(m_app.storage()->snapshots().front().date) : QString();
}

QString PredictionModel::lastDate() const
{
    return hasSnapshots() ? DisplayText::date(m_app.storage()->snapshots().back().date) : QString();
}

QString PredictionModel::freeText() const
{
    return hasSnapshots() ? DisplayText::size(m_app.storage()->snapshots().back().free) : QString();
}

QString PredictionModel::freeSentence() const
{
    if (!hasSnapshots())
        return {};
    return DisplayText::text(
        Message(WindowTexts::kFree, {{"size", Bytes{m_app.storage()->snapshots().back().free}}}));
}

PredictionModel::Range PredictionModel::range() const
{
    Range range;
    for (const auto& [category, rate] : m_prediction.perCategory) {
        range.least = std::min(range.least, rate);
        range.most = std::max(range.most, rate);
    }
    return range;
}

QVariant PredictionModel::value(std::size_t number, int role) const
{
    const auto& [category, bytesPerDay] = m_prediction.perCategory[number];
    const Range range = this->range();
    const double span = range.most - range.least;
    switch (static_cast<Role>(role)) {
    case Role::label:
        return DisplayText::text(label(category));
    case Role::colour:
        return DisplayText::colour(category);
    case Role::rate:
        return rateText(bytesPerDay);
    case Role::start:
        return span > 0 ? (std::min(bytesPerDay, 0.0) - range.least) / span : 0.0;
    case Role::extent:
        return span > 0 ? std::abs(bytesPerDay) / span : 0.0;
    }
    return {};
}

} // namespace orlen
