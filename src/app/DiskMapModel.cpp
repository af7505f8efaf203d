#include "app/DiskMapModel.h"

#include "platform/files/Folder.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "tools/DiskMap.h"
#include "tools/MapPlaces.h"

#include <QThread>

#include <utility>

namespace orlen {

namespace {

constexpr double kPinch = 0.35;

} // namespace

DiskMapModel::DiskMapModel(std::string start, QObject* parent)
    : QObject(parent), m_stack{std::move(start)}, m_workers(*this)
{
}

DiskMapModel::~DiskMapModel() = default;

const TreeNode* DiskMapModel::hoveredNode() const
{
    return m_hover ? &m_nodes[*m_hover] : nullptr;
}

void DiskMapModel::load()
{
    checkThread();
    m_loadStop.request_stop();
    const int generation = ++m_generation;
    setLoading(true);
    setNodes({});
    // A slot may already have started a newer load.
    if (generation != m_generation)
        return;
    m_loadStop =
        m_workers.start([folder = current()](const std::stop_token& stop) { return measure(folder, stop); },
                        [this, generation](Contents contents) {
                            if (generation != m_generation)
                                return;
                            m_isReadable = contents.isReadable;
                            m_places = std::move(contents.places);
                            setNodes(std::move(contents.nodes));
                            // As above: a load started by a slot is still running.
                            if (generation == m_generation)
                                setLoading(false);
                        });
}

DiskMapModel::Contents DiskMapModel::measure(const std::string& folder, const std::stop_token& stop)
{
    Contents contents{DiskMap::children(folder, stop)};
    contents.isReadable = !contents.nodes.empty() || isListable(folder);
    contents.places = MapPlaces::folders();
    return contents;
}

void DiskMapModel::up()
{
    if (m_stack.size() > 1)
        goTo(m_stack.size() - 2);
}

void DiskMapModel::goTo(std::size_t index)
{
    checkThread();
    if (index >= m_stack.size())
        fatalError("the disk map was asked for a folder beyond the one shown");
    std::vector<std::string> stack = m_stack;
    stack.resize(index + 1);
    setStack(std::move(stack));
}

void DiskMapModel::setStack(std::vector<std::string> stack)
{
    m_stack = std::move(stack);
    Q_EMIT stackChanged();
    load();
}

void DiskMapModel::startAt(const std::string& folder)
{
    checkThread();
    setStack({folder});
}

void DiskMapModel::show(const std::string& folder)
{
    checkThread();
    const std::string& home = Places::current().home;
    const std::string start = PathText::isAtOrBelow(folder, m_stack.front()) ? m_stack.front() : home;
    if (!PathText::isAtOrBelow(folder, start))
        return;
    std::vector<std::string> stack{start};
    for (const std::string_view name : PathText::components(std::string_view(folder).substr(start.size())))
        stack.push_back(PathText::join(stack.back(), name));
    setStack(std::move(stack));
}

void DiskMapModel::zoomInto(std::size_t node)
{
    checkThread();
    if (node >= m_nodes.size() || !m_nodes[node].isEnterable())
        return;
    std::vector<std::string> stack = m_stack;
    stack.push_back(m_nodes[node].path);
    setStack(std::move(stack));
}

void DiskMapModel::click(Treemap::Point point, Treemap::Size view)
{
    if (const auto node = Treemap::hit(m_nodes, point, view))
        zoomInto(*node);
}

void DiskMapModel::movePointer(Treemap::Point point, Treemap::Size view)
{
    setPointer(Pointer{point, view});
}

void DiskMapModel::removePointer()
{
    setPointer(std::nullopt);
}

void DiskMapModel::magnify(double magnification)
{
    checkThread();
    m_magnification += magnification;
    if (m_magnification > kPinch) {
        m_magnification = 0;
        if (m_hover)
            zoomInto(*m_hover);
    } else if (m_magnification < -kPinch) {
        m_magnification = 0;
        up();
    }
}

void DiskMapModel::setNodes(std::vector<TreeNode> nodes)
{
    if (nodes == m_nodes)
        return;
    m_nodes = std::move(nodes);
    updateHover();
    Q_EMIT nodesChanged();
}

void DiskMapModel::setLoading(bool isLoading)
{
    if (isLoading == m_isLoading)
        return;
    m_isLoading = isLoading;
    Q_EMIT loadingChanged();
}

void DiskMapModel::setPointer(std::optional<Pointer> pointer)
{
    checkThread();
    m_pointer = pointer;
    updateHover();
}

/// Also called when the nodes change under a resting pointer, as the old index is no longer valid.
void DiskMapModel::updateHover()
{
    const auto hover = m_pointer ? Treemap::hit(m_nodes, m_pointer->point, m_pointer->view) : std::nullopt;
    if (hover == m_hover)
        return;
    m_hover = hover;
    Q_EMIT hoverChanged();
}

void DiskMapModel::checkThread() const
{
    if (QThread::currentThread() != thread())
        fatalError("the disk map was used outside its thread");
}

} // namespace orlen
