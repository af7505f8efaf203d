#include "window/shell/ApplicationInterface.h"

#include <utility>

namespace orlen {

ApplicationInterface::ApplicationInterface(Activated activated, QObject* parent)
    : QDBusAbstractAdaptor(parent), m_activated(std::move(activated))
{
}

void ApplicationInterface::Activate(const QVariantMap& platformData)
{
    m_activated(LaunchToken::fromPlatformData(platformData));
}

void ApplicationInterface::Open(const QStringList& /*uris*/, const QVariantMap& platformData)
{
    Activate(platformData);
}

void ApplicationInterface::ActivateAction(const QString& /*name*/, const QVariantList& /*parameter*/,
                                          const QVariantMap& platformData)
{
    Activate(platformData);
}

} // namespace orlen
