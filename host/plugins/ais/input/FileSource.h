// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <fstream>
#include <string>

#include "host/plugins/ais/input/Source.h"

namespace Tarvik::Ais {

/// A log of sentences, read by the times of its tag blocks: a second of the log takes a second divided by the
/// pace. A line without a time goes with the one before; a log without any goes by kUntimedPerSecond. It ends
/// at the end.
class FileSource : public Source {
  public:
    /// Lines of a log without times in a second at pace 1.
    static constexpr double kUntimedPerSecond = 50;
    /// Lines that one Tick hands on at most, so that a thread that does other work too is never held long.
    static constexpr int kMostAtOnce = 20'000;

    /// `pace` 0 goes as fast as Ticks come.
    FileSource(const std::string& path, double pace, SourceTaker taker);

    void Tick(std::int64_t now) override;
    void Close() override { file_.close(); }
    SourceState State() const override { return state_; }

  private:
    bool NextLine();
    bool IsDue(double elapsedMs) const;

    std::ifstream file_;
    double pace_;
    SourceTaker taker_;
    SourceState state_;
    struct Line {
        std::string text;
        bool waiting = false;   ///< not handed on yet
        std::int64_t time = 0;  ///< of the newest line with one
    };
    Line line_;
    std::int64_t firstTime_ = 0;  ///< of the first; 0 until there is one
    std::int64_t started_ = -1;   ///< clock at the first Tick
    std::int64_t handedOn_ = 0;   ///< lines
};

}  // namespace Tarvik::Ais
