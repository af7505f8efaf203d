#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Question.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace orlen::AskReader {

/// What a question leaves out: "besides photos", "other than Downloads". Pure; any thread.
class Exclusions {
public:
    /// Of all such phrases, empty if there are none; nothing if one of them names what nobody knows.
    [[nodiscard]] static std::optional<Exclusions> of(const Question& question, const AskContext& context);

    [[nodiscard]] bool empty() const { return m_names.empty(); }
    [[nodiscard]] bool leaveOut(const Finding& finding, const FileEntry& entry) const;
    /// The same of a file that no finding lists, unless `needsFindings`.
    [[nodiscard]] bool leaveOutFile(std::string_view path) const;
    /// Whether only a finding can tell what is left out: "besides caches".
    [[nodiscard]] bool needsFindings() const;
    /// Whether a folder is one of those left out, or in one.
    [[nodiscard]] bool leaveOut(std::string_view folder) const;

    /// The folder that is left out, if nothing else is; else empty.
    [[nodiscard]] std::string onlyFolder() const;
    /// "Left out: photos." Empty if nothing is.
    [[nodiscard]] Message said() const;

private:
    bool add(const std::vector<Phrase>& phrases, const AskContext& context);
    bool add(const Subject& subject);
    bool addNamed(const std::string& name, const AskContext& context);

    std::vector<const Subject*> m_kinds;
    std::vector<std::string> m_folders;
    std::vector<std::string> m_endings;
    std::set<std::string, std::less<>> m_paths;
    std::vector<Message> m_names;
};

} // namespace orlen::AskReader
