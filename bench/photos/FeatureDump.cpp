// Prints the features of pictures, for training: feature_dump INPUTS < names > features.csv
// Each line of the input names a binary PPM file. What the network sees of each goes to the file INPUTS.
#include "recognition/NetworkInput.h"
#include "recognition/PictureFeatures.h"

#include <fstream>
#include <iostream>
#include <string>

namespace {

orlen::RgbImage readPpm(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string magic;
    int most = 0;
    orlen::RgbImage image;
    file >> magic >> image.width >> image.height >> most;
    file.get();
    if (!file || magic != "P6" || most != 255 || image.isEmpty())
        return {};
    image.pixels.resize(orlen::RgbImage::byteCount(image.width, image.height));
    file.read(reinterpret_cast<char*>(image.pixels.data()),
              static_cast<std::streamsize>(image.pixels.size()));
    return file ? image : orlen::RgbImage{};
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    std::ofstream inputs(argv[1], std::ios::binary);
    bool isFirst = true;
    for (std::string path; std::getline(std::cin, path);) {
        const orlen::RgbImage image = readPpm(path);
        if (image.isEmpty()) {
            std::cerr << "not read: " << path << '\n';
            return 1;
        }
        const auto features = orlen::PictureFeatures::of(image);
        if (isFirst) {
            std::cout << "file";
            for (const auto& feature : features)
                std::cout << ',' << feature.name;
            std::cout << '\n';
            isFirst = false;
        }
        std::cout << path;
        std::cout.precision(9);
        for (const auto& feature : features)
            std::cout << ',' << feature.value;
        std::cout << '\n';
        const auto input = orlen::NetworkInput::of(image);
        inputs.write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
    }
    return inputs ? 0 : 1;
}
