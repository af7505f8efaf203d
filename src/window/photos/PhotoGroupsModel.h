#pragma once

#include "window/findings/EntryOrder.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The photo findings of the last scan as rows, with what is selected of each. Main thread.
class PhotoGroupsModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Stage stage READ stage NOTIFY stageChanged)
    /// Id of the group shown on its own; empty while all are shown. Cleared when the group goes.
    Q_PROPERTY(QString shownGroup READ shownGroup WRITE setShownGroup NOTIFY shownGroupChanged)
    /// How many photos were looked at so far; empty when it is all of them.
    Q_PROPERTY(QString coverage READ coverage NOTIFY stageChanged)
    /// The order of the group shown on its own, remembered for all, and its filter.
    Q_PROPERTY(int key READ key NOTIFY orderChanged)
    Q_PROPERTY(bool reversed READ isReversed NOTIFY orderChanged)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY orderChanged)
    /// Number and size of the selected photos in all groups; empty when none is selected.
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectedChanged)

public:
    enum Stage {
        BeforeScan, ///< no scan yet
        Nothing,    ///< the last scan found nothing, or everything is cleaned
        Groups,     ///< there are rows
    };
    Q_ENUM(Stage)

    enum class Role {
        findingId = Qt::UserRole, ///< id of the finding
        title,
        explanation,
        reason,     ///< why they have this rating
        symbol,     ///< icon name
        tone,       ///< colour of the badge
        rating,     ///< a `RatingValue`
        photos,     ///< number of photos
        summary,    ///< number and size of the photos, as text
        selection,  ///< how many are selected, as text
        checkState, ///< a `Qt::CheckState`
        inSets,     ///< whether they are similar photos, set by set
    };
    Q_ENUM(Role)

    explicit PhotoGroupsModel(AppModel& app = AppModelElement::model());

    /// Shows these findings until those of the application model change.
    void setFindings(std::vector<Finding> findings);

    [[nodiscard]] Stage stage() const;
    [[nodiscard]] QString shownGroup() const { return m_shownGroup; }
    void setShownGroup(const QString& findingId);
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] QString coverage() const;

    [[nodiscard]] int key() const { return static_cast<int>(m_wish.key); }
    [[nodiscard]] bool isReversed() const { return m_wish.direction == EntryOrder::Direction::reversed; }
    [[nodiscard]] QString filter() const { return m_wish.filter; }
    void setFilter(const QString& filter);
    /// Sorts by a key of `EntryOrder`, or reverses the order if already sorted by it.
    Q_INVOKABLE void sortBy(int key);
    /// The finding's entries as the group shows them on its own, by their numbers.
    [[nodiscard]] std::vector<int> order(const Finding& finding) const;

    /// Selects all photos of a group, or deselects them if all are selected.
    Q_INVOKABLE void toggleAll(const QString& findingId);
    /// Selects these photos of a group, but never the last one of a set: its kept photo may be selected among
    /// others.
    void select(const QString& findingId, std::vector<std::string> paths);
    /// Opens the review of the selected photos.
    Q_INVOKABLE void review();

    /// Null when there is none.
    [[nodiscard]] const Finding* finding(const QString& id) const;

Q_SIGNALS:
    void stageChanged();
    void shownGroupChanged();
    void selectedChanged();
    void orderChanged();
    /// A group's photos or sets have changed.
    void photosChanged(const QString& findingId);

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Selected {
        int count = 0;
        std::int64_t bytes = 0;

        friend bool operator==(const Selected&, const Selected&) = default;
    };
    struct Row {
        Finding finding;
        Selected selected; ///< of the finding

        friend bool operator==(const Row&, const Row&) = default;
    };

    void followFindings();
    void followSelection();
    void replace(std::vector<Finding> findings);
    [[nodiscard]] const Row* rowOf(const QString& id) const;
    [[nodiscard]] Selected selectedOf(const Finding& finding) const;

    AppModel& m_app;
    std::vector<Row> m_rows;
    QString m_shownGroup;
    EntryOrder::Wish m_wish;
    bool m_wasFed = false; ///< `setFindings` was called; counts as a scan
};

} // namespace orlen
