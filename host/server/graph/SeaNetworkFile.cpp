// SPDX-License-Identifier: MIT
#include "host/server/graph/SeaNetworkFile.h"

#include <array>
#include <cstring>
#include <fstream>
#include <future>
#include <utility>

#include <tarvik/util/FileKinds.h>

#include "host/geo/ByteReader.h"
#include "host/geo/ByteWriter.h"
#include "host/geo/MappedFile.h"

namespace Tarvik::Server {

namespace {

constexpr std::string_view kMagic = Util::kNetworkKind.name;
constexpr std::string_view kFamily = kMagic.substr(0, 6);
constexpr std::size_t kHeaderBytes = Util::kNetworkKind.headBytes;
static_assert(kHeaderBytes % kRawAlignment == 0, "the payload's tables are read in place");

/// A payload is summed beside its reading where it is larger than this: less takes no longer than a thread.
constexpr std::size_t kBesideBytes = std::size_t{1} << 20U;

std::string ForeignText(std::string_view bytes) {
    if (bytes.size() < kHeaderBytes || bytes.substr(0, kFamily.size()) != kFamily) {
        return "this is not a sea network file";
    }
    return "the sea network file is of version " + std::string(bytes.substr(kFamily.size(), 2)) +
           ", where this program reads version " + std::string(kMagic.substr(kFamily.size()));
}

}  // namespace

std::uint64_t SeaNetworkFile::Checksum(std::string_view payload) {
    constexpr std::uint64_t kPrime = 1099511628211ULL;
    constexpr std::uint64_t kBasis = 14695981039346656037ULL;
    constexpr std::size_t kWord = sizeof(std::uint64_t);
    // Four sums side by side: one alone would wait for its own product at every word.
    std::array<std::uint64_t, 4> sums{kBasis, kBasis + 1, kBasis + 2, kBasis + 3};
    const auto take = [&](std::uint64_t& sum, std::size_t at, std::size_t width) {
        std::uint64_t word = 0;
        std::memcpy(&word, payload.data() + at, width);
        sum = (sum ^ word) * kPrime;
    };
    std::size_t at = 0;
    for (; payload.size() - at >= sums.size() * kWord; at += sums.size() * kWord) {
        for (std::size_t lane = 0; lane < sums.size(); ++lane) {
            take(sums[lane], at + lane * kWord, kWord);
        }
    }
    std::uint64_t all = kBasis;
    for (const std::uint64_t sum : sums) {
        all = (all ^ sum) * kPrime;
    }
    for (; at < payload.size(); ++at) {
        take(all, at, 1);
    }
    return all;
}

std::string SeaNetworkFile::Encode(const NetworkData& data) {
    const std::string payload = PutPayload(data);
    ByteWriter head;
    head.U64(payload.size());
    head.U64(Checksum(payload));
    return std::string(kMagic) + head.Bytes() + payload;
}

std::optional<NetworkData> SeaNetworkFile::Decode(std::string_view bytes,
                                                  const std::shared_ptr<const void>& keeper,
                                                  std::string& error) {
    if (bytes.size() < kHeaderBytes || bytes.substr(0, kMagic.size()) != kMagic) {
        error = ForeignText(bytes);
        return std::nullopt;
    }
    ByteReader head(bytes.substr(kMagic.size(), kHeaderBytes - kMagic.size()));
    const std::uint64_t length = head.U64();
    const std::uint64_t sum = head.U64();
    const std::string_view payload = bytes.substr(kHeaderBytes);
    if (payload.size() != length) {
        error = "the sea network file is cut or has grown";
        return std::nullopt;
    }
    const auto how = payload.size() > kBesideBytes ? std::launch::async : std::launch::deferred;
    std::future<std::uint64_t> summed = std::async(how, Checksum, payload);
    // Reading asks of every length whether the bytes are there, so that damage does no harm before it is
    // known.
    ByteReader r(payload);
    NetworkData data = GetPayload(r, keeper);
    error = !r.Ok() || !r.AtEnd() ? "its lists do not fit its length" : FaultOf(data);
    if (summed.get() != sum) {
        error = "the sea network file is damaged";
        return std::nullopt;
    }
    if (error.empty()) {
        return data;
    }
    error = "the sea network file is inconsistent: " + error;
    return std::nullopt;
}

std::optional<NetworkData> SeaNetworkFile::Decode(const std::string& bytes, std::string& error) {
    const auto kept = std::make_shared<const std::string>(bytes);
    return Decode(*kept, kept, error);
}

std::string SeaNetworkFile::Write(const std::string& path, const NetworkData& data) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    const std::string bytes = Encode(data);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file ? std::string() : "cannot write " + path;
}

std::optional<NetworkData> SeaNetworkFile::Read(const std::string& path, std::string& error) {
    const std::shared_ptr<const MappedFile> file = MappedFile::Open(path);
    if (!file) {
        error = "cannot open the sea network file " + path + kReinstallAdvice;
        return std::nullopt;
    }
    std::optional<NetworkData> data = Decode(file->Bytes(), file, error);
    if (!data) {
        error += ": " + path + kReinstallAdvice;
    }
    return data;
}

}  // namespace Tarvik::Server
