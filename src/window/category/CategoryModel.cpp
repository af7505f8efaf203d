#include "window/category/CategoryModel.h"

#include "platform/values/CheckedSum.h"
#include "scan/SystemFolders.h"
#include "tools/advice/Advice.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"
#include "window/shell/Reveal.h"

#include <chrono>
#include <iterator>
#include <utility>

namespace orlen {

namespace {

struct CategoryTexts {
    const char* symbol;
    Text explanation;
};

CategoryTexts textsOf(OrlenCategory category)
{
    switch (category) {
    case OrlenCategory::apps:
        return {"app.fill", WindowTexts::kApps};
    case OrlenCategory::photos:
        return {"photo.stack.fill", WindowTexts::kPictures};
    case OrlenCategory::media:
        return {"doc.movie", WindowTexts::kMedia};
    case OrlenCategory::documents:
        return {"doc.text.fill", WindowTexts::kDocuments};
    case OrlenCategory::developer:
        return {"hammer.fill", WindowTexts::kDeveloper};
    case OrlenCategory::system:
        return {"gear", WindowTexts::kSystem};
    case OrlenCategory::caches:
        return {"archivebox.fill", WindowTexts::kCaches};
    }
    return {};
}

} // namespace

CategoryModel::CategoryModel(AppModel& app) : m_app(app), m_workers(*this)
{
    connect(m_app.storage(), &Storage::breakdownChanged, this, &CategoryModel::update);
}

void CategoryModel::show(int category)
{
    if (category < 0 || category >= static_cast<int>(kAllCategories.size()))
        return;
    m_category = kAllCategories[static_cast<std::size_t>(category)];
    look();
    if (!std::exchange(m_isOpen, true))
        Q_EMIT openChanged();
    update();
}

void CategoryModel::close()
{
    m_measuring.drop();
    m_collecting.drop();
    m_isMeasuring = false;
    m_isCollecting = false;
    if (std::exchange(m_isOpen, false))
        Q_EMIT openChanged();
}

/// Starts to find out what the breakdown does not say.
void CategoryModel::look()
{
    m_isCollecting = true;
    m_workers.start(
        m_collecting,
        [](const std::stop_token& stop) { return Advice::collect(std::chrono::system_clock::now(), stop); },
        [this](std::vector<AdviceItem> found) {
            m_found = std::move(found);
            m_isCollecting = false;
            update();
        });
    m_measuring.drop();
    m_isMeasuring = m_category == OrlenCategory::system;
    if (!m_isMeasuring)
        return;
    m_workers.start(
        m_measuring, [](const std::stop_token& stop) { return SystemFolders::measure(stop); },
        [this](std::vector<CategoryFolder> measured) {
            m_systemFolders = std::move(measured);
            m_isMeasuring = false;
            update();
        });
}

void CategoryModel::update()
{
    if (!m_isOpen)
        return;
    const StorageBreakdown& breakdown = m_app.storage()->breakdown();
    std::vector<CategoryFolder> folders;
    std::int64_t unseen = 0;
    if (m_category == OrlenCategory::system) {
        folders = m_systemFolders.value_or(std::vector<CategoryFolder>());
        unseen = m_systemFolders ? bytes() : 0;
        for (const CategoryFolder& folder : folders)
            unseen = checkedSubtract(unseen, folder.bytes);
    } else {
        std::ranges::copy_if(breakdown.folders, std::back_inserter(folders),
                             [&](const CategoryFolder& folder) { return folder.category == m_category; });
    }
    m_folders.setFolders(std::move(folders), bytes(), unseen);
    m_advice.setAdvice(Advice::forCategory(m_found, m_category, breakdown.folders));
    Q_EMIT changed();
}

void CategoryModel::openFolder(int row)
{
    if (!m_folders.isInHome(row)) {
        reveal(row);
        return;
    }
    const std::string path = m_folders.path(row);
    close();
    Q_EMIT folderChosen(PathCode::of(path));
}

void CategoryModel::reveal(int row) const
{
    if (const std::string path = m_folders.path(row); !path.empty())
        Reveal::show(path);
}

std::int64_t CategoryModel::bytes() const
{
    const auto& sizes = m_app.storage()->breakdown().cats;
    const auto found = sizes.find(m_category);
    return found == sizes.end() ? 0 : found->second;
}

QString CategoryModel::title() const
{
    return DisplayText::text(label(m_category));
}

QString CategoryModel::symbol() const
{
    return QString::fromLatin1(textsOf(m_category).symbol);
}

QColor CategoryModel::colour() const
{
    return DisplayText::colour(m_category);
}

QString CategoryModel::summary() const
{
    const std::int64_t total = m_app.storage()->breakdown().total;
    if (total <= 0)
        return DisplayText::size(bytes());
    const double share = static_cast<double>(bytes()) / static_cast<double>(total);
    return DisplayText::text(Message(WindowTexts::kShareOfDisk,
                                     {{"size", Bytes{bytes()}}, {"share", DisplayText::percentOf(share)}}));
}

QString CategoryModel::explanation() const
{
    return DisplayText::text(textsOf(m_category).explanation);
}

} // namespace orlen
