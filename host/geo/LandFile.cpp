// SPDX-License-Identifier: MIT
#include "host/geo/LandFile.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

#include <tarvik/util/FileKinds.h>
#include <tarvik/util/Geodesy.h>

#include "host/geo/ByteReader.h"
#include "host/geo/ByteWriter.h"

namespace Tarvik::Data {

namespace {

using Server::ByteReader;
using Server::ByteWriter;

constexpr std::string_view kMagic = Util::kLandKind.name;
constexpr std::size_t kHeaderBytes = Util::kLandKind.headBytes;

void Put(ByteWriter& w, const std::vector<LandFile::Cell>& cells) {
    w.Count(cells.size());
    for (const LandFile::Cell& cell : cells) {
        w.Count(cell.points.size());
        for (const auto& [x, y] : cell.points) {
            w.F32(x);
            w.F32(y);
        }
    }
}

bool Get(ByteReader& r, std::vector<LandFile::Cell>& cells) {
    cells.resize(r.Count(4));
    for (LandFile::Cell& cell : cells) {
        cell.points.resize(r.Count(8));
        if (cell.points.empty() || cell.points.size() > LandFile::kMaxPoints) {
            return false;
        }
        for (auto& [x, y] : cell.points) {
            x = r.F32();
            y = r.F32();
            if (!Util::IsOnEarth(static_cast<double>(x), static_cast<double>(y))) {
                return false;
            }
        }
        cell.Measure();
    }
    return r.Ok();
}

}  // namespace

void LandFile::Cell::Measure() {
    if (points.empty()) {
        return;
    }
    minX = maxX = points.front().first;
    minY = maxY = points.front().second;
    for (const auto& [x, y] : points) {
        minX = std::min(minX, x);
        maxX = std::max(maxX, x);
        minY = std::min(minY, y);
        maxY = std::max(maxY, y);
    }
}

std::string LandFile::Encode() const {
    ByteWriter w;
    for (std::size_t i = 0; i < kLevels; ++i) {
        Put(w, levels[i]);
        Put(w, coasts[i]);
    }
    ByteWriter head;
    head.U64(w.Bytes().size());
    return std::string(kMagic) + head.Bytes() + w.Bytes();
}

std::optional<LandFile> LandFile::Decode(const std::string& bytes, std::string& error) {
    const std::string_view all(bytes);
    if (all.size() < kHeaderBytes || all.substr(0, kMagic.size()) != kMagic) {
        error = "this is not a land file";
        return std::nullopt;
    }
    ByteReader head(all.substr(kMagic.size(), 8));
    const std::string_view payload = all.substr(kHeaderBytes);
    if (head.U64() != payload.size()) {
        error = "the land file is cut or has grown";
        return std::nullopt;
    }
    ByteReader r(payload);
    LandFile land;
    bool good = true;
    for (std::size_t i = 0; good && i < kLevels; ++i) {
        good = Get(r, land.levels[i]) && Get(r, land.coasts[i]);
    }
    if (good && r.AtEnd()) {
        return land;
    }
    error = "the land file is damaged";
    return std::nullopt;
}

std::optional<LandFile> LandFile::Load(const std::string& path, std::string& error) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = "cannot open the land file " + path + Server::kReinstallAdvice;
        return std::nullopt;
    }
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::optional<LandFile> land = Decode(bytes, error);
    if (!land) {
        error += ": " + path + Server::kReinstallAdvice;
    }
    return land;
}

std::string LandFile::Save(const std::string& path) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    const std::string bytes = Encode();
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file ? std::string() : "cannot write " + path;
}

}  // namespace Tarvik::Data
