#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

class Hunspell;

namespace orlen {

/// Base forms of English words, from the spelling dictionary "en_US". Any thread.
class Lemmatizer {
public:
    /// Reads the dictionary from the first folder that has one. Blocks on the disk.
    explicit Lemmatizer(const std::vector<std::string>& folders);
    ~Lemmatizer();
    Lemmatizer(const Lemmatizer&) = delete;
    Lemmatizer& operator=(const Lemmatizer&) = delete;

    /// The word without its inflection ("leases" and "leasing" give "lease"), or the word itself if it has
    /// none. Nothing if the dictionary is missing or does not know the word.
    [[nodiscard]] std::optional<std::string> lemma(const std::string& word) const;

private:
    [[nodiscard]] std::vector<std::string> stems(const std::string& word) const;

    mutable std::mutex m_mutex; ///< the library is not thread-safe
    std::unique_ptr<Hunspell> m_dictionary;
};

} // namespace orlen
