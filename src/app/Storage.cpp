#include "app/Storage.h"

#include "clean/Reserve.h"
#include "clean/Safety.h"

#include <QTimer>

#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::hours kSnapshotAge{12};
/// Scans in quick succession count as one reading of the disk.
constexpr std::chrono::hours kReplacedAge{1};
constexpr std::size_t kSnapshotLimit = 400;
constexpr std::chrono::seconds kVolumeInterval{60};

void keepNewest(std::vector<Snapshot>& snapshots)
{
    if (snapshots.size() > kSnapshotLimit)
        snapshots.erase(snapshots.begin(), snapshots.end() - kSnapshotLimit);
}

/// Whether a new snapshot replaces the newest. Never across midnight, or scanning every half hour would never
/// leave a second one.
bool isReplaced(const std::vector<Snapshot>& snapshots, TimePoint now)
{
    using std::chrono::days;
    using std::chrono::floor;
    return !snapshots.empty() && now - snapshots.back().date < kReplacedAge &&
           floor<days>(now) == floor<days>(snapshots.back().date);
}

} // namespace

Storage::Storage(std::vector<Snapshot> snapshots, Saving saving, QObject* parent)
    : ModelPart(parent), m_saving(saving), m_snapshots(std::move(snapshots)), m_folders(saving),
      m_workers(*this)
{
    keepNewest(m_snapshots);
}

void Storage::startUp()
{
    m_isKeptUpToDate = true;
    refreshBreakdown(Recording::ifStale);
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &Storage::updateVolume);
    timer->start(kVolumeInterval);
}

bool Storage::isStale(std::span<const Snapshot> snapshots, TimePoint now)
{
    return snapshots.empty() || now - snapshots.back().date > kSnapshotAge;
}

void Storage::refreshBreakdown(Recording recording)
{
    checkThread();
    const auto measure = [saving = m_saving](const std::stop_token& stop) {
        Safety::refresh();
        // The Trash may have been emptied in the meantime.
        if (saving == Saving::all)
            Reserve::refill();
        return StorageBreakdown::compute(stop);
    };
    m_workers.start(measure, [this, recording, number = ++m_started](StorageBreakdown measured) {
        store(number, std::move(measured));
        if (recording == Recording::ifStale && isStale(m_snapshots, std::chrono::system_clock::now()))
            recordSnapshot();
    });
}

void Storage::setBreakdown(StorageBreakdown breakdown)
{
    checkThread();
    store(++m_started, std::move(breakdown));
}

void Storage::store(int number, StorageBreakdown breakdown)
{
    if (number <= m_stored)
        return;
    m_stored = number;
    m_breakdown = std::move(breakdown);
    m_isBreakdownReady = true;
    Q_EMIT breakdownChanged();
}

void Storage::updateVolume()
{
    const StorageBreakdown::Space space = StorageBreakdown::volume();
    m_breakdown.total = space.total;
    m_breakdown.free = space.free;
    Q_EMIT breakdownChanged();
}

void Storage::followMoves()
{
    updateVolume();
    if (m_isKeptUpToDate)
        refreshBreakdown(Recording::none);
}

void Storage::recordSnapshot()
{
    checkThread();
    Snapshot snapshot{std::chrono::system_clock::now(), m_breakdown.free, m_breakdown.total, {}};
    for (const auto& [category, bytes] : m_breakdown.cats)
        snapshot.cats.emplace(rawValue(category), bytes);
    if (isReplaced(m_snapshots, snapshot.date))
        m_snapshots.pop_back();
    m_snapshots.push_back(std::move(snapshot));
    keepNewest(m_snapshots);
    // Losing a snapshot barely affects the forecast.
    if (m_saving == Saving::all)
        (void)Persist::saveSnapshots(m_snapshots);
    Q_EMIT snapshotsChanged();
}

Prediction Storage::prediction() const
{
    return Predictor::predict(m_snapshots);
}

} // namespace orlen
