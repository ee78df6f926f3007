// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Tarvik::Seaplan {

/// A change of the tree that can be taken back.
struct TreeStep {
    enum class Kind { Rename, Delete, Recover };
    Kind kind = Kind::Rename;
    bool isVoyage = false;
    std::string id{};
    std::string category{};           ///< id of a voyage's category
    std::string name{};               ///< of a renaming the name before
    std::set<std::string> onChart{};  ///< of a deletion: voyages whose routes were kept on the chart
    bool traced = false;              ///< of a voyage's deletion: its vessel's track was on
};

/// The changes that a person made in the tree, the last one behind. Destroying is none: it has no way back.
class TreeSteps {
  public:
    /// More than anybody remembers; the oldest goes.
    static constexpr std::size_t kMost = 100;

    void Note(TreeStep step) {
        if (steps_.size() == kMost) {
            steps_.erase(steps_.begin());
        }
        steps_.push_back(std::move(step));
    }
    bool IsEmpty() const { return steps_.empty(); }
    const TreeStep& Last() const { return steps_.back(); }
    void DropLast() { steps_.pop_back(); }
    /// What was done to an object that is there no more, or in it, cannot be taken back.
    void Forget(const std::string& id, bool isVoyage) {
        std::erase_if(steps_, [&](const TreeStep& step) {
            return (step.id == id && step.isVoyage == isVoyage) || (!isVoyage && step.category == id);
        });
    }
    void Clear() { steps_.clear(); }

  private:
    std::vector<TreeStep> steps_;
};

}  // namespace Tarvik::Seaplan
