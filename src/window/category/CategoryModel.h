#pragma once

#include "app/Workers.h"
#include "model/OrlenCategory.h"
#include "scan/CategoryFolder.h"
#include "tools/advice/AdviceItem.h"
#include "window/category/AdviceModel.h"
#include "window/category/CategoryFolderModel.h"
#include "window/shell/AppModelElement.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace orlen {

/// A storage category in detail: the folders it consists of, and advice on what Orlen does not touch in it.
/// Main thread.
class CategoryModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool open READ isOpen NOTIFY openChanged)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QColor colour READ colour NOTIFY changed)
    /// "120 GB · 24 % of the disk"
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    /// What counts for the category, in a sentence.
    Q_PROPERTY(QString explanation READ explanation NOTIFY changed)
    /// Whether folders are still being measured, and whether advice is still being collected.
    Q_PROPERTY(bool measuring READ isMeasuring NOTIFY changed)
    Q_PROPERTY(bool collecting READ isCollecting NOTIFY changed)
    Q_PROPERTY(orlen::CategoryFolderModel* folders READ folders CONSTANT)
    Q_PROPERTY(orlen::AdviceModel* advice READ advice CONSTANT)

public:
    explicit CategoryModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString symbol() const;
    [[nodiscard]] QColor colour() const;
    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString explanation() const;
    [[nodiscard]] bool isMeasuring() const { return m_isMeasuring; }
    [[nodiscard]] bool isCollecting() const { return m_isCollecting; }
    [[nodiscard]] CategoryFolderModel* folders() { return &m_folders; }
    [[nodiscard]] AdviceModel* advice() { return &m_advice; }

    /// Opens a category by its place in the order of categories; ignored if there is none.
    Q_INVOKABLE void show(int category);
    Q_INVOKABLE void close();
    /// Shows a row's folder: in the disk map if it is in the home folder, else in the file manager.
    Q_INVOKABLE void openFolder(int row);
    /// Shows a row's folder or file in the file manager.
    Q_INVOKABLE void reveal(int row) const;

Q_SIGNALS:
    void openChanged();
    void changed();
    /// The disk map should show this folder: a `PathCode`.
    void folderChosen(const QString& code);

private:
    [[nodiscard]] std::int64_t bytes() const;
    void look();
    void update();

    AppModel& m_app;
    OrlenCategory m_category = OrlenCategory::system;
    bool m_isOpen = false;
    bool m_isMeasuring = false;
    bool m_isCollecting = false;
    CategoryFolderModel m_folders;
    AdviceModel m_advice;
    /// What was found at the last look, shown until the next one is over.
    std::optional<std::vector<CategoryFolder>> m_systemFolders;
    std::vector<AdviceItem> m_found;

    Latest m_measuring;
    Latest m_collecting;
    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
