#pragma once

#include "insight/AskEngine.h"
#include "insight/AskText.h"
#include "insight/reader/Question.h"

#include <optional>
#include <string>
#include <vector>

/// What the scan found of a kind, in lines. Pure; any thread.
namespace orlen::AskReader {

/// Lines with links to the findings they are about.
struct Lines {
    std::vector<Message> texts;
    std::vector<std::string> ids;

    [[nodiscard]] std::optional<Answer> answer() const
    {
        if (texts.empty())
            return std::nullopt;
        return Answer{AskText::lines(texts), ids};
    }
};

/// The findings of a subject.
[[nodiscard]] std::vector<const Finding*> findingsOf(const Subject& subject, const AskContext& context);

/// The sum and rating of each finding of the subject.
void addFindings(Lines& lines, const Subject& subject, const AskContext& context);

/// The sum of a finding; of each rating by itself, if its items have several.
void addRated(Lines& lines, const Finding& finding);

/// The first of a finding's items, with what there is to know about each.
void addItems(Lines& lines, const Finding& finding);

/// Those that the scan recognised and those that have such a name; nothing of other kinds.
[[nodiscard]] std::optional<Answer> recognisedFiles(const Subject& subject, const AskContext& context);

/// For kinds of which the scan has found nothing.
[[nodiscard]] Answer nothingFound(const Subject& subject, const AskContext& context);

/// Photos that look alike, and exact copies of photos.
[[nodiscard]] Answer similarPhotos(const Subject& subject, const AskContext& context);

} // namespace orlen::AskReader
