// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>

namespace Tarvik::TestSupport {

/// A new, empty folder of a test's own, gone with all that is in it.
class TemporaryFolder {
  public:
    /// Throws std::runtime_error where none can be made.
    TemporaryFolder() {
        // mkdtemp puts its own letters in the place of the last six.
        path_ = (std::filesystem::temp_directory_path() / "seaplan-test-").string() + std::string(6, 'X');
        if (mkdtemp(path_.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return path_; }
    /// The path of a file or folder in it, there or not.
    std::string File(const std::string& name) const { return path_ + "/" + name; }
    /// Writes a file in it, and makes the folders above the file that are missing.
    void Write(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories(std::filesystem::path(File(name)).parent_path());
        std::ofstream(File(name), std::ios::binary) << content;
    }
    /// The content of a file in it, empty where there is none.
    std::string Read(const std::string& name) const {
        std::ifstream in(File(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

  private:
    std::string path_;
};

}  // namespace Tarvik::TestSupport
