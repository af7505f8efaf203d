#include "app/AppModel.h"

#include "app/AppTexts.h"
#include "clean/History.h"

#include <algorithm>
#include <utility>

/// The way back from a clean-up.
namespace orlen {

AppModel::Restoration AppModel::restore(const CleanRecord& record)
{
    checkWriter();
    return finishRestore(Cleaner::restore(record));
}

AppModel::Restoration AppModel::finishRestore(Cleaner::Restored outcome)
{
    const bool isRecorded = History::update(m_history, outcome.record).ok();
    Q_EMIT historyChanged();
    updateVolume();
    std::string message = AppTexts::restored(outcome.restored, outcome.failed);
    return {std::move(outcome), std::move(message), isRecorded};
}

bool AppModel::isRestoring(const Uuid& record) const
{
    return std::any_of(m_restores.begin(), m_restores.end(),
                       [&](const PendingRestore& pending) { return pending.record == record; });
}

bool AppModel::startRestore(const CleanRecord& record)
{
    checkWriter();
    if (isRestoring(record.id))
        return false;
    const auto outcome = std::make_shared<std::optional<Cleaner::Restored>>();
    m_restores.push_back({record.id, outcome});
    Q_EMIT restoringChanged();
    m_workers.start(
        [record, outcome](const std::stop_token& stop) {
            *outcome = Cleaner::restore(record, stop);
            return 0;
        },
        [this, id = record.id, outcome](int) {
            std::erase_if(m_restores, [&](const PendingRestore& pending) { return pending.record == id; });
            const Restoration restoration = finishRestore(**outcome);
            Q_EMIT restoringChanged();
            Q_EMIT restored(restoration);
        });
    return true;
}

} // namespace orlen
