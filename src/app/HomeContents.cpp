#include "app/HomeContents.h"

#include "scan/HomeWalk.h"

#include <stop_token>
#include <utility>

namespace orlen {

HomeContents::HomeContents(QObject* parent) : ModelPart(parent), m_workers(*this) {}

void HomeContents::load()
{
    checkThread();
    m_isWanted = true;
    m_workers.start(
        m_work, [](const std::stop_token& stop) { return HomeWalk::walk(stop); },
        [this](std::shared_ptr<const HomeFiles> files) {
            m_files = std::move(files);
            Q_EMIT loaded();
        });
}

void HomeContents::refresh()
{
    if (m_isWanted)
        load();
}

} // namespace orlen
