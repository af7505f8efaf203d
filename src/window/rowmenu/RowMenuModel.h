#pragma once

#include "clean/Exclusion.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// The menu of a row of any list: what can be done with the file or folder it stands for. Main thread.
class RowMenuModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Last path component of the row's item.
    Q_PROPERTY(QString name READ name NOTIFY subjectChanged)
    /// Its `PathCode`, for a preview.
    Q_PROPERTY(QString path READ path NOTIFY subjectChanged)
    /// Why it is not offered to be moved; empty if it is.
    Q_PROPERTY(QString refusal READ refusal NOTIFY subjectChanged)

public:
    enum Action {
        Preview,
        Reveal,
        CopyPath,
        TickFolder,    ///< ticks all rows of the item's folder
        KeepFolder,    ///< of each set, keeps the file in one of the folders around the item
        AlwaysKeep,    ///< of no set, offers a file in the item's folder
        MoveToTrash,   ///< opens the review of what moves; if the item may not move, says why
        ExcludePath,   ///< never offers the item
        ExcludeFolder, ///< never offers anything in the item's folder
        ExcludeName,   ///< never offers anything of the item's name
    };
    Q_ENUM(Action)

    enum class Role {
        choice = Qt::UserRole, ///< an `Action`
        folder,                ///< name of the folder that it is about; empty for none
        place,                 ///< `PathCode` of that folder
        startsGroup,           ///< whether a line separates it from the action before
    };
    Q_ENUM(Role)

    explicit RowMenuModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString name() const;
    [[nodiscard]] QString path() const;
    [[nodiscard]] QString refusal() const;

    /// Lists what can be done with a list's row. False if that is nothing.
    [[nodiscard]] Q_INVOKABLE bool setSubject(orlen::RowsModel* list, int row);
    /// Does it, except for `Preview`, which the screen does. `place` says of which folder, if there are
    /// several.
    Q_INVOKABLE void choose(orlen::RowMenuModel::Action action, const QString& place = {});

Q_SIGNALS:
    void subjectChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_choices.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Choice {
        Action action = Preview;
        std::string folder; ///< that `KeepFolder` and `AlwaysKeep` are about

        friend bool operator==(const Choice&, const Choice&) = default;
    };

    [[nodiscard]] std::vector<Choice> choices() const;
    void addFolders(std::vector<Choice>& choices) const;
    /// The line that the action adds to the exclusions; nothing if it adds none.
    [[nodiscard]] std::optional<Exclusion> exclusionOf(Action action) const;
    [[nodiscard]] bool isExcluded() const;
    void review();

    AppModel& m_app;
    QPointer<RowsModel> m_list;
    std::optional<RowSubject> m_subject;
    std::vector<Choice> m_choices;
};

} // namespace orlen
