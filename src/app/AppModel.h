#pragma once

#include "app/CleanUps.h"
#include "app/Results.h"
#include "app/Storage.h"
#include "platform/files/FolderLock.h"

#include <QObject>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

struct AskContext;

/// The one state of the program, in three parts: the results of the last Smart Scan, the clean-ups with their
/// history, and the storage with its snapshots. The window and the command line are both views of it.
///
/// Belongs to the main thread, as everything here does, and needs its event loop: work that blocks runs on
/// workers and its results arrive by signals. Destroying the model cancels what is in progress and waits for
/// it; a clean-up or a restore finishes the item in hand and is recorded.
class AppModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(orlen::Results* results READ results CONSTANT)
    Q_PROPERTY(orlen::CleanUps* cleanUps READ cleanUps CONSTANT)
    Q_PROPERTY(orlen::Storage* storage READ storage CONSTANT)
    Q_PROPERTY(bool writer READ isWriter CONSTANT)

public:
    enum class Startup {
        full,      ///< for a window: also measures, records a stale snapshot, and keeps free space up to date
        filesOnly, ///< for one command: loads the two files and probes the disk access
    };
    enum class Access {
        writer, ///< saves history and snapshots, if no other process does
        reader, ///< never saves
    };

    struct Options {
        Startup startup = Startup::full;
        Access access = Access::writer;
        ImageWorkers::Options images; ///< who looks at the photos
    };

    explicit AppModel(const Options& options, QObject* parent = nullptr);
    ~AppModel() override;

    [[nodiscard]] Results* results() const { return m_results.get(); }
    [[nodiscard]] CleanUps* cleanUps() const { return m_cleanUps.get(); }
    [[nodiscard]] Storage* storage() const { return m_storage.get(); }

    /// Whether this model saves: it was asked to, and no other process holds the data folder.
    [[nodiscard]] bool isWriter() const { return m_isWriter; }
    /// What the user should know of the program's own files since the start, one sentence each; mostly none.
    [[nodiscard]] const std::vector<std::string>& notices() const { return m_notices; }
    /// What a question about the storage is answered from.
    [[nodiscard]] AskContext askContext() const;

private:
    void lock(Access access);
    [[nodiscard]] std::vector<CleanRecord> loadHistory();

    std::optional<FolderLock> m_lock;
    bool m_isWriter = false;
    std::vector<std::string> m_notices;
    std::unique_ptr<Storage> m_storage;
    std::unique_ptr<Results> m_results;
    std::unique_ptr<CleanUps> m_cleanUps; ///< last: what it records is forgotten nowhere
};

} // namespace orlen
