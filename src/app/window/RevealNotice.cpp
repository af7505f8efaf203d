#include "RevealNotice.h"

#include "Reveal.h"

#include <QClipboard>
#include <QGuiApplication>

namespace orlen {

RevealNotice::RevealNotice(QObject* parent) : QObject(parent)
{
    if (const Reveal* reveal = Reveal::current())
        connect(reveal, &Reveal::failed, this, &RevealNotice::setPath);
}

void RevealNotice::copy() const
{
    QGuiApplication::clipboard()->setText(m_path);
}

void RevealNotice::setPath(const QString& path)
{
    m_path = path;
    Q_EMIT changed();
}

} // namespace orlen
