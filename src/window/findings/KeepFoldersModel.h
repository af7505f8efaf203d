#pragma once

#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace orlen {

/// The folders whose files no set offers, and others that could be of them: those that hold most files of the
/// sets of a finding. Main thread.
class KeepFoldersModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString findingId MEMBER m_findingId NOTIFY findingIdChanged)
    /// How many are chosen.
    Q_PROPERTY(int chosenCount READ chosenCount NOTIFY chosenChanged)

public:
    enum class Role {
        place = Qt::UserRole, ///< its path, shortened
        chosen,               ///< whether no set offers a file in it
        startsGroup,          ///< whether it is the first that is not chosen, behind one that is
    };
    Q_ENUM(Role)

    explicit KeepFoldersModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] int chosenCount() const;
    /// Looks which folders there are. Takes longer the more files there are in sets.
    Q_INVOKABLE void refresh();
    /// Chooses the row's folder, or no longer. Ignores a row that does not exist.
    Q_INVOKABLE void toggle(int row);

Q_SIGNALS:
    void findingIdChanged();
    void chosenChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_folders.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;
    [[nodiscard]] std::vector<std::string> others() const;

    AppModel& m_app;
    QString m_findingId;
    std::vector<std::string> m_folders;
};

} // namespace orlen
