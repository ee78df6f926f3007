// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace Tarvik::Server {

/// Items that never change: those of a vector, or some that lie in a file's memory. Copies share them.
template <typename T>
class FrozenArray {
  public:
    FrozenArray() = default;
    explicit FrozenArray(std::vector<T> items) {
        const auto kept = std::make_shared<const std::vector<T>>(std::move(items));
        view_ = *kept;
        keeper_ = kept;
    }
    /// Items of a memory that stays as long as `keeper` does.
    FrozenArray(std::span<const T> view, std::shared_ptr<const void> keeper)
        : view_(view), keeper_(std::move(keeper)) {}

    std::span<const T> View() const { return view_; }
    const T& operator[](std::size_t i) const { return view_[i]; }
    std::size_t Size() const { return view_.size(); }
    bool Empty() const { return view_.empty(); }

  private:
    std::span<const T> view_;
    std::shared_ptr<const void> keeper_;
};

}  // namespace Tarvik::Server
