#pragma once

#include "app/CleanUps.h"
#include "app/ExclusionList.h"
#include "app/HomeContents.h"
#include "app/Programs.h"
#include "app/Results.h"
#include "app/Storage.h"
#include "model/Message.h"
#include "platform/files/FolderLock.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace orlen {

class NameCache;
struct AskContext;

/// The state of the program, in four parts: the results of the last Smart Scan, what is excluded from them,
/// the clean-ups and their history, and the storage with its snapshots. The window and the command line are
/// both views of it.
///
/// Lives on the main thread, like everything in this folder, and needs its event loop: blocking work runs on
/// workers and reports back by signals. Destroying the model cancels what is running and waits for it; a
/// clean-up or restore finishes its current item and is recorded.
class AppModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(orlen::Results* results READ results CONSTANT)
    Q_PROPERTY(orlen::ExclusionList* exclusions READ exclusions CONSTANT)
    Q_PROPERTY(orlen::CleanUps* cleanUps READ cleanUps CONSTANT)
    Q_PROPERTY(orlen::Storage* storage READ storage CONSTANT)
    Q_PROPERTY(bool writer READ isWriter CONSTANT)

public:
    enum class Startup {
        full,      ///< for a window: also measures the disk, takes a snapshot when one is due, and keeps free
                   ///< space up to date
        filesOnly, ///< for a single command: only loads the three files and checks disk access
    };
    enum class Access {
        writer, ///< saves history, exclusions and snapshots, unless another process does
        reader, ///< never saves
    };

    struct Options {
        Startup startup = Startup::full;
        Access access = Access::writer;
        ImageWorkers::Options images; ///< how photos are analysed
    };

    explicit AppModel(const Options& options, QObject* parent = nullptr);
    ~AppModel() override;

    [[nodiscard]] Results* results() const { return m_results.get(); }
    [[nodiscard]] ExclusionList* exclusions() const { return m_exclusions.get(); }
    [[nodiscard]] CleanUps* cleanUps() const { return m_cleanUps.get(); }
    [[nodiscard]] Storage* storage() const { return m_storage.get(); }
    /// Read only when asked to.
    [[nodiscard]] Programs* programs() const { return m_programs.get(); }
    /// Read only when asked to; then again after each scan and clean-up.
    [[nodiscard]] HomeContents* homeContents() const { return m_homeContents.get(); }

    /// Whether this model saves: it was asked to, and no other process has locked the data folder.
    [[nodiscard]] bool isWriter() const { return m_isWriter; }
    /// Problems with the program's own files found at startup, one sentence each; usually none.
    [[nodiscard]] const std::vector<Message>& notices() const { return m_notices; }
    /// The facts that questions about storage are answered from.
    [[nodiscard]] AskContext askContext() const;

private:
    void lock(Access access);
    [[nodiscard]] std::vector<CleanRecord> loadHistory();

    std::optional<FolderLock> m_lock;
    bool m_isWriter = false;
    std::vector<Message> m_notices;
    std::unique_ptr<Storage> m_storage;
    std::unique_ptr<Programs> m_programs;
    std::unique_ptr<HomeContents> m_homeContents;
    std::unique_ptr<ExclusionList> m_exclusions;
    std::unique_ptr<Results> m_results;
    std::shared_ptr<NameCache> m_names;   ///< of the results, for questions
    std::unique_ptr<CleanUps> m_cleanUps; ///< last: destroyed first, while what it records into still exists
};

} // namespace orlen
