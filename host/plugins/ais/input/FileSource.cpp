// SPDX-License-Identifier: MIT
#include "host/plugins/ais/input/FileSource.h"

#include <cerrno>
#include <limits>
#include <system_error>

#include "host/plugins/ais/core/Sentence.h"

namespace Tarvik::Ais {

namespace {

constexpr double kSecond = 1000;

/// A line of a file may be any length; of one that is too long the decoder needs only so much as tells it so.
bool ReadLine(std::istream& in, std::string& line) {
    line.clear();
    for (int letter = in.get(); letter != std::istream::traits_type::eof(); letter = in.get()) {
        if (line.size() <= kLongestLine + 1) {
            line.push_back(static_cast<char>(letter));
        }
        if (letter == '\n') {
            line.back() = '\n';
            return true;
        }
    }
    return !line.empty();
}

}  // namespace

FileSource::FileSource(const std::string& path, double pace, SourceTaker taker)
    : file_(path, std::ios::binary), pace_(pace), taker_(std::move(taker)) {
    state_.open = file_.is_open();
    if (!state_.open) {
        state_.error = std::system_category().message(errno);
    }
}

bool FileSource::NextLine() {
    if (line_.waiting) {
        return true;
    }
    if (!ReadLine(file_, line_.text)) {
        return false;
    }
    line_.waiting = true;
    Sentence sentence;
    std::string_view text = line_.text;
    text.remove_suffix(text.size() - text.find_last_not_of("\r\n") - 1);
    if (line_.text.front() == '\\' && ParseSentence(text, sentence) == Cause::Message &&
        sentence.tagTime > 0) {
        line_.time = sentence.tagTime;
        firstTime_ = firstTime_ == 0 ? line_.time : firstTime_;
    }
    return true;
}

bool FileSource::IsDue(double elapsedMs) const {
    if (pace_ == 0) {
        return true;
    }
    const double reached = elapsedMs / kSecond * pace_;
    return firstTime_ != 0 ? double(line_.time - firstTime_) <= reached
                           : double(handedOn_) <= reached * kUntimedPerSecond;
}

void FileSource::Tick(std::int64_t now) {
    if (!state_.open || !file_.is_open()) {
        return;
    }
    if (started_ < 0) {
        started_ = now;
        ++state_.openings;
        taker_.began();
    }
    for (int count = 0; count < kMostAtOnce; ++count) {
        if (!NextLine()) {
            state_.open = false;
            state_.ended = true;
            return;
        }
        if (!IsDue(double(now - started_))) {
            return;
        }
        line_.waiting = false;
        ++handedOn_;
        if (line_.text.back() != '\n') {
            line_.text.push_back('\n');
        }
        taker_.bytes(line_.text);
    }
}

}  // namespace Tarvik::Ais
