#pragma once

#include "app/Workers.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"
#include "window/lists/RowsModel.h"
#include "window/preview/FilePreview.h"

#include <QtQml/qqmlregistration.h>

#include <string>

namespace orlen {

/// The preview of one file: a picture, the beginning of a text, the names in a folder or an archive as rows,
/// or just facts. Loaded on a worker; the latest path wins. Main thread.
class PreviewModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// A `PathCode`; nothing is shown while empty.
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged)
    Q_PROPERTY(Kind kind READ kind NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString folder READ folder NOTIFY changed)
    /// Icon of the file.
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    /// Source of the whole picture or page; empty for anything else.
    Q_PROPERTY(QString picture READ picture NOTIFY changed)
    /// Of the whole picture, or of a page in points; empty for anything else.
    Q_PROPERTY(QSizeF pixels READ pixels NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// Source of the thumbnail that a file manager has made of a file that cannot be shown; may be empty.
    Q_PROPERTY(QString thumbnail READ thumbnail NOTIFY changed)
    /// Its size in pixels.
    Q_PROPERTY(QSizeF thumbnailSize READ thumbnailSize NOTIFY changed)
    /// Title, artist and album of a sound file, one below the other.
    Q_PROPERTY(QString tags READ tags NOTIFY changed)
    /// What a film and its sound tracks are made of, one below the other:
    /// "Matroska · H.264 · 25 fps", "AAC · 48 kHz · stereo · German"
    Q_PROPERTY(QString streams READ streams NOTIFY changed)
    /// "PNG image · 4,032 × 3,024 · 2.1 MB"
    Q_PROPERTY(QString facts READ facts NOTIFY changed)
    /// "Modified … · Opened …"
    Q_PROPERTY(QString dates READ dates NOTIFY changed)
    /// Whether the text or the names are incomplete.
    Q_PROPERTY(bool cut READ isCut NOTIFY changed)
    /// Whether that is because an archive is damaged.
    Q_PROPERTY(bool damaged READ isDamaged NOTIFY changed)

public:
    enum Kind {
        Picture = static_cast<int>(FilePreview::Kind::picture),
        Page = static_cast<int>(FilePreview::Kind::page),
        Text = static_cast<int>(FilePreview::Kind::text),
        Folder = static_cast<int>(FilePreview::Kind::folder),
        Archive = static_cast<int>(FilePreview::Kind::archive),
        Media = static_cast<int>(FilePreview::Kind::media),
        Damaged = static_cast<int>(FilePreview::Kind::damaged),
        Other = static_cast<int>(FilePreview::Kind::other),
        Locked = static_cast<int>(FilePreview::Kind::locked),
        Missing = static_cast<int>(FilePreview::Kind::missing),
        Loading,
    };
    Q_ENUM(Kind)

    /// Of the names in a folder or an archive.
    enum class Role {
        name = Qt::UserRole, ///< readable
        size,                ///< text; empty for a folder
        symbol,              ///< icon
    };
    Q_ENUM(Role)

    PreviewModel() : m_workers(*this) {}

    [[nodiscard]] QString path() const { return PathCode::of(m_path); }
    void setPath(const QString& code);
    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] QString name() const { return DisplayText::nameOf(m_path); }
    [[nodiscard]] QString folder() const { return DisplayText::folderOf(m_path); }
    [[nodiscard]] QString symbol() const;
    [[nodiscard]] QString picture() const;
    [[nodiscard]] QSizeF pixels() const { return QSizeF(m_preview.pixels); }
    [[nodiscard]] QString text() const { return m_preview.text; }
    [[nodiscard]] QString thumbnail() const;
    [[nodiscard]] QSizeF thumbnailSize() const { return QSizeF(m_preview.thumbnail); }
    [[nodiscard]] QString tags() const;
    [[nodiscard]] QString streams() const;
    [[nodiscard]] QString facts() const;
    [[nodiscard]] QString dates() const;
    [[nodiscard]] bool isCut() const { return m_preview.isCut; }
    [[nodiscard]] bool isDamaged() const { return m_preview.isDamaged; }

    /// Shows the file in the file manager.
    Q_INVOKABLE void reveal() const;
    /// Opens the file with its default program.
    Q_INVOKABLE void openWith() const;

Q_SIGNALS:
    void pathChanged();
    void changed();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_preview.names.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    void show(FilePreview preview, Kind kind);

    std::string m_path;
    Kind m_kind = Loading;
    FilePreview m_preview;
    Latest m_load;

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
