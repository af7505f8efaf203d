#pragma once

#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <vector>

namespace orlen {

/// The photo clean-ups of the last scan as rows, one for each finding, with what is selected of them. Main
/// thread.
class PhotoGroupsModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Stage stage READ stage NOTIFY stageChanged)
    /// Identity of the group that is shown whole; empty: all of them are shown. Turns empty with its group.
    Q_PROPERTY(QString shownGroup READ shownGroup WRITE setShownGroup NOTIFY shownGroupChanged)
    /// How many photos of all groups are selected and what they take; empty when none is.
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectedChanged)

public:
    enum Stage {
        BeforeScan, ///< there was no scan yet
        Nothing,    ///< the last scan found nothing, or all of it is cleaned
        Groups,     ///< there are rows
    };
    Q_ENUM(Stage)

    enum class Role {
        findingId = Qt::UserRole, ///< identity of the finding
        title,                    ///< text
        explanation,              ///< what these photos are
        reason,                   ///< why they are rated so
        symbol,                   ///< icon name
        tone,                     ///< colour of the badge
        rating,                   ///< a `RatingValue`
        photosText,               ///< number of photos as text
        summary,                  ///< number of photos and their bytes as text
        selection,                ///< how many of them are selected, as text
        checkState,               ///< `Qt::CheckState` of all together
    };
    Q_ENUM(Role)

    explicit PhotoGroupsModel(AppModel& app = AppModelElement::model());

    /// Shows these findings, until those of the application model change.
    void setFindings(std::vector<Finding> findings);

    [[nodiscard]] Stage stage() const;
    [[nodiscard]] QString shownGroup() const { return m_shownGroup; }
    void setShownGroup(const QString& findingId);
    [[nodiscard]] QString selectedText() const;

    /// Selects all photos of a group, or none of them when all are selected.
    Q_INVOKABLE void toggleAll(const QString& findingId);
    /// Opens the review of the selected photos.
    Q_INVOKABLE void review();

    /// Null when there is none.
    [[nodiscard]] const Finding* finding(const QString& id) const;

Q_SIGNALS:
    void stageChanged();
    void shownGroupChanged();
    void selectedChanged();
    /// The photos of a group, or its sets, are others now.
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
    [[nodiscard]] static Qt::CheckState checkStateOf(const Row& row);

    AppModel& m_app;
    std::vector<Row> m_rows;
    QString m_shownGroup;
    bool m_wasFed = false; ///< by `setFindings`: counts as a scan
};

} // namespace orlen
