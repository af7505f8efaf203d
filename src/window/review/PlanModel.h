#pragma once

#include "window/findings/FolderLookup.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowsModel.h"
#include "window/review/PlanChoice.h"
#include "window/review/PlanEntries.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace orlen {

/// The plan awaiting confirmation as rows: each section's heading, followed by its entries unless folded. All
/// entries are checked at first; one listed in several sections is checked in all or none of them. Keeps the
/// plan until the next one, so that a closing sheet still shows it. What is excluded meanwhile leaves the
/// list and comes back as checked as it was. Main thread.
class PlanModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title NOTIFY planChanged)
    /// Whether any entry has a note.
    Q_PROPERTY(bool hasNotes READ hasNotes NOTIFY planChanged)
    /// Number of entries, ignoring the filter.
    Q_PROPERTY(int entryCount READ entryCount NOTIFY planChanged)
    /// The order within each section; remembered.
    Q_PROPERTY(int key READ key NOTIFY orderChanged)
    Q_PROPERTY(bool reversed READ isReversed NOTIFY orderChanged)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY orderChanged)
    /// What would move, counting each path once and entries inside a checked folder not at all.
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY figuresChanged)
    Q_PROPERTY(QString checkedSizeText READ checkedSizeText NOTIFY figuresChanged)
    /// Whether something is checked and the program may move it.
    Q_PROPERTY(bool confirmable READ isConfirmable NOTIFY figuresChanged)

public:
    enum class Role {
        heading = Qt::UserRole, ///< whether the row is a section heading
        name,                   ///< of the section, or the entry's last path component
        folder,                 ///< that contains the entry; "12 of 15 selected" for a section
        size,                   ///< of the entry, or of what is checked in the section, as text
        date,                   ///< "Opened …" or "Modified …"; may be empty
        note,                   ///< may be empty
        rating,                 ///< a `RatingValue`
        symbol,                 ///< icon of the file or the section
        tone,                   ///< colour of the section's badge
        thumbnail,              ///< image source; empty unless it is a picture
        mark,                   ///< Qt::CheckState
        folded,                 ///< whether the section's entries are hidden
    };
    Q_ENUM(Role)

    explicit PlanModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString title() const;
    [[nodiscard]] bool hasNotes() const { return m_entries.hasNotes(); }
    [[nodiscard]] int entryCount() const { return m_entries.count(); }
    [[nodiscard]] int key() const { return static_cast<int>(m_wish.key); }
    [[nodiscard]] bool isReversed() const { return m_wish.direction == EntryOrder::Direction::reversed; }
    [[nodiscard]] QString filter() const { return m_wish.filter; }
    void setFilter(const QString& filter);
    [[nodiscard]] int checkedCount() const { return static_cast<int>(m_choice.ticks().amount().items); }
    [[nodiscard]] QString checkedSizeText() const
    {
        return DisplayText::size(m_choice.ticks().amount().bytes);
    }
    [[nodiscard]] bool isConfirmable() const { return checkedCount() > 0 && m_app.isWriter(); }

    /// Sorts by a key of `EntryOrder`, or reverses the order if already sorted by it.
    Q_INVOKABLE void sortBy(int key);
    /// Checks or unchecks the row's entry, or all shown entries of a section. Includes the entries inside it
    /// and, when unchecking, the folders that contain it. All functions that take a row ignore one that does
    /// not exist.
    Q_INVOKABLE void toggle(int row);
    Q_INVOKABLE void checkAll() { setAllChecked(true); }
    Q_INVOKABLE void uncheckAll() { setAllChecked(false); }
    /// Hides or shows the entries of a section's row.
    Q_INVOKABLE void fold(int row);
    Q_INVOKABLE void setFolded(int row, bool isFolded);
    /// The heading row of the section that the row is in.
    [[nodiscard]] Q_INVOKABLE int headingOf(int row) const;
    /// The entry's `PathCode`, for a preview; empty for a section.
    [[nodiscard]] Q_INVOKABLE QString pathAt(int row) const;
    [[nodiscard]] Q_INVOKABLE QString sizeAt(int row) const;
    Q_INVOKABLE void reveal(int row) const;
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;
    void tickIn(const std::string& folder) override;
    /// Moves the checked entries to the Trash. Only when `confirmable`.
    Q_INVOKABLE void confirm();

Q_SIGNALS:
    void planChanged();
    void figuresChanged();
    void orderChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        int section = 0;
        int entry = 0; ///< -1: the section's heading

        friend bool operator==(const Row&, const Row&) = default;
    };

    void follow();
    void followExclusions();
    /// The section's entries that are shown unless it is folded.
    [[nodiscard]] std::vector<Row> entriesOf(int number) const;
    [[nodiscard]] std::vector<Row> wantedRows() const;
    void arrange();
    void rearrange();
    void show(const CleanPlan& plan);
    void setAllChecked(bool isChecked);
    void followTicks();
    [[nodiscard]] const Row& at(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    [[nodiscard]] const PlanSection& section(int number) const;
    [[nodiscard]] const FileEntry* entryAt(int row) const;
    [[nodiscard]] Qt::CheckState checkState(const Row& row) const;
    [[nodiscard]] QVariant entryData(const Row& row, Role role) const;

    AppModel& m_app;
    PlanChoice m_choice;
    int m_keptApart = 0;          ///< as it was said
    std::vector<bool> m_isFolded; ///< of each section
    std::vector<Row> m_rows;
    EntryOrder::Wish m_wish;
    PlanEntries m_entries;
    FolderLookup* m_folders;
};

} // namespace orlen
