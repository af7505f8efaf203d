#pragma once

#include "window/findings/EntryOrder.h"
#include "window/findings/FindingHeader.h"
#include "window/findings/FolderLookup.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// The entries of one finding as rows, sorted and narrowed as the user wants, checked as they are selected;
/// beside them the finding's texts and the figures of its selection. Follows the results: what was moved
/// leaves the list, and when the finding is gone its texts stay over an empty list. Main thread.
class EntryListModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Identity of the finding that is shown; empty for none.
    Q_PROPERTY(QString findingId READ findingId WRITE setFindingId NOTIFY findingChanged)
    /// Stays when the finding has gone from the results.
    Q_PROPERTY(orlen::FindingHeader header READ header NOTIFY findingChanged)
    /// Whether any entry has a note.
    Q_PROPERTY(bool hasNotes READ hasNotes NOTIFY figuresChanged)
    Q_PROPERTY(Key key READ key NOTIFY orderChanged)
    Q_PROPERTY(bool reversed READ isReversed NOTIFY orderChanged)
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY orderChanged)
    /// Entries of the finding, whatever the filter.
    Q_PROPERTY(int entryCount READ entryCount NOTIFY figuresChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY figuresChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY figuresChanged)
    Q_PROPERTY(QString selectedSizeText READ selectedSizeText NOTIFY figuresChanged)
    /// Of the rows that are shown: all, some or none are selected.
    Q_PROPERTY(Qt::CheckState shownState READ shownState NOTIFY figuresChanged)

public:
    enum Key {
        BySize = static_cast<int>(EntryOrder::Key::size),
        ByName = static_cast<int>(EntryOrder::Key::name),
        ByDate = static_cast<int>(EntryOrder::Key::date),
    };
    Q_ENUM(Key)

    enum class Role {
        name = Qt::UserRole, ///< last component
        folder,              ///< where it lies
        size,                ///< text
        date,                ///< "Opened …" or "Modified …"; may be empty
        note,                ///< may be empty
        rating,              ///< a `RatingValue`
        symbol,              ///< icon of the file
        thumbnail,           ///< source of a picture of it; empty for what is no picture
        marked,              ///< whether it is selected
    };
    Q_ENUM(Role)

    explicit EntryListModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString findingId() const { return m_findingId; }
    void setFindingId(const QString& id);
    [[nodiscard]] const FindingHeader& header() const { return m_header; }
    [[nodiscard]] bool hasNotes() const { return m_hasNotes; }
    [[nodiscard]] Key key() const { return static_cast<Key>(m_wish.key); }
    [[nodiscard]] bool isReversed() const { return m_wish.direction == EntryOrder::Direction::reversed; }
    [[nodiscard]] QString filter() const { return m_wish.filter; }
    void setFilter(const QString& filter);
    [[nodiscard]] int entryCount() const { return static_cast<int>(m_entries.size()); }
    [[nodiscard]] int selectedCount() const { return m_selectedCount; }
    [[nodiscard]] QString selectedText() const;
    [[nodiscard]] QString selectedSizeText() const;
    [[nodiscard]] Qt::CheckState shownState() const;

    /// Sorts by the key; in the other direction when it is sorted by it already.
    Q_INVOKABLE void sortBy(orlen::EntryListModel::Key key);
    /// Selects the row's entry, or takes it out. As the following ones, nothing for a row that is not there.
    Q_INVOKABLE void toggle(int row);
    /// Selects all rows that are shown, or none of them when all are selected.
    Q_INVOKABLE void toggleShown();
    Q_INVOKABLE void selectShown();
    Q_INVOKABLE void deselectShown();
    /// Its `PathCode`, for a preview.
    [[nodiscard]] Q_INVOKABLE QString pathAt(int row) const;
    [[nodiscard]] Q_INVOKABLE QString sizeAt(int row) const;
    Q_INVOKABLE void reveal(int row) const;
    /// Opens the review of everything that is selected, of other findings too.
    Q_INVOKABLE void review();

Q_SIGNALS:
    void findingChanged();
    void orderChanged();
    void figuresChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    [[nodiscard]] const Finding* shownFinding() const;
    [[nodiscard]] FindingHeader headerOf(const Finding* finding) const;
    void load();
    void followFindings();
    void followSelection();
    void readSelection();
    void arrange();
    void removeRows(const std::vector<bool>& isKept);
    void dropEntries(const std::vector<bool>& isKept);
    void setShown(bool isSelected);
    void setSelected(const std::vector<int>& rows, bool isSelected);
    void count();
    [[nodiscard]] std::size_t entryIndex(int row) const;
    [[nodiscard]] const FileEntry& entryAt(int row) const { return m_entries[entryIndex(row)]; }

    AppModel& m_app;
    QString m_findingId;
    FindingHeader m_header;
    Rating m_rating = Rating::review; ///< of entries without one of their own
    EntryOrder::Wish m_wish;
    std::vector<FileEntry> m_entries;       ///< in the finding's order
    std::vector<bool> m_isSelected;         ///< of each entry
    std::vector<EntryOrder::Words> m_words; ///< of each entry; made when first needed
    std::vector<int> m_rows;                ///< index of each row's entry
    int m_selectedCount = 0;
    int m_shownCount = 0; ///< selected rows
    std::int64_t m_selectedBytes = 0;
    bool m_hasNotes = false;
    bool m_isSelecting = false; ///< the selection is being changed by this model itself
    FolderLookup* m_folders;
};

} // namespace orlen
