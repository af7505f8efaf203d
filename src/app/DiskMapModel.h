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

/// The disk map: the folder shown, the path down to it, and how the map reacts to the pointer.
///
/// Lives on the main thread and needs its event loop. Measuring runs on a worker. A new load stops the
/// previous one and drops its result. Destroying the model stops a load in progress.
class DiskMapModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)

public:
    /// Empty until the first load.
    explicit DiskMapModel(std::string start = Places::current().home, QObject* parent = nullptr);
    ~DiskMapModel() override;

    /// The folders from the start folder down to the one shown; never empty.
    [[nodiscard]] const std::vector<std::string>& stack() const { return m_stack; }
    [[nodiscard]] const std::string& current() const { return m_stack.back(); }
    /// Where the map may start, see MapPlaces; empty until the first load.
    [[nodiscard]] const std::vector<std::string>& places() const { return m_places; }
    /// Children of the folder shown, largest first; empty while loading.
    [[nodiscard]] const std::vector<TreeNode>& nodes() const { return m_nodes; }
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    /// Whether the folder shown could be read when it was last loaded.
    [[nodiscard]] bool isReadable() const { return m_isReadable; }
    /// Index of the node under the pointer.
    [[nodiscard]] std::optional<std::size_t> hover() const { return m_hover; }
    /// The node under the pointer; null when there is none.
    [[nodiscard]] const TreeNode* hoveredNode() const;

    /// Measures the current folder again.
    void load();
    /// Goes to the parent folder; ignored in the start folder.
    void up();
    /// Goes to a folder of the stack. An index out of range stops the program.
    void goTo(std::size_t index);
    /// Goes to a folder at or below the start folder, or else the home folder, as if one had zoomed into each
    /// on the way; ignored for any other.
    void show(const std::string& folder);
    /// Starts in another folder.
    void startAt(const std::string& folder);
    /// Goes into a node's folder; ignored for a file and for the grouped node.
    void zoomInto(std::size_t node);

    /// Zooms into the node under the point.
    void click(Treemap::Point point, Treemap::Size view);
    void movePointer(Treemap::Point point, Treemap::Size view);
    /// The pointer has left the map.
    void removePointer();
    /// One step of a pinch. Pinching out far enough goes up; pinching in far enough zooms into the node under
    /// the pointer.
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

    /// The result of a load.
    struct Contents {
        std::vector<TreeNode> nodes;
        bool isReadable = true;
        std::vector<std::string> places;
    };

    [[nodiscard]] static Contents measure(const std::string& folder, const std::stop_token& stop);
    void setStack(std::vector<std::string> stack);
    void setNodes(std::vector<TreeNode> nodes);
    void setLoading(bool isLoading);
    void setPointer(std::optional<Pointer> pointer);
    void updateHover();
    void checkThread() const;

    std::vector<std::string> m_stack;
    std::vector<std::string> m_places;
    std::vector<TreeNode> m_nodes;
    bool m_isLoading = false;
    bool m_isReadable = true;
    std::optional<Pointer> m_pointer;
    std::optional<std::size_t> m_hover;
    double m_magnification = 0; ///< since it last caused a move
    int m_generation = 0;       ///< of the latest load
    std::stop_source m_loadStop{std::nostopstate};

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
