// SPDX-License-Identifier: MIT
// From bytes to messages: lines are found in the chunk as it came, and only a line that goes over its end is
// copied. Cost: some 150 ns a sentence.
#include "host/plugins/ais/core/Decoder.h"

namespace Tarvik::Ais {

void Decoder::Restart() {
    rest_.clear();
    overlong_ = false;
    parts_ = PartStore();
}

void Decoder::Take(std::string_view bytes, std::int64_t nowMs) {
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        if (end == std::string_view::npos) {
            return Keep(bytes);
        }
        EndLine(bytes.substr(0, end), nowMs);
        bytes.remove_prefix(end + 1);
    }
}

void Decoder::Keep(std::string_view piece) {
    overlong_ = overlong_ || rest_.size() + piece.size() > kLongestLine;
    if (overlong_) {
        rest_.clear();
    } else {
        rest_.append(piece);
    }
}

void Decoder::EndLine(std::string_view line, std::int64_t nowMs) {
    if (overlong_) {
        overlong_ = false;
        ++counts_[static_cast<std::size_t>(Cause::TooLong)];
        return;
    }
    if (rest_.empty()) {
        TakeLine(line, nowMs);
        return;
    }
    Keep(line);
    if (overlong_) {
        return EndLine({}, nowMs);
    }
    TakeLine(rest_, nowMs);
    rest_.clear();
}

Cause Decoder::TakeLine(std::string_view line, std::int64_t nowMs) {
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    if (line.empty()) {
        return Cause::NotAis;
    }
    const Cause cause = Decode(line, nowMs);
    ++counts_[static_cast<std::size_t>(cause)];
    if (cause == Cause::Message && taker_) {
        taker_(message_);
    }
    return cause;
}

Cause Decoder::Decode(std::string_view line, std::int64_t nowMs) {
    if (const Cause read = ParseSentence(line, sentence_); read != Cause::Message) {
        return read;
    }
    if (sentence_.parts == 1) {
        bits_.Clear();
        if (!bits_.Append(sentence_.payload, sentence_.fillBits)) {
            return Cause::BadPayload;
        }
    } else if (const Cause joined = parts_.Add(sentence_, nowMs, bits_); joined != Cause::Message) {
        return joined;
    }
    message_.time = sentence_.tagTime;
    message_.own = sentence_.own;
    return DecodeMessage(bits_, message_);
}

}  // namespace Tarvik::Ais
