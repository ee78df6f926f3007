// SPDX-License-Identifier: MIT
#include "host/client/plugins/LibraryFile.h"

#include <cstdint>
#include <cstring>
#include <fstream>

#include <elf.h>

namespace Tarvik::Client {

namespace {

constexpr const char* kNoLibrary = "is no library for this system";
constexpr const char* kCutShort = "is cut short; install it anew";

template <class Record>
bool ReadAt(std::ifstream& in, std::uint64_t offset, Record& record) {
    in.clear();
    in.seekg(static_cast<std::streamoff>(offset));
    return static_cast<bool>(in.read(reinterpret_cast<char*>(&record), sizeof record));
}

bool Within(std::uint64_t offset, std::uint64_t length, std::uint64_t size) {
    return offset <= size && length <= size - offset;
}

}  // namespace

std::string FaultOfLibraryFile(const std::string& file) {
    std::ifstream in(file, std::ios::binary | std::ios::ate);
    if (!in) {
        return "cannot be read";
    }
    const auto size = static_cast<std::uint64_t>(in.tellg());
    Elf64_Ehdr head{};
    if (!ReadAt(in, 0, head) || std::memcmp(head.e_ident, ELFMAG, SELFMAG) != 0 ||
        head.e_ident[EI_CLASS] != ELFCLASS64) {
        return kNoLibrary;
    }
    if (!Within(head.e_shoff, std::uint64_t{head.e_shnum} * head.e_shentsize, size)) {
        return kCutShort;
    }
    for (unsigned i = 0; i < head.e_phnum; ++i) {
        Elf64_Phdr part{};
        if (!ReadAt(in, head.e_phoff + std::uint64_t{i} * head.e_phentsize, part)) {
            return kCutShort;
        }
        if (!Within(part.p_offset, part.p_filesz, size)) {
            return kCutShort;
        }
    }
    return {};
}

}  // namespace Tarvik::Client
