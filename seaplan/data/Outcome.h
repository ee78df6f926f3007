// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>

/// How an operation fails inside the plug-in: it answers with an Outcome, success or the step that failed.
/// The negative number that a required operation owes its callers is made from it at the border, by the
/// operation's CodeTable.
namespace Tarvik::Seaplan {

/// Success, or the step that failed; `Step` is an enum class of the operation's steps. Where the step is a
/// function with numbers of its own, such as a parser, the failure carries that number along.
template <typename Step>
class [[nodiscard]] Outcome {
  public:
    /// Success.
    constexpr Outcome() = default;
    constexpr Outcome(Step failed, int detail = 0) : failed_(true), step_(failed), detail_(detail) {}
    constexpr bool Failed() const { return failed_; }
    /// The step that failed; without meaning after a success.
    constexpr Step At() const { return step_; }
    /// The failed step's own number, 0 when it has none.
    constexpr int Detail() const { return detail_; }

  private:
    bool failed_ = false;
    Step step_{};
    int detail_ = 0;
};

/// In a table: the step's own number goes out as it is.
inline constexpr int kOwnNumber = 0;

/// One line of a table: `step` goes out as `number`.
template <typename Step>
struct Code {
    Step step;
    int number;
};
template <typename Step>
Code(Step, int) -> Code<Step>;

/// The numbers of one required operation, a line for each step that can fail. The numbers are below 0 and
/// differ, as do the steps; a constant of another kind does not compile.
template <typename Step, std::size_t Size>
class CodeTable {
  public:
    /// What a step without a line or without a number goes out as: such a mistake must not look like success.
    static constexpr int kUnlisted = -100;

    template <typename... Rest>
    constexpr explicit CodeTable(Code<Step> first, Rest... rest) : codes_{first, rest...} {
        for (std::size_t i = 0; i < Size; ++i) {
            if (codes_[i].number > 0 || codes_[i].number <= kUnlisted || Repeats(i)) {
                throw std::invalid_argument("numbers and steps of a table are below 0 and differ");
            }
        }
    }
    /// 0 for success, otherwise the number of the step that failed.
    constexpr int Of(const Outcome<Step>& outcome) const {
        if (!outcome.Failed()) {
            return 0;
        }
        for (const Code<Step>& code : codes_) {
            if (code.step == outcome.At()) {
                const int number = code.number == kOwnNumber ? outcome.Detail() : code.number;
                return number < 0 ? number : kUnlisted;
            }
        }
        return kUnlisted;
    }

  private:
    constexpr bool Repeats(std::size_t index) const {
        for (std::size_t i = 0; i < index; ++i) {
            const bool sameNumber =
                codes_[i].number == codes_[index].number && codes_[i].number != kOwnNumber;
            if (sameNumber || codes_[i].step == codes_[index].step) {
                return true;
            }
        }
        return false;
    }

    std::array<Code<Step>, Size> codes_;
};
template <typename Step, typename... Rest>
CodeTable(Code<Step>, Rest...) -> CodeTable<Step, sizeof...(Rest) + 1>;

}  // namespace Tarvik::Seaplan
