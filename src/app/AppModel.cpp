#include "app/AppModel.h"

#include "app/AppTexts.h"
#include "clean/History.h"
#include "clean/Persist.h"
#include "clean/Safety.h"
#include "insight/AskContext.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Places.h"

#include <cerrno>
#include <chrono>
#include <utility>

namespace orlen {

namespace {

/// The loaded value. Adds a sentence to the notices if something went wrong.
template <typename Record>
std::vector<Record> taken(Persist::Loaded<Record> loaded, const AppTexts::OwnFile& file,
                          std::vector<Message>& notices)
{
    if (loaded.problem == Persist::Problem::damaged)
        notices.push_back(AppTexts::damaged(file));
    else if (loaded.problem == Persist::Problem::unreadable)
        notices.push_back(AppTexts::unreadable(file, loaded.error));
    return std::move(loaded.records);
}

/// While nobody can tell what is excluded, everything is: nothing may move that the user once ruled out. On a
/// disk that does not answer no clean-up begins anyway, and the results may be shown.
std::vector<Exclusion> loadExclusions(std::vector<Message>& notices)
{
    Persist::Loaded<Exclusion> loaded = Persist::loadExclusions();
    const bool isUnknown = loaded.problem == Persist::Problem::unreadable && Persist::isReachable();
    std::vector<Exclusion> lines = taken(std::move(loaded), AppTexts::kExclusions, notices);
    if (isUnknown)
        lines = {{Exclusion::Kind::path, "/"}};
    return lines;
}

} // namespace

AppModel::AppModel(const Options& options, QObject* parent) : QObject(parent)
{
    lock(options.access);
    std::vector<CleanRecord> history = loadHistory();
    for (const std::string& folder : Places::current().expand("{CONFIG}/autostart"))
        OwnFile::removeUnfinished(folder);
    m_storage = std::make_unique<Storage>(taken(Persist::loadSnapshots(), AppTexts::kSnapshots, m_notices),
                                          m_isWriter ? Storage::Saving::all : Storage::Saving::none);
    m_programs = std::make_unique<Programs>();
    m_homeContents = std::make_unique<HomeContents>();
    m_exclusions = std::make_unique<ExclusionList>(loadExclusions(m_notices),
                                                   m_isWriter ? ExclusionList::Access::writer
                                                              : ExclusionList::Access::reader);
    m_results = std::make_unique<Results>(*m_storage, *m_exclusions, options.images);
    m_cleanUps = std::make_unique<CleanUps>(std::move(history),
                                            m_isWriter ? CleanUps::Access::writer : CleanUps::Access::reader,
                                            *m_results, *m_exclusions, *m_storage);
    m_names = std::make_shared<NameCache>();
    // A question that is being answered keeps what it has.
    connect(m_results.get(), &Results::findingsChanged, this,
            [this] { m_names = std::make_shared<NameCache>(); });
    const auto refresh = [this] { m_homeContents->refresh(); };
    connect(m_results.get(), &Results::lastScanChanged, this, refresh);
    connect(m_cleanUps.get(), &CleanUps::cleaningFinished, this, refresh);
    connect(m_cleanUps.get(), &CleanUps::restored, this, refresh);
    if (options.startup == Startup::full)
        m_storage->startUp();
}

AppModel::~AppModel()
{
    m_results->cancelScan();
}

void AppModel::lock(Access access)
{
    if (access != Access::writer)
        return;
    // Without a data folder, or on a file system without locks, another Orlen cannot be detected.
    const auto folder = Persist::makeDir();
    auto lock = folder.ok() ? FolderLock::take(folder.value()) : Errno{folder.error()};
    m_isWriter = lock.error() != EWOULDBLOCK;
    if (lock.ok())
        m_lock = std::move(lock).value();
}

std::vector<CleanRecord> AppModel::loadHistory()
{
    const Persist::Loaded<CleanRecord> loaded = Persist::loadHistory();
    std::vector<CleanRecord> history = taken(loaded, AppTexts::kHistory, m_notices);
    // An unfinished clean-up belongs to records that cannot be read now.
    if (loaded.problem == Persist::Problem::unreadable)
        return history;
    // A reader still wants to see what a killed clean-up moved, unless it is running in another process.
    const auto lock = !m_isWriter && History::isUnfinished() ? FolderLock::take(Persist::dir())
                                                             : Result<FolderLock>(Errno{EWOULDBLOCK});
    if (m_isWriter || lock.ok())
        History::recover(history);
    return history;
}

AskContext AppModel::askContext() const
{
    return {m_results->findings(),
            m_storage->breakdown(),
            m_storage->prediction(),
            m_cleanUps->history(),
            std::chrono::system_clock::now(),
            Safety::protection,
            m_storage->folders().readings(),
            m_programs->apps(),
            m_programs->startupItems(),
            m_programs->leftovers(),
            m_homeContents->files(),
            m_names};
}

} // namespace orlen
