// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Tarvik::Interface {
enum class SysMsgHandleRes : int;
}

namespace Tarvik::Seaplan {

class BoxOwner;
enum class TextId : int;

/// Message boxes of one window: level 1, and no title but a refusal's. The window is disabled while a box is
/// up.
class Boxes {
  public:
    explicit Boxes(BoxOwner& owner) : owner_(&owner) {}

    /// `detail` is one more line below the text: a cause, or what an answer would lose.
    void Notice(TextId id, const std::string& detail = {});
    /// A text that is made of more than its key.
    void NoticeText(const std::string& text);
    /// True for yes.
    bool Question(TextId id, const std::string& detail = {});
    /// The same question; true for no.
    bool Denied(TextId id, const std::string& detail = {});
    /// True for OK.
    bool Confirm(TextId id, const std::string& detail = {});
    /// Tells that something was not done, in words without a key.
    void Refusal(const std::string& text, const std::string& title);

  private:
    Interface::SysMsgHandleRes Ask(const std::string& text, int kind, const std::string& title);

    BoxOwner* owner_;
    int open_ = 0;
};

}  // namespace Tarvik::Seaplan
