// SPDX-License-Identifier: MIT
#pragma once

#include <QSemaphore>
#include <cstddef>
#include <functional>
#include <memory>

namespace Tarvik::Seamap {

/// A task that runs beside its maker, on a thread of the program's pool; at once where none is free. The
/// maker goes on only after the task has ended, so that it may use what the maker has.
class Beside {
  public:
    explicit Beside(const std::function<void()>& task);
    ~Beside() { Wait(); }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    /// Does tasks 0 to `count` - 1 in any order, on as many threads as are free, and returns when all have
    /// ended.
    static void Each(std::size_t count, const std::function<void(std::size_t)>& task);
    /// Returns when the task has ended.
    void Wait();

  private:
    std::shared_ptr<QSemaphore> ended_;
    bool waited_ = false;
};

}  // namespace Tarvik::Seamap
