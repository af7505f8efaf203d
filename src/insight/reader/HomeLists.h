#pragma once

#include "insight/reader/ListRequest.h"
#include "scan/HomeFiles.h"

#include <cstdint>
#include <optional>
#include <vector>

/// Lists of what lies in the home folder. Pure; any thread.
namespace orlen::AskReader {

/// What fits a request.
struct HomeList {
    std::vector<HomeFiles::Number> first; ///< as many as were asked for, in the order asked for
    std::int64_t count = 0;
    std::int64_t bytes = 0;
};

/// The files that fit. Nothing if the folder is not in the home folder.
[[nodiscard]] std::optional<HomeList> filesFor(const ListRequest& request, const HomeFiles& home);

/// The folders that fit, of those directly in the folder asked for or in the home folder.
[[nodiscard]] std::optional<HomeList> foldersFor(const ListRequest& request, const HomeFiles& home);

} // namespace orlen::AskReader
