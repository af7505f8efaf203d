#pragma once

#include "app/Workers.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowsModel.h"
#include "window/photos/PhotoSetsModel.h"
#include "window/preview/PictureReader.h"

#include <QPointer>
#include <QSize>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

/// The photos of one set side by side, at most four at a time, the kept one among them. They keep their
/// places while another one is chosen to be kept. What is told of them is read on workers. Main thread.
class CompareModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Whether a set is shown; it ends by itself when the set goes.
    Q_PROPERTY(bool shown READ isShown NOTIFY changed)
    /// "Set 3 of 12"
    Q_PROPERTY(QString title READ title NOTIFY changed)
    /// Number of photos and why one is kept.
    Q_PROPERTY(QString heading READ heading NOTIFY changed)
    /// The row of the photo that is worked on, and of the one it is flipped with.
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)
    Q_PROPERTY(int partner READ partner NOTIFY currentChanged)
    /// "100 %"
    Q_PROPERTY(QString fullSize READ fullSize CONSTANT)
    Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY changed)
    Q_PROPERTY(bool hasNext READ hasNext NOTIFY changed)
    /// Whether the set has more photos than are shown.
    Q_PROPERTY(bool hasMore READ hasMore NOTIFY changed)
    /// Whether any photo of the set is selected.
    Q_PROPERTY(bool anySelected READ isAnySelected NOTIFY selectionChanged)

public:
    static constexpr std::size_t kAtOnce = 4;

    enum class Role {
        photo = Qt::UserRole, ///< its `PathCode`
        name,
        source, ///< of the whole picture
        pixels, ///< a `QSizeF` of the upright picture; empty while unknown
        kept,
        selected,
        facts,     ///< pixels, bytes, sharpness, date, camera data and folder, as texts; empty while unknown
        differing, ///< one bit for each fact, the lowest for the first: it is not the same for all
    };
    Q_ENUM(Role)

    explicit CompareModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] bool isShown() const { return !m_photos.empty(); }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString heading() const;
    [[nodiscard]] static QString fullSize() { return DisplayText::percent(1); }
    [[nodiscard]] int current() const { return m_current; }
    void setCurrent(int row);
    [[nodiscard]] int partner() const;
    [[nodiscard]] bool hasPrevious() const { return isShown() && setRow() > 0; }
    [[nodiscard]] bool hasNext() const;
    [[nodiscard]] bool hasMore() const { return m_photos.size() > kAtOnce; }
    [[nodiscard]] bool isAnySelected() const;

    /// Shows a set by its row. `photo`, a `PathCode`, becomes the current one; if empty, the first that is
    /// not kept.
    Q_INVOKABLE void show(orlen::PhotoSetsModel* sets, int row, const QString& photo);
    Q_INVOKABLE void close();
    /// Shows the previous (-1) or next (1) set, if there is one.
    Q_INVOKABLE void step(int by);
    /// Shows the next photos of a set with more than are shown; after the last ones the first.
    Q_INVOKABLE void showMore();
    /// Keeps this photo of the set instead.
    Q_INVOKABLE void keep(int row);
    /// Deselects the whole set.
    Q_INVOKABLE void keepAll();
    /// Selects or deselects a photo that is not kept.
    Q_INVOKABLE void toggle(int row);

Q_SIGNALS:
    void changed();
    void currentChanged();
    void selectionChanged();
    /// Nothing was exchanged: the files are no longer what was scanned.
    void refused();

private:
    struct Told {
        std::optional<PictureReader::Traits> traits;
        std::int64_t length = 0; ///< bytes
        std::optional<TimePoint> modified;
        friend bool operator==(const Told&, const Told&) = default;
    };
    struct Photo {
        std::string path;
        bool isKept = false;
        bool isAsked = false; ///< whether `told` is being read, or is there
        std::optional<Told> told;
    };

    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;
    [[nodiscard]] QStringList factsOf(const Photo& photo) const;
    [[nodiscard]] int differing() const;
    [[nodiscard]] int setRow() const;
    [[nodiscard]] Photo* photoOf(const std::string& path);
    [[nodiscard]] const Photo& at(std::size_t row) const { return m_photos[m_rows[row]]; }

    void showSet(int row, const std::string& photo);
    void showPage(std::size_t page);
    void look(Photo& photo);
    void followSets();

    AppModel& m_app;
    QPointer<PhotoSetsModel> m_sets;
    std::vector<Photo> m_photos;     ///< of the set, the kept one first when it was opened
    std::vector<std::size_t> m_rows; ///< numbers of those that are shown
    std::size_t m_page = 0;
    int m_current = 0;
    std::stop_source m_stop; ///< of all that is read for this set

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
