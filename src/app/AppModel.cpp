#include "app/AppModel.h"

#include "app/AppTexts.h"
#include "app/DiskAccess.h"
#include "clean/History.h"
#include "clean/Persist.h"
#include "clean/Reserve.h"
#include "clean/Safety.h"
#include "platform/files/Folder.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "scan/ScanEngine.h"

#include <QThread>
#include <QTimer>

#include <cerrno>
#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::hours kSnapshotAge{12};
/// Scans in quick succession are one reading of the disk.
constexpr std::chrono::hours kReplacedAge{1};
constexpr std::size_t kSnapshotLimit = 400;
constexpr std::chrono::seconds kVolumeInterval{60};

/// What was loaded; of what went wrong a sentence is added to the notices.
template <typename Record>
std::vector<Record> taken(Persist::Loaded<Record> loaded, const AppTexts::OwnFile& file,
                          std::vector<std::string>& notices)
{
    if (loaded.problem == Persist::Problem::damaged)
        notices.push_back(AppTexts::damaged(file));
    else if (loaded.problem == Persist::Problem::unreadable)
        notices.push_back(AppTexts::unreadable(file, loaded.error));
    return std::move(loaded.records);
}

void keepNewest(std::vector<Snapshot>& snapshots)
{
    if (snapshots.size() > kSnapshotLimit)
        snapshots.erase(snapshots.begin(), snapshots.end() - kSnapshotLimit);
}

/// Whether a new snapshot takes the place of the newest. Not past midnight: a scan every half hour would
/// never leave a second one.
bool isReplaced(const std::vector<Snapshot>& snapshots, TimePoint now)
{
    using std::chrono::days;
    using std::chrono::floor;
    return !snapshots.empty() && now - snapshots.back().date < kReplacedAge &&
           floor<days>(now) == floor<days>(snapshots.back().date);
}

} // namespace

AppModel::AppModel(const Options& options, QObject* parent)
    : QObject(parent), m_options(options), m_scanProgress(std::make_shared<ScanProgress>()), m_workers(*this)
{
    if (m_options.access == Access::writer) {
        // Without a data folder, or locks on its file system, there is nothing to tell another Orlen by.
        const auto folder = Persist::makeDir();
        auto lock = folder.ok() ? FolderLock::take(folder.value()) : Errno{folder.error()};
        m_isWriter = lock.error() != EWOULDBLOCK;
        if (lock.ok())
            m_lock = std::move(lock).value();
    }
    load();
    m_isFdaGranted = checkFDA();
    // Before anyone else hears of other findings.
    connect(this, &AppModel::findingsChanged, this, [this] { m_listed.reset(); });
    if (m_options.startup == Startup::full)
        startUp();
}

AppModel::~AppModel()
{
    cancelScan();
    m_workers.finish();
    // What was moved must not be forgotten because the window was closed meanwhile.
    for (const PendingCleanUp& pending : m_pending) {
        if (pending->has_value())
            (void)History::add(m_history, (*pending)->record);
    }
    for (const PendingRestore& pending : m_restores) {
        if (pending.outcome->has_value())
            (void)History::update(m_history, (*pending.outcome)->record);
    }
}

void AppModel::load()
{
    const Persist::Loaded<CleanRecord> loaded = Persist::loadHistory();
    m_history = taken(loaded, AppTexts::kHistory, m_notices);
    m_snapshots = taken(Persist::loadSnapshots(), AppTexts::kSnapshots, m_notices);
    keepNewest(m_snapshots);
    // What was begun belongs to records that cannot be seen now.
    if (loaded.problem == Persist::Problem::unreadable)
        return;
    // Who only reads wants to see what a killed clean-up moved all the same, unless that is at work
    // elsewhere.
    const auto lock = !m_isWriter && History::isUnfinished() ? FolderLock::take(Persist::dir())
                                                             : Result<FolderLock>(Errno{EWOULDBLOCK});
    if (m_isWriter || lock.ok())
        History::recover(m_history);
    for (const std::string& folder : Places::current().expand("{CONFIG}/autostart"))
        OwnFile::removeUnfinished(folder);
}

void AppModel::startUp()
{
    refreshBreakdown(Recording::ifStale);
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &AppModel::updateVolume);
    timer->start(kVolumeInterval);
}

bool AppModel::checkFDA()
{
    return DiskAccess::isGranted(Places::current());
}

void AppModel::refreshAccess()
{
    setFdaGranted(checkFDA());
}

bool AppModel::isStale(std::span<const Snapshot> snapshots, TimePoint now)
{
    return snapshots.empty() || now - snapshots.back().date > kSnapshotAge;
}

void AppModel::refreshBreakdown(Recording recording)
{
    checkThread();
    const auto measure = [isWriter = m_isWriter](const std::stop_token& stop) {
        Safety::refresh();
        // The Trash may have been emptied meanwhile.
        if (isWriter)
            Reserve::refill();
        return StorageBreakdown::compute(stop);
    };
    m_workers.start(measure, [this, recording, number = ++m_breakdownsStarted](StorageBreakdown measured) {
        if (number > m_breakdownStored) {
            m_breakdownStored = number;
            setBreakdown(std::move(measured));
        }
        if (recording == Recording::ifStale && isStale(m_snapshots, std::chrono::system_clock::now()))
            recordSnapshot();
    });
}

void AppModel::setBreakdown(StorageBreakdown breakdown)
{
    m_breakdown = std::move(breakdown);
    m_isBreakdownReady = true;
    Q_EMIT breakdownChanged();
}

void AppModel::updateVolume()
{
    const StorageBreakdown::Space space = StorageBreakdown::volume();
    m_breakdown.total = space.total;
    m_breakdown.free = space.free;
    Q_EMIT breakdownChanged();
}

void AppModel::recordSnapshot()
{
    checkThread();
    Snapshot snapshot{std::chrono::system_clock::now(), m_breakdown.free, m_breakdown.total, {}};
    for (const auto& [category, bytes] : m_breakdown.cats)
        snapshot.cats.emplace(rawValue(category), bytes);
    if (isReplaced(m_snapshots, snapshot.date))
        m_snapshots.pop_back();
    m_snapshots.push_back(std::move(snapshot));
    keepNewest(m_snapshots);
    // A lost snapshot costs only a little of the forecast.
    if (m_isWriter)
        (void)Persist::saveSnapshots(m_snapshots);
    Q_EMIT snapshotsChanged();
}

Prediction AppModel::prediction() const
{
    return Predictor::predict(m_snapshots);
}

void AppModel::setSelection(std::set<std::string> selection)
{
    PathSelection::addInside(selection, listed());
    assign(m_selection, std::move(selection), &AppModel::selectionChanged);
}

void AppModel::select(std::span<const std::string> paths)
{
    checkThread();
    const std::size_t before = m_selection.size();
    for (const std::string& path : paths)
        PathSelection::tick(m_selection, listed(), path);
    if (m_selection.size() != before)
        Q_EMIT selectionChanged();
}

void AppModel::deselect(std::span<const std::string> paths)
{
    checkThread();
    const std::size_t before = m_selection.size();
    for (const std::string& path : paths)
        PathSelection::untick(m_selection, listed(), path);
    if (m_selection.size() != before)
        Q_EMIT selectionChanged();
}

const PathTree& AppModel::listed() const
{
    if (!m_listed)
        m_listed = PathSelection::listedIn(m_findings);
    return *m_listed;
}

void AppModel::setSheet(std::optional<SheetKind> sheet)
{
    assign(m_sheet, std::move(sheet), &AppModel::sheetChanged);
}

void AppModel::setRequestedScreen(std::optional<Screen> screen)
{
    assign(m_requestedScreen, screen, &AppModel::requestedScreenChanged);
}

void AppModel::setLargeThresholdMB(double megabytes)
{
    assign(m_largeThresholdMB, megabytes, &AppModel::largeThresholdMBChanged);
}

void AppModel::setPhase(Phase phase)
{
    assign(m_phase, phase, &AppModel::phaseChanged);
}

void AppModel::setFdaGranted(bool isGranted)
{
    assign(m_isFdaGranted, isGranted, &AppModel::fdaGrantedChanged);
}

void AppModel::checkThread() const
{
    if (QThread::currentThread() != thread())
        fatalError("the application model was used outside its thread");
}

void AppModel::checkWriter() const
{
    checkThread();
    if (!m_isWriter)
        fatalError("a clean-up was asked of an application model that cannot record it");
}

} // namespace orlen
