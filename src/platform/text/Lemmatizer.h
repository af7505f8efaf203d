#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

class Hunspell;

namespace orlen {

/// Base forms of English words by the spelling dictionary "en_US". Any thread.
class Lemmatizer {
public:
    /// Reads the dictionary from the first of the folders that has one. Blocks on the disk.
    explicit Lemmatizer(const std::vector<std::string>& folders);
    ~Lemmatizer();
    Lemmatizer(const Lemmatizer&) = delete;
    Lemmatizer& operator=(const Lemmatizer&) = delete;

    /// The word with its inflection undone ("leases" and "leasing" give "lease"), the word itself when it has
    /// none; nothing for a word that the dictionary does not know, and for every word without a dictionary.
    [[nodiscard]] std::optional<std::string> lemma(const std::string& word) const;

private:
    [[nodiscard]] std::vector<std::string> stems(const std::string& word) const;

    mutable std::mutex m_mutex; ///< the library is not made for several threads
    std::unique_ptr<Hunspell> m_dictionary;
};

} // namespace orlen
