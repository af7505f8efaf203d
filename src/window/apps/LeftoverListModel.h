#pragma once

#include "model/CleanPlan.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace orlen {

/// Leftovers as a checklist in a sheet, from which those checked go to the review. The sheet closes for the
/// review and comes back if that ends without a clean-up. Main thread.
class LeftoverListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("It is the base of the lists of leftovers")
    /// Whether the sheet is shown.
    Q_PROPERTY(bool open READ isOpen NOTIFY openChanged)
    Q_PROPERTY(QString heading READ heading NOTIFY changed)
    /// Whether the search for leftovers is still running.
    Q_PROPERTY(bool loading READ isLoading NOTIFY changed)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY selectionChanged)
    Q_PROPERTY(QString chosenText READ chosenText NOTIFY selectionChanged)
    /// Size of what would go to the review.
    Q_PROPERTY(QString total READ total NOTIFY selectionChanged)
    /// Whether there is something for the review, and all that it shows is known.
    Q_PROPERTY(bool ready READ isReady NOTIFY selectionChanged)

public:
    enum class Role {
        name = Qt::UserRole, ///< what is listed
        folder,              ///< where it is; may be empty
        size,                ///< bytes as text
        note,                ///< a few words on why to look twice; often empty
        explanation,         ///< a sentence about it; often empty
        checked,             ///< whether it goes to the review
    };
    Q_ENUM(Role)

    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    [[nodiscard]] virtual QString heading() const = 0;
    [[nodiscard]] virtual bool isLoading() const = 0;
    [[nodiscard]] Qt::CheckState checkState() const;
    [[nodiscard]] QString chosenText() const;
    [[nodiscard]] virtual QString total() const = 0;
    [[nodiscard]] virtual bool isReady() const = 0;

    Q_INVOKABLE virtual void close();
    Q_INVOKABLE void toggle(int row);
    /// Checks all rows, or unchecks all if all are checked.
    Q_INVOKABLE void toggleAll();
    /// Shows the row's file or folder in the file manager.
    Q_INVOKABLE void reveal(int row) const;
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;
    void tickIn(const std::string& folder) override;
    /// Closes the sheet and opens the review. Only when `ready`.
    Q_INVOKABLE void review();

Q_SIGNALS:
    void openChanged();
    void changed();
    void selectionChanged();

protected:
    explicit LeftoverListModel(AppModel& app);

    struct Row {
        FileEntry entry;
        bool isChecked = false;

        friend bool operator==(const Row&, const Row&) = default;
    };

    [[nodiscard]] AppModel& app() const { return m_app; }
    [[nodiscard]] const std::vector<Row>& rows() const { return m_rows; }
    /// All but what is excluded.
    void showRows(std::vector<Row> rows);
    void setOpen(bool isOpen);
    [[nodiscard]] std::vector<FileEntry> chosen() const;
    /// What the review shows.
    [[nodiscard]] virtual CleanPlan plan() const = 0;
    /// Called when the sheet is back after a review.
    virtual void resumed() {}

    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] std::vector<Row> offered() const;
    void followExclusions();
    void followSheet();
    void resume();

    AppModel& m_app;
    std::vector<Row> m_rows;
    std::vector<Row> m_all; ///< also what is excluded; ticks as of the last change of what is
    bool m_isOpen = false;
    std::optional<Uuid> m_reviewed; ///< plan of a review opened from here and still open
};

} // namespace orlen
