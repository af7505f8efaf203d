#include "support/SampleHome.h"

#include <cstdio>
#include <filesystem>

/// Makes the sample home in a folder for a person to look at.
int main(int argc, char** argv)
{
    namespace fs = std::filesystem;
    if (argc != 2) {
        std::fputs("Usage: sample_home FOLDER\n", stderr);
        return 2;
    }
    std::error_code error;
    const fs::path folder = fs::absolute(argv[1]).lexically_normal();
    fs::create_directories(folder, error);
    if (error) {
        std::fprintf(stderr, "%s: %s\n", folder.c_str(), error.message().c_str());
        return 1;
    }
    if (!fs::is_empty(folder, error) || error) {
        std::fprintf(stderr, "%s is not an empty folder.\n", folder.c_str());
        return 1;
    }
    orlen::SampleHome::make(folder.string(), orlen::SampleHome::Layout::plain);
    return 0;
}
