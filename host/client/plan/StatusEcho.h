// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/PlacesContract.h>

namespace Tarvik::Client {

/// Hands on what the window's status line would show, while it lives, for a run without one: each owner's
/// words when they change, and nothing when they go.
class StatusEcho {
  public:
    explicit StatusEcho(std::function<void(const std::string&)> tell)
        : tell_(std::move(tell)),
          words_(Interface::Subscribe(Interface::Bus::TellStatus,
                                      [this](const Interface::StatusWord& word) { Hear(word); })) {}

  private:
    void Hear(const Interface::StatusWord& word) {
        if (std::exchange(last_[word.owner], word.text) != word.text && !word.text.empty()) {
            tell_(word.text);
        }
    }

    std::function<void(const std::string&)> tell_;
    std::map<std::string, std::string> last_;  ///< words by their owner
    Interface::Binding words_;
};

}  // namespace Tarvik::Client
