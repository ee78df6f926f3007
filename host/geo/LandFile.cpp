// SPDX-License-Identifier: MIT
#include "host/geo/LandFile.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

#include "host/geo/ByteReader.h"
#include "host/geo/ByteWriter.h"

namespace Tarvik::Data {
namespace {

using Server::ByteReader;
using Server::ByteWriter;

constexpr std::string_view kMagic = "LANDV001";
constexpr size_t kHeaderBytes = 16;
constexpr const char* kAdvice = ". Build or install the client again.";

void put(ByteWriter& w, const std::vector<LandFile::Cell>& cells) {
    w.count(cells.size());
    for (const LandFile::Cell& cell : cells) {
        w.count(cell.points.size());
        for (const auto& [x, y] : cell.points) {
            w.f32(x);
            w.f32(y);
        }
    }
}

bool get(ByteReader& r, std::vector<LandFile::Cell>& cells) {
    cells.resize(r.count(4));
    for (LandFile::Cell& cell : cells) {
        cell.points.resize(r.count(8));
        if (cell.points.empty() || cell.points.size() > LandFile::kMaxPoints) return false;
        for (auto& [x, y] : cell.points) {
            x = r.f32();
            y = r.f32();
            if (!(std::abs(x) <= 180.0F && std::abs(y) <= 90.0F)) return false;
        }
        cell.measure();
    }
    return r.ok();
}

}  // namespace

void LandFile::Cell::measure() {
    if (points.empty()) return;
    minX = maxX = points.front().first;
    minY = maxY = points.front().second;
    for (const auto& [x, y] : points) {
        minX = std::min(minX, x);
        maxX = std::max(maxX, x);
        minY = std::min(minY, y);
        maxY = std::max(maxY, y);
    }
}

std::string LandFile::encode() const {
    ByteWriter w;
    for (size_t i = 0; i < kLevels; ++i) {
        put(w, levels[i]);
        put(w, coasts[i]);
    }
    ByteWriter head;
    head.u64(w.bytes().size());
    return std::string(kMagic) + head.bytes() + w.bytes();
}

std::optional<LandFile> LandFile::decode(const std::string& bytes, std::string& error) {
    const std::string_view all(bytes);
    if (all.size() < kHeaderBytes || all.substr(0, kMagic.size()) != kMagic) {
        error = "this is not a land file";
        return std::nullopt;
    }
    ByteReader head(all.substr(kMagic.size(), 8));
    const std::string_view payload = all.substr(kHeaderBytes);
    if (head.u64() != payload.size()) {
        error = "the land file is cut or has grown";
        return std::nullopt;
    }
    ByteReader r(payload);
    LandFile land;
    bool good = true;
    for (size_t i = 0; good && i < kLevels; ++i) good = get(r, land.levels[i]) && get(r, land.coasts[i]);
    if (good && r.atEnd()) return land;
    error = "the land file is damaged";
    return std::nullopt;
}

std::optional<LandFile> LandFile::load(const std::string& path, std::string& error) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = "cannot open the land file " + path + kAdvice;
        return std::nullopt;
    }
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::optional<LandFile> land = decode(bytes, error);
    if (!land) error += ": " + path + kAdvice;
    return land;
}

std::string LandFile::save(const std::string& path) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    const std::string bytes = encode();
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file ? std::string() : "cannot write " + path;
}

}  // namespace Tarvik::Data
