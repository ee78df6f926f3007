// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <system_error>

#include <tarvik/util/FileUtl.h>

namespace Tarvik::Util {

namespace {

std::string& Folder() {
    static auto* folder = new std::string;
    return *folder;
}

std::string ProgramFolder() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string(".") : program.parent_path().string();
}

}  // namespace

std::string FileUtl::GetCurrentAppDirectory() {
    if (Folder().empty()) {
        Folder() = ProgramFolder();
    }
    return Folder();
}

void FileUtl::SetCurrentAppDirectory(const std::string& folder) {
    Folder() = folder;
    while (Folder().size() > 1 && Folder().ends_with('/')) {
        Folder().pop_back();
    }
}

std::string FileUtl::BusinessData(const std::string& name) {
    return GetCurrentAppDirectory() + "/" + kBusinessDataFolder + "/" + name;
}

std::string FileUtl::NativePath(const std::string& path) {
    std::string native = path;
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

}  // namespace Tarvik::Util
