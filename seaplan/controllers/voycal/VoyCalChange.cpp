// SPDX-License-Identifier: MIT
#include "seaplan/controllers/voycal/VoyCalChange.h"

#include <algorithm>

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

namespace {

using Groups = std::vector<VoyCalGroup>;
using Texts = std::vector<std::string>;
using Util::StringUtl;

Texts SplitAt(const std::string& text, const char* separator) {
    Texts pieces;
    StringUtl::split(text, separator, pieces);
    return pieces;
}

std::string UpTo(const std::string& text, char end) {
    return text.substr(0, text.find(end));
}

constexpr int kNoGroup = -1;

/// Place of a group by its head, kNoGroup for none.
int IndexOfHead(const Groups& groups, const std::string& id) {
    const auto found = std::find_if(groups.begin(), groups.end(),
                                    [&](const VoyCalGroup& group) { return group.head.id == id; });
    return found == groups.end() ? kNoGroup : static_cast<int>(found - groups.begin());
}

/// Whether a lock "a=b,c" names the point.
bool Names(const std::string& lock, const std::string& id) {
    for (const auto& side : SplitAt(lock, "=")) {
        const Texts ids = SplitAt(side, ",");
        if (std::find(ids.begin(), ids.end(), id) != ids.end()) {
            return true;
        }
    }
    return false;
}

/// Writes a port's locks anew with one more among them.
class LockText {
  public:
    LockText(const Groups& groups, const VoyCalChange& change, bool choosing)
        : groups_(groups),
          change_(change),
          choosing_(choosing),
          place_(IndexOfHead(groups, change.oldId)),
          newHead_(UpTo(change.lock, '=')) {}

    bool HasPlace() const { return place_ >= 0; }

    void Add(const std::string& lock) {
        const std::string head = UpTo(lock, '=');
        const int index = IndexOfHead(groups_, head);
        const bool replaced = !choosing_ && Names(lock, change_.oldId);
        const bool keep = !replaced && head != newHead_;
        if (index < place_ && !replaced) {
            text_ += lock;
        } else if (index == place_ && !written_) {
            WriteNew();
        } else if (index != place_ && written_ && keep) {
            text_ += lock;
        } else if (index != place_ && !written_) {
            WriteNew();
            if (keep) {
                text_ += "." + lock;
            }
        }
        if (index != static_cast<int>(groups_.size()) - 1) {
            text_ += ".";
        }
    }

    /// The whole text without "." at its ends.
    std::string Finish() {
        if (!written_) {
            WriteNew();
        }
        const auto first = text_.find_first_not_of('.');
        const auto last = text_.find_last_not_of('.');
        return first == std::string::npos ? "" : text_.substr(first, last - first + 1);
    }

  private:
    void WriteNew() {
        text_ += change_.lock;
        written_ = true;
    }

    const Groups& groups_;
    const VoyCalChange& change_;
    bool choosing_;
    int place_;
    std::string newHead_;
    std::string text_;
    bool written_ = false;
};

}  // namespace

// Which of a group's ranges a choice belongs to is not told apart: the first one answers for all.
std::optional<VoyCalChange> ChangeOf(const std::vector<VoyCalPort>& ports, const std::string& oldId,
                                     const std::string& newId) {
    for (std::size_t i = 0; i < ports.size(); ++i) {
        const int index = IndexOfHead(ports[i].groups, oldId);
        if (index < 0) {
            continue;
        }
        const VoyCalGroup& group = ports[i].groups[static_cast<std::size_t>(index)];
        if (group.ranges.empty()) {
            return std::nullopt;
        }
        const auto& [range, alternatives] = *group.ranges.begin();
        VoyCalChange change{oldId, newId, static_cast<std::int32_t>(i), range, newId};
        change.group.append(";").append(alternatives).append("|").append(group.head.id);
        change.lock.append("=").append(UpTo(change.group, ';'));
        return change;
    }
    return std::nullopt;
}

std::optional<std::string> EntryWithLock(const VoyCalPort& port, const VoyCalChange& change, bool choosing) {
    const std::string head = port.point.id + "|" + port.rp_id_str + "|";
    if (port.lock_rp_id_str.empty()) {
        return head + change.lock;
    }
    LockText text(port.groups, change, choosing);
    if (!text.HasPlace()) {
        return std::nullopt;
    }
    for (const auto& lock : SplitAt(port.lock_rp_id_str, ".")) {
        text.Add(lock);
    }
    return head + text.Finish();
}

std::string PortIdOfEntry(const std::string& entry) {
    return UpTo(entry, '|');
}

}  // namespace Tarvik::Seaplan
