#include "model/Words.h"

#include "model/MessageText.h"
#include "platform/files/Places.h"
#include "platform/process/OwnProgram.h"
#include "platform/text/Catalogue.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>

namespace orlen::Words {

namespace {

constexpr std::string_view kEnglish = "en";

// Characters without a width that set the direction of what stands between them and the last.
constexpr std::string_view kLeftToRight = "\u2066";
constexpr std::string_view kAsItBegins = "\u2068";
constexpr std::string_view kEndOfDirection = "\u2069";

std::string languageOf(std::string_view tag)
{
    return std::string(tag.substr(0, tag.find('_')));
}

std::string regionOf(std::string_view tag)
{
    const std::size_t separator = tag.find('_');
    return separator == std::string_view::npos ? std::string() : std::string(tag.substr(separator + 1));
}

/// The catalogues that a reader of a tag understands, best first: "de_AT", "de". Brazilian Portuguese serves
/// the rest of the language; simplified Chinese only where it is written.
std::vector<std::string> namesFor(const std::string& tag)
{
    const std::string language = languageOf(tag);
    std::vector<std::string> names{tag, language};
    if (language == "pt")
        names.emplace_back("pt_BR");
    if (tag == "zh" || tag == "zh_SG" || tag.starts_with("zh_Hans"))
        names.emplace_back("zh_CN");
    return names;
}

/// Everything about the language in use; built once and then only read.
struct Speech {
    std::string language{kEnglish};
    std::optional<Catalogue> own;
    std::optional<Catalogue> english;
    std::unique_ptr<const Figures> figures = std::make_unique<Figures>("en_US");

    /// The translation; null if there is none.
    [[nodiscard]] const char* find(const Text& text, std::int64_t count) const
    {
        // What a catalogue has for the empty text is its own header.
        if (text.empty())
            return nullptr;
        for (const auto* const catalogue : {&own, &english}) {
            if (!*catalogue)
                continue;
            const char* const context = text.context().data();
            const char* const found = text.hasPlural()
                                          ? (*catalogue)->find(context, text.base().data(), count)
                                          : (*catalogue)->find(context, text.base().data());
            if (found != nullptr)
                return found;
        }
        return nullptr;
    }

    [[nodiscard]] std::string words(const Text& text, std::int64_t count) const
    {
        const char* const found = find(text, count);
        return found == nullptr ? std::string(text.base(count)) : std::string(found);
    }

    [[nodiscard]] std::string words(const std::string& base) const
    {
        for (const auto* const catalogue : {&own, &english}) {
            const char* const found = *catalogue ? (*catalogue)->find("", base.c_str()) : nullptr;
            if (found != nullptr && !base.empty())
                return found;
        }
        return base;
    }
};

Speech& speech()
{
    static Speech speech;
    return speech;
}

void findCatalogue(Speech& speech, std::span<const std::string> languages, const std::string& folder)
{
    for (const std::string& tag : languages) {
        for (const std::string& name : namesFor(tag)) {
            if (name == kEnglish)
                return;
            if ((speech.own = Catalogue::load(folder, name))) {
                speech.language = name;
                return;
            }
        }
    }
}

/// What numbers and dates follow: the language that is spoken, in the person's region.
std::string localeOf(const std::string& language, std::span<const std::string> languages)
{
    for (const std::string& tag : languages) {
        if (languageOf(tag) == languageOf(language) && !regionOf(tag).empty())
            return tag;
    }
    if (!languages.empty() && regionOf(language).empty() && !regionOf(languages.front()).empty())
        return language + '_' + regionOf(languages.front());
    return language == kEnglish ? "en_US" : language;
}

} // namespace

void use(std::span<const std::string> languages, const std::string& folder)
{
    Speech used;
    used.english = Catalogue::load(folder, std::string(kEnglish));
    findCatalogue(used, languages, folder);
    used.figures = std::make_unique<Figures>(localeOf(used.language, languages));
    speech() = std::move(used);
}

void useInstalled()
{
    use(Places::current().languages, OwnProgram::sharedFolder("locale"));
}

const std::string& language()
{
    return speech().language;
}

bool isRightToLeft()
{
    constexpr std::array<std::string_view, 4> kRightToLeft{"ar", "fa", "he", "ur"};
    return std::ranges::find(kRightToLeft, languageOf(language())) != kRightToLeft.end();
}

const Figures& figures()
{
    return *speech().figures;
}

std::string isolated(std::string_view name)
{
    const bool isMarked = name.starts_with(kLeftToRight) || name.starts_with(kAsItBegins);
    if (!isRightToLeft() || name.empty() || isMarked)
        return std::string(name);
    // The folders of a path follow each other from the left, whatever their names are written in.
    const std::string_view direction = name.find('/') == std::string_view::npos ? kAsItBegins : kLeftToRight;
    return std::string(direction).append(name).append(kEndOfDirection);
}

std::string shown(const Text& text)
{
    return speech().words(text, 1);
}

std::string shown(const Message& message)
{
    const Speech& used = speech();
    return MessageText::filled(message,
                               {[&](const Text& text, std::int64_t count) { return used.words(text, count); },
                                *used.figures, [](const std::string& name) { return isolated(name); }});
}

std::string shown(std::string_view base)
{
    return speech().words(std::string(base));
}

} // namespace orlen::Words
