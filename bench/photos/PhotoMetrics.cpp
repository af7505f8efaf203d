// Measures the recognition of pictures on a folder of labelled ones: photo_metrics FOLDER [labels]. FOLDER
// holds labels.csv, develop/KIND/ and sequences/.

#include "LabelMetrics.h"
#include "PhotoFolder.h"
#include "PrintMetrics.h"
#include "recognition/ImageDecoder.h"

#include <vips/vips.h>

#include <cstdio>
#include <string_view>

int main(int argc, char** argv)
{
    const bool onlyLabels = argc == 3 && std::string_view(argv[2]) == "labels";
    if ((argc != 2 && !onlyLabels) || VIPS_INIT(argv[0]) != 0) {
        std::fprintf(stderr, "usage: photo_metrics FOLDER [labels]\n");
        return 2;
    }
    const std::string folder = argv[1];
    const auto photos = orlen::PhotoFolder::photosOf(folder);
    if (photos.empty()) {
        std::fprintf(stderr, "%s lists no pictures.\n", (folder + "/labels.csv").c_str());
        return 1;
    }
    if (!onlyLabels)
        orlen::PrintMetrics::report(folder, photos);
    // Only now: it leaves few formats readable, and no other way to read a picture.
    orlen::ImageDecoder::prepare();
    orlen::LabelMetrics::report(folder, photos);
    return 0;
}
