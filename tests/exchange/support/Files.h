#pragma once

#include <string>

/// A folder of a test's own, removed with the object.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    const std::string& Path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

std::string ReadFile(const std::string& name); ///< empty if there is none
void WriteFile(const std::string& name, const std::string& text);
