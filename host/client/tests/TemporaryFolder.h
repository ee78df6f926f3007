// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace Tarvik::Client {

/// A folder of a test's own, gone with it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "client-test-XXXXXX").string();
        path_ = mkdtemp(pattern.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string Path(const std::string& name = {}) const { return name.empty() ? path_ : path_ + "/" + name; }
    void Write(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories(std::filesystem::path(Path(name)).parent_path());
        std::ofstream(Path(name), std::ios::binary) << content;
    }
    std::string Read(const std::string& name) const {
        std::ifstream in(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

  private:
    std::string path_;
};

}  // namespace Tarvik::Client
