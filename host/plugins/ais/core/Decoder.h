// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "host/plugins/ais/core/Message.h"

namespace Tarvik::Ais {

/// Puts the parts of long messages together. Parts belong together by sequence id and channel, whatever other
/// messages come between them and in whatever order they come. Memory is bounded: there is one place for each
/// id and channel, and a newer message drops an unfinished one in its place.
class PartStore {
  public:
    /// Milliseconds after the first part in which the others must come.
    static constexpr std::int64_t kLongestWait = 10'000;
    /// Characters of one part; the longest that are sent have 62.
    static constexpr std::size_t kLongestPart = 96;

    /// Takes a part. Cause::Message when the message is whole, and then `bits` has it; Part while others are
    /// missing; LostPart when an unfinished message was dropped for this one, or its wait was over.
    Cause Add(const Sentence& sentence, std::int64_t nowMs, SixBits& bits);

  private:
    static constexpr std::size_t kMostParts = 9;
    static constexpr std::size_t kSequences = 11;  ///< 0 to 9, and none
    static constexpr std::size_t kChannels = 4;
    struct Slot {
        std::uint8_t parts = 0;  ///< of the message under way; 0 without one
        std::uint16_t have = 0;  ///< a bit for each part that has come
        std::int64_t since = 0;
        std::array<std::uint8_t, kMostParts> lengths{};
        std::array<std::uint8_t, kMostParts> fills{};
        std::array<std::array<char, kLongestPart>, kMostParts> texts{};
    };
    Slot& SlotOf(const Sentence& sentence);
    static void Put(Slot& slot, const Sentence& sentence);
    static Cause Join(Slot& slot, SixBits& bits);

    std::array<Slot, kSequences * kChannels> slots_{};
};

/// Makes messages of the bytes of one source. Never throws for what it reads; memory is bounded whatever
/// comes. Not for several threads at once.
class Decoder {
  public:
    /// Told of each message; it stays the decoder's and is good until the call returns.
    using Taker = std::function<void(const Message&)>;

    explicit Decoder(Taker taker) : taker_(std::move(taker)) {}

    /// Takes the next bytes of the stream, cut anywhere. `nowMs` counts milliseconds of any clock that does
    /// not go back.
    void Take(std::string_view bytes, std::int64_t nowMs);
    /// Takes one line, its end left out.
    Cause TakeLine(std::string_view line, std::int64_t nowMs);
    /// The stream has begun anew: what was cut is forgotten.
    void Restart();

    /// Lines that ended with this cause. Empty lines count nowhere.
    std::uint64_t Count(Cause cause) const { return counts_[static_cast<std::size_t>(cause)]; }

  private:
    Cause Decode(std::string_view line, std::int64_t nowMs);
    void EndLine(std::string_view line, std::int64_t nowMs);
    void Keep(std::string_view piece);

    Taker taker_;
    std::array<std::uint64_t, kCauses> counts_{};
    PartStore parts_;
    SixBits bits_;
    Message message_;
    Sentence sentence_;
    std::string rest_;       ///< a line whose end has not come yet, at most kLongestLine
    bool overlong_ = false;  ///< that line is already too long and is not kept
};

}  // namespace Tarvik::Ais
