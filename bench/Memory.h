// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include <benchmark/benchmark.h>

/// Counts what the program takes from the heap; linking Memory.cpp replaces the global operator new.
namespace Bench {

/// Bytes taken between making and asking.
class MemoryMark {
  public:
    MemoryMark();
    /// The most bytes that were in use at one time beyond those in use at the start.
    std::size_t Peak() const;

  private:
    std::size_t before_;
};

/// Runs `work` once, outside the measured time, and puts its peak into the counter "peak_kB".
template <class Work>
void CountMemory(benchmark::State& state, const Work& work) {
    const MemoryMark mark;
    work();
    state.counters["peak_kB"] = static_cast<double>(mark.Peak()) / 1024.0;
}

}  // namespace Bench
