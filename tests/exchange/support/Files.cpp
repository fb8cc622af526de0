#include "support/Files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

Folder::Folder()
    : path_((std::filesystem::temp_directory_path() / "halvane-XXXXXX").string()) {
    if (!::mkdtemp(path_.data()))
        std::abort();
}

Folder::~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string ReadFile(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const std::string& name, const std::string& text) {
    std::ofstream(name, std::ios::binary) << text;
}
