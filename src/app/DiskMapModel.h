#pragma once

#include "app/Workers.h"
#include "platform/files/Places.h"
#include "tools/TreeNode.h"
#include "tools/Treemap.h"

#include <QObject>

#include <cstddef>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

/// The disk map: one folder shown at a time, the way down to it, and what the pointer does to the map.
///
/// Belongs to the main thread and needs its event loop. Measuring runs on a worker; the latest load wins, an
/// older one is stopped at once and its result dropped. Destroying the model stops what is in progress.
class DiskMapModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)

public:
    /// Shows nothing until the first load.
    explicit DiskMapModel(std::string start = Places::current().home, QObject* parent = nullptr);
    ~DiskMapModel() override;

    /// The folders from the start folder down to the one shown; never empty.
    [[nodiscard]] const std::vector<std::string>& stack() const { return m_stack; }
    [[nodiscard]] const std::string& current() const { return m_stack.back(); }
    /// Children of the folder shown, largest first; empty while loading.
    [[nodiscard]] const std::vector<TreeNode>& nodes() const { return m_nodes; }
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    /// Whether the folder shown could be read when it was last loaded.
    [[nodiscard]] bool isReadable() const { return m_isReadable; }
    /// Number of the node under the pointer.
    [[nodiscard]] std::optional<std::size_t> hover() const { return m_hover; }
    /// The node under the pointer, for its name and size and to reveal it; null when there is none.
    [[nodiscard]] const TreeNode* hoveredNode() const;

    /// Lists and measures the current folder anew.
    void load();
    /// To the folder above, unless the start folder is shown.
    void up();
    /// To a folder of the stack. An index beyond it stops the program.
    void goTo(std::size_t index);
    /// Into a node's folder; nothing happens for a file or for the grouped node.
    void zoomInto(std::size_t node);

    /// A click: zooms into what is under the point.
    void click(Treemap::Point point, Treemap::Size view);
    void movePointer(Treemap::Point point, Treemap::Size view);
    /// The pointer has left the map.
    void removePointer();
    /// A piece of a pinch. Far enough out it goes up, far enough in it zooms into what is under the pointer.
    void magnify(double magnification);

Q_SIGNALS:
    void stackChanged();
    void nodesChanged();
    void loadingChanged();
    void hoverChanged();

private:
    struct Pointer {
        Treemap::Point point;
        Treemap::Size view;
    };

    /// What a load brings.
    struct Contents {
        std::vector<TreeNode> nodes;
        bool isReadable = true;
    };

    [[nodiscard]] static Contents measure(const std::string& folder, const std::stop_token& stop);
    void setNodes(std::vector<TreeNode> nodes);
    void setLoading(bool isLoading);
    void setPointer(std::optional<Pointer> pointer);
    void updateHover();
    void checkThread() const;

    std::vector<std::string> m_stack;
    std::vector<TreeNode> m_nodes;
    bool m_isLoading = false;
    bool m_isReadable = true;
    std::optional<Pointer> m_pointer;
    std::optional<std::size_t> m_hover;
    double m_magnification = 0; ///< since the last time that it led to something
    int m_generation = 0;       ///< number of the latest load
    std::stop_source m_loadStop{std::nostopstate};

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
