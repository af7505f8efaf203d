#pragma once

#include "window/findings/EntryOrder.h"
#include "window/findings/EntryRows.h"
#include "window/findings/FindingHeader.h"
#include "window/findings/FolderLookup.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// The entries of one finding as rows, sorted, filtered and checked as the user wants, with the finding's
/// texts and the totals of its selection. Copies and similar photos stand set by set. The order is
/// remembered. Follows the results: moved entries leave the list, and when the finding is gone its texts stay
/// above an empty list. Main thread.
class EntryListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Id of the finding shown; empty for none.
    Q_PROPERTY(QString findingId READ findingId WRITE setFindingId NOTIFY findingChanged)
    /// Kept when the finding leaves the results.
    Q_PROPERTY(orlen::FindingHeader header READ header NOTIFY findingChanged)
    /// Whether any entry has a note.
    Q_PROPERTY(bool hasNotes READ hasNotes NOTIFY figuresChanged)
    /// Whether the entries stand set by set, each with the file that it keeps.
    Q_PROPERTY(bool inSets READ isInSets NOTIFY figuresChanged)
    Q_PROPERTY(Key key READ key NOTIFY orderChanged)
    Q_PROPERTY(bool reversed READ isReversed NOTIFY orderChanged)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY orderChanged)
    /// Number of entries, ignoring the filter.
    Q_PROPERTY(int entryCount READ entryCount NOTIFY figuresChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY figuresChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY figuresChanged)
    Q_PROPERTY(QString selectedSizeText READ selectedSizeText NOTIFY figuresChanged)
    /// Whether all, some or none of the filtered rows are selected.
    Q_PROPERTY(Qt::CheckState shownState READ shownState NOTIFY figuresChanged)

public:
    enum Key {
        BySize = static_cast<int>(EntryOrder::Key::size),
        ByName = static_cast<int>(EntryOrder::Key::name),
        ByDate = static_cast<int>(EntryOrder::Key::date),
    };
    Q_ENUM(Key)

    enum class Role {
        name = Qt::UserRole, ///< last path component
        folder,              ///< that contains it
        size,                ///< text
        date,                ///< "Opened …" or "Modified …"; may be empty
        note,                ///< may be empty
        rating,              ///< a `RatingValue`
        symbol,              ///< icon of the file
        thumbnail,           ///< image source; empty unless it is a picture
        marked,              ///< whether it is selected
        kept,                ///< path of the file that its set keeps; empty without one
    };
    Q_ENUM(Role)

    explicit EntryListModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString findingId() const { return m_findingId; }
    void setFindingId(const QString& id);
    [[nodiscard]] const FindingHeader& header() const { return m_header; }
    [[nodiscard]] bool hasNotes() const { return m_figures.hasNotes; }
    [[nodiscard]] bool isInSets() const { return m_figures.isInSets; }
    [[nodiscard]] Key key() const { return static_cast<Key>(m_wish.key); }
    [[nodiscard]] bool isReversed() const { return m_wish.direction == EntryOrder::Direction::reversed; }
    [[nodiscard]] QString filter() const { return m_wish.filter; }
    void setFilter(const QString& filter);
    [[nodiscard]] int entryCount() const { return static_cast<int>(m_rows.entries().size()); }
    [[nodiscard]] int selectedCount() const { return m_figures.selected; }
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] QString selectedSizeText() const { return DisplayText::size(m_figures.bytes); }
    [[nodiscard]] Qt::CheckState shownState() const
    {
        return checkStateOf(m_figures.shown, m_rows.rows().size());
    }

    /// Sorts by the key, or reverses the order if already sorted by it.
    Q_INVOKABLE void sortBy(orlen::EntryListModel::Key key);
    /// Selects or deselects the row's entry. All functions that take a row ignore one that does not exist.
    Q_INVOKABLE void toggle(int row);
    /// Selects all filtered rows, or deselects them if all are selected. Like the next, leaves unselected
    /// what is rated Keep or only ticked alone, and says so in a notice.
    Q_INVOKABLE void toggleShown();
    Q_INVOKABLE void selectShown();
    Q_INVOKABLE void deselectShown();
    /// The entry's `PathCode`, for a preview.
    [[nodiscard]] Q_INVOKABLE QString pathAt(int row) const;
    [[nodiscard]] Q_INVOKABLE QString sizeAt(int row) const;
    Q_INVOKABLE void reveal(int row) const;
    [[nodiscard]] std::optional<RowSubject> subject(int row) const override;
    /// Of the filtered rows.
    void tickIn(const std::string& folder) override;
    /// Opens the review of the whole selection, including other findings.
    Q_INVOKABLE void review();

Q_SIGNALS:
    void findingChanged();
    void orderChanged();
    void figuresChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.rows().size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    [[nodiscard]] const Finding* shownFinding() const;
    [[nodiscard]] FindingHeader headerOf(const Finding* finding) const;
    void load();
    void followFindings();
    void followSelection();
    void readSelection();
    void grow(const std::vector<FileEntry>& entries, const std::vector<bool>& wasThere);
    void arrange();
    void takeOutRows(const std::vector<bool>& isKept);
    void setShown(bool isSelected);
    void tickAlong(std::vector<int> rows);
    void setSelected(const std::vector<int>& rows, bool isSelected);
    void count();

    AppModel& m_app;
    QString m_findingId;
    FindingHeader m_header;
    EntryOrder::Wish m_wish;
    EntryRows m_rows;
    EntryRows::Figures m_figures;
    bool m_isSelecting = false; ///< while this model changes the selection itself
    FolderLookup* m_folders;
};

} // namespace orlen
