#include "fuzz/Target.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace {
using Files = std::vector<std::filesystem::path>;

Files FilesOf(const std::filesystem::path& folder) {
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.is_regular_file())
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
} // namespace

/// Gives each file of the folders to the target: the run of a corpus without libFuzzer. The file
/// that is named last is the one at which a target ended.
int main(int argc, char** argv) {
    size_t count = 0;
    for (const char* folder : std::vector<const char*>(argv + 1, argv + argc)) {
        const Files files = FilesOf(folder);
        for (const std::filesystem::path& file : files) {
            std::cout << file.string() << std::endl;
            Fuzz(BytesOf(file));
        }
        count += files.size();
    }
    return count > 0 ? 0 : 1;
}
