#include "window/preview/PreviewModel.h"

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/FileSymbol.h"
#include "window/preview/MediaTexts.h"
#include "window/preview/Thumbnails.h"
#include "window/shell/Reveal.h"

#include <utility>

namespace orlen {

void PreviewModel::setPath(const QString& code)
{
    if (path() == code)
        return;
    m_path = PathCode::path(code);
    m_load.drop();
    Q_EMIT pathChanged();
    show({}, Loading);
    if (m_path.empty())
        return;
    m_workers.start(
        m_load, [path = m_path](const std::stop_token& stop) { return FilePreview::of(path, stop); },
        [this](FilePreview preview) {
            const Kind kind = static_cast<Kind>(preview.kind);
            show(std::move(preview), kind);
        });
}

void PreviewModel::show(FilePreview preview, Kind kind)
{
    beginResetModel();
    m_preview = std::move(preview);
    m_kind = kind;
    endResetModel();
    Q_EMIT changed();
}

QString PreviewModel::symbol() const
{
    return m_kind == Folder ? FileSymbol::ofFolder() : FileSymbol::ofName(m_path);
}

QString PreviewModel::picture() const
{
    if (m_kind == Page)
        return Thumbnails::sourceOfPage(m_path);
    return m_kind == Picture ? Thumbnails::source(m_path) + QStringLiteral("/inside") : QString();
}

QString PreviewModel::thumbnail() const
{
    return m_preview.thumbnail.isEmpty() ? QString() : Thumbnails::sourceOfKept(m_path);
}

QString PreviewModel::tags() const
{
    return MediaTexts::tags(m_preview.media);
}

QString PreviewModel::streams() const
{
    return MediaTexts::streams(m_preview.media);
}

QString PreviewModel::facts() const
{
    QStringList facts;
    if (!m_preview.type.isEmpty())
        facts << m_preview.type;
    if (m_kind == Picture)
        facts << DisplayText::pixels(m_preview.pixels.width(), m_preview.pixels.height());
    if (m_preview.media.width > 0 && m_preview.media.height > 0)
        facts << DisplayText::pixels(m_preview.media.width, m_preview.media.height);
    if (m_preview.media.length.count() > 0)
        facts << DisplayText::duration(m_preview.media.length);
    if (m_preview.media.kilobits > 0)
        facts << DisplayText::counted(m_preview.media.kilobits, WindowTexts::kKilobits);
    if (m_kind == Page)
        facts << DisplayText::counted(m_preview.pages, WindowTexts::kPages);
    if (m_kind == Folder || (m_kind == Archive && !m_preview.isCut))
        facts << DisplayText::counted(m_preview.nameCount, WindowTexts::kItems);
    if (m_preview.bytes)
        facts << DisplayText::size(*m_preview.bytes);
    return DisplayText::facts(facts);
}

QString PreviewModel::dates() const
{
    QStringList dates;
    if (m_preview.modified)
        dates << DisplayText::modified(*m_preview.modified);
    if (m_preview.opened)
        dates << DisplayText::opened(*m_preview.opened);
    return DisplayText::facts(dates);
}

QVariant PreviewModel::value(std::size_t number, int role) const
{
    const FilePreview::Name& row = m_preview.names[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::path(row.name);
    case Role::size:
        return row.bytes < 0 ? QString() : DisplayText::size(row.bytes);
    case Role::symbol:
        return row.isFolder ? FileSymbol::ofFolder() : FileSymbol::ofName(row.name);
    }
    return {};
}

void PreviewModel::reveal() const
{
    if (!m_path.empty())
        Reveal::show(m_path);
}

void PreviewModel::openWith() const
{
    if (!m_path.empty())
        Reveal::open(m_path);
}

} // namespace orlen
