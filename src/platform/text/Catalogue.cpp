#include "platform/text/Catalogue.h"

#include <boost/locale/gnu_gettext.hpp>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <system_error>

namespace orlen {

namespace {

using Messages = boost::locale::message_format<char>;

constexpr const char* kDomain = "orlen";

const char* contextOf(const char* context)
{
    return *context == '\0' ? nullptr : context;
}

/// Plural rules look at the last digits only, and the library takes no larger numbers.
int pluralNumber(std::int64_t count)
{
    constexpr std::int64_t kRemaining = 1'000'000;
    const std::int64_t number = std::max<std::int64_t>(count, 0);
    return static_cast<int>(number < kRemaining ? number : kRemaining + number % kRemaining);
}

std::optional<std::locale> messagesIn(const std::string& folder, const std::string& language)
{
    boost::locale::gnu_gettext::messages_info info;
    const std::size_t separator = language.find('_');
    info.language = language.substr(0, separator);
    if (separator != std::string::npos)
        info.country = language.substr(separator + 1);
    info.encoding = "UTF-8";
    info.paths = {folder};
    info.domains = {boost::locale::gnu_gettext::messages_info::domain(kDomain)};
    try {
        // The locale owns the facet from here on.
        return std::locale(std::locale::classic(),
                           boost::locale::gnu_gettext::create_messages_facet<char>(info));
    } catch (const std::exception&) {
        return std::nullopt; // not a catalogue
    }
}

} // namespace

std::optional<Catalogue> Catalogue::load(const std::string& folder, const std::string& language)
{
    // The language comes from the environment, and must not lead out of the folder.
    if (language.find('/') != std::string::npos)
        return std::nullopt;
    // The library would take another region's catalogue, and says nothing about a missing one.
    std::error_code error;
    if (!std::filesystem::is_regular_file(folder + '/' + language + "/LC_MESSAGES/" + kDomain + ".mo", error))
        return std::nullopt;
    const std::optional<std::locale> messages = messagesIn(folder, language);
    return messages ? std::optional(Catalogue(*messages)) : std::nullopt;
}

const char* Catalogue::find(const char* context, const char* text) const
{
    return std::use_facet<Messages>(m_messages).get(0, contextOf(context), text);
}

const char* Catalogue::find(const char* context, const char* text, std::int64_t count) const
{
    return std::use_facet<Messages>(m_messages).get(0, contextOf(context), text, pluralNumber(count));
}

} // namespace orlen
