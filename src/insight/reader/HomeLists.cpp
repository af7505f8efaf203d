#include "insight/reader/HomeLists.h"

#include "insight/reader/LowerName.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace orlen::AskReader {

namespace {

using Number = HomeFiles::Number;

/// The endings of file names that a list is of, as numbers, since each of all files is compared.
class Endings {
public:
    explicit Endings(const ListRequest& request)
    {
        const bool isOfKind = request.subject != nullptr && !request.subject->isAnyFile;
        m_isAny = !isOfKind && request.ending.empty();
        if (!request.ending.empty())
            m_endings.push_back(packed(request.ending));
        if (request.ending == "jpg")
            m_endings.push_back(packed("jpeg"));
        std::string_view rest = isOfKind && request.ending.empty() ? request.subject->extensions : "";
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find(' '), rest.size());
            m_endings.push_back(packed(rest.substr(0, end)));
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }

    [[nodiscard]] bool fit(std::string_view name) const
    {
        if (m_isAny)
            return true;
        const std::size_t dot = name.rfind('.');
        return dot != std::string_view::npos && dot > 0 && name.size() - dot <= kLongest + 1 &&
               std::ranges::find(m_endings, packed(name.substr(dot + 1))) != m_endings.end();
    }

private:
    static constexpr std::size_t kLongest = sizeof(std::uint64_t);

    static std::uint64_t packed(std::string_view ending)
    {
        constexpr unsigned kByteBits = 8;
        std::uint64_t all = 0;
        for (const char c : ending.substr(0, kLongest)) {
            const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
            all = all << kByteBits | static_cast<unsigned char>(lower);
        }
        return all;
    }

    std::vector<std::uint64_t> m_endings;
    bool m_isAny = false;
};

/// As desktops and phones name what they take of a screen.
bool isNamedScreenshot(std::string_view name)
{
    // Without what stands between the words.
    constexpr std::string_view kStarts[] = {
        "screenshot",    "screencapture",   "bildschirmfoto", "captured'écran", "captured’écran",
        "capturedecran", "capturadepantal", "capturadetela",  "schermata",      "istantanea"};
    std::string lower;
    lowerInto(lower, name);
    std::erase_if(lower, [](char each) { return each == ' ' || each == '_' || each == '-'; });
    return std::ranges::any_of(kStarts, [&](std::string_view start) { return lower.starts_with(start); });
}

/// Whether the name of a picture says that it is of the kind.
bool isNamedLike(const Subject& kind, std::string_view name)
{
    if (kind.id == SubjectID::screenshots)
        return isNamedScreenshot(name);
    constexpr std::string_view kReceipts[] = {"receipt",  "receipts", "kassenbon",
                                              "quittung", "recibo",   "scontrino"};
    constexpr std::string_view kMemes[] = {"meme", "memes"};
    const std::string lower = lowered(name);
    const auto holds = [&](std::string_view word) { return holdsWord(lower, word); };
    return (kind.id == SubjectID::receipts && std::ranges::any_of(kReceipts, holds)) ||
           (kind.id == SubjectID::memes && std::ranges::any_of(kMemes, holds));
}

/// Goes through the home folder for one request.
class HomeSearch {
public:
    HomeSearch(const ListRequest& request, const HomeFiles& home, Number place)
        : m_request(request), m_home(home), m_place(place), m_endings(request)
    {
        for (const std::string_view path : request.listed)
            m_listedNames.insert(PathText::lastComponent(path));
    }

    HomeList files()
    {
        const bool isOwnOnly = m_request.isOwnOnly && m_home.folder(m_place).isOwn;
        const HomeFiles::Range folders = m_home.foldersFrom(m_place);
        for (Number folder = folders.first; folder < folders.last;) {
            if ((isOwnOnly && !m_home.folder(folder).isOwn) || isLeftOut(folder) || isOtherTrash(folder)) {
                folder = m_home.foldersFrom(folder).last;
                continue;
            }
            const HomeFiles::Range files = m_home.filesIn(folder);
            for (Number file = files.first; file < files.last; ++file)
                takeFile(file, isOwnOnly);
            ++folder;
        }
        return cut([this](Number a, Number b) { return isBefore(m_home.file(a), m_home.file(b), a < b); });
    }

    HomeList folders()
    {
        const Number last = m_home.foldersFrom(m_place).last;
        for (Number each = m_place + 1; each < last; each = m_home.foldersFrom(each).last) {
            const HomeFiles::Folder folder = m_home.folder(each);
            const bool isMeant = !m_request.isHiddenOnly || folder.name.starts_with('.');
            if (folder.bytes > 0 && folder.bytes >= m_request.leastBytes &&
                folder.bytes <= m_request.mostBytes && isMeant && !isLeftOut(each))
                take(each, folder.bytes);
        }
        return cut([this](Number a, Number b) {
            const std::int64_t first = m_home.folder(a).bytes;
            const std::int64_t second = m_home.folder(b).bytes;
            if (first != second)
                return m_request.order == Order::smallest ? first < second : first > second;
            return a < b;
        });
    }

private:
    /// What lies in the Trash is no "mp4 I have", unless that is where to look.
    [[nodiscard]] bool isOtherTrash(Number folder) const
    {
        if (m_request.ending.empty() || folder == m_place)
            return false;
        const std::string_view name = m_home.folderName(folder);
        return name.starts_with(".Trash-") || (name == "Trash" && !m_home.folder(folder).isOwn);
    }

    [[nodiscard]] bool isOfInstallers() const
    {
        return m_request.subject != nullptr && m_request.subject->id == SubjectID::installers;
    }

    [[nodiscard]] bool isLeftOut(Number folder) const
    {
        return !m_request.exclusions.empty() && m_request.exclusions.leaveOut(m_home.folderPath(folder));
    }

    /// Most names are none of those listed: few paths have to be made.
    [[nodiscard]] bool isListed(Number number, std::string_view name) const
    {
        return m_listedNames.contains(name) && m_request.listed.contains(m_home.filePath(number));
    }

    void take(Number number, std::int64_t bytes)
    {
        m_list.first.push_back(number);
        m_list.bytes = cappedAdd(m_list.bytes, bytes);
    }

    void takeFile(Number number, bool isOwnOnly)
    {
        const HomeFiles::File file = m_home.file(number);
        if ((isOwnOnly && !file.isOwn) || file.bytes < m_request.leastBytes ||
            file.bytes > m_request.mostBytes || file.changed < m_request.changedFrom ||
            file.changed >= m_request.changedTo || file.opened >= m_request.openedTo ||
            (m_request.isHiddenOnly && !file.name.starts_with('.')) || !m_endings.fit(file.name) ||
            (!m_request.words.empty() && !holdsWordsInName(m_request, file.name)) ||
            isCountedElsewhere(number, file.counted))
            return;
        if (m_request.recognised != nullptr && !isNamedLike(*m_request.recognised, file.name) &&
            !isListed(number, file.name))
            return;
        if (isOfInstallers() && isInstalledImage(m_home.filePath(number)))
            return;
        if (m_request.exclusions.empty() || !m_request.exclusions.leaveOutFile(m_home.filePath(number)))
            take(number, file.bytes);
    }

    /// Whether another name of the file is in the list. Where the one to count is not among those looked at,
    /// the first counts.
    bool isCountedElsewhere(Number number, Number counted)
    {
        if (counted == number)
            return false;
        const HomeFiles::Range range = m_home.filesBelow(m_place);
        return (counted >= range.first && counted < range.last) || !m_otherNames.insert(counted).second;
    }

    [[nodiscard]] bool isBefore(const HomeFiles::File& a, const HomeFiles::File& b, bool isFirst) const
    {
        const bool isByDate = m_request.order == Order::oldest || m_request.order == Order::newest;
        // What programs write all day is not what somebody means by the newest, though it counts.
        if (isByDate && a.isOwn != b.isOwn && m_home.folder(m_place).isOwn)
            return a.isOwn;
        const bool isByOpening = m_request.openedTo != TimePoint::max();
        const TimePoint dateA = isByOpening ? a.opened : a.changed;
        const TimePoint dateB = isByOpening ? b.opened : b.changed;
        switch (m_request.order) {
        case Order::biggest:
            return a.bytes != b.bytes ? a.bytes > b.bytes : isFirst;
        case Order::smallest:
            return a.bytes != b.bytes ? a.bytes < b.bytes : isFirst;
        case Order::oldest:
            return dateA != dateB ? dateA < dateB : isFirst;
        case Order::newest:
            return dateA != dateB ? dateA > dateB : isFirst;
        }
        return isFirst;
    }

    template <typename Before>
    HomeList cut(Before isFirst)
    {
        std::vector<Number>& all = m_list.first;
        m_list.count = std::ssize(all);
        const auto end = all.begin() + std::min(m_list.count, m_request.count);
        std::partial_sort(all.begin(), end, all.end(), isFirst);
        all.erase(end, all.end());
        return std::move(m_list);
    }

    const ListRequest& m_request;
    const HomeFiles& m_home;
    Number m_place;
    Endings m_endings;
    std::unordered_set<std::string_view> m_listedNames;
    HomeList m_list;
    std::unordered_set<Number> m_otherNames; ///< counted though another name is the one to count
};

} // namespace

std::optional<HomeList> filesFor(const ListRequest& request, const HomeFiles& home)
{
    const auto place = request.folder.empty() ? std::optional(Number{0}) : home.folderAt(request.folder);
    return place ? std::optional(HomeSearch(request, home, *place).files()) : std::nullopt;
}

std::optional<HomeList> foldersFor(const ListRequest& request, const HomeFiles& home)
{
    const auto place = request.folder.empty() ? std::optional(Number{0}) : home.folderAt(request.folder);
    return place ? std::optional(HomeSearch(request, home, *place).folders()) : std::nullopt;
}

} // namespace orlen::AskReader
