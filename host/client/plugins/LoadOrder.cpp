// SPDX-License-Identifier: MIT
#include "host/client/plugins/LoadOrder.h"

#include <algorithm>
#include <map>

#include <tarvik/core/Exports.h>

namespace Tarvik::Client {

namespace {

enum class Mark { Fresh, Open, Placed, Rejected };

/// Depth-first walk over the dependencies; `path_` holds the plug-ins whose dependencies are being placed.
class Resolver {
  public:
    Resolver(const std::vector<PluginRecord>& records, const Core::Version& hostVersion)
        : records_(records), host_(hostVersion), marks_(records.size(), Mark::Fresh) {}

    LoadOrder Run() {
        for (std::size_t i = 0; i < records_.size(); ++i) {
            if (records_[i].error.empty() && !byName_.emplace(records_[i].name, i).second) {
                Reject(i, "another plug-in of this name is loaded from " +
                              records_[byName_[records_[i].name]].file);
            }
        }
        // A broken one keeps no sound one from its name, but who needs it is told that it is left out.
        for (std::size_t i = 0; i < records_.size(); ++i) {
            byName_.emplace(records_[i].name, i);
        }
        for (std::size_t i = 0; i < records_.size(); ++i) {
            Place(i);
        }
        return std::move(result_);
    }

  private:
    void Reject(std::size_t index, const std::string& reason) {
        if (marks_[index] == Mark::Rejected) {
            return;
        }
        marks_[index] = Mark::Rejected;
        result_.rejected.push_back({index, records_[index].name, reason});
    }

    void Place(std::size_t index) {
        if (marks_[index] != Mark::Fresh) {
            return;
        }
        const PluginRecord& record = records_[index];
        if (!record.error.empty()) {
            return Reject(index, record.error);
        }
        marks_[index] = Mark::Open;
        path_.push_back(index);
        for (const Plugin::PluginDependency& need : record.dependencies) {
            const std::string reason = Meet(need);
            if (marks_[index] == Mark::Rejected) {
                break;
            }
            if (!reason.empty()) {
                Reject(index, reason);
                break;
            }
        }
        path_.pop_back();
        if (marks_[index] != Mark::Open) {
            return;
        }
        marks_[index] = Mark::Placed;
        result_.order.push_back(index);
    }

    /// Places what is needed; the reason why it cannot be had, empty when it can.
    std::string Meet(const Plugin::PluginDependency& need) {
        if (need.name == Plugin::kHostName) {
            return host_.AtLeast(need.version) ? "" : TooOld(need, host_);
        }
        const auto found = byName_.find(need.name);
        if (found == byName_.end()) {
            return "needs " + need.name + " " + VersionText(need.version) + ", which is missing";
        }
        const std::size_t other = found->second;
        if (marks_[other] == Mark::Open) {
            RejectCircle(other);
            return {};
        }
        Place(other);
        if (marks_[other] == Mark::Rejected) {
            return "needs " + need.name + ", which is left out";
        }
        if (!records_[other].version.AtLeast(need.version)) {
            return TooOld(need, records_[other].version);
        }
        return {};
    }

    static std::string TooOld(const Plugin::PluginDependency& need, const Core::Version& present) {
        return "needs " + need.name + " " + VersionText(need.version) + " or newer, present is " +
               VersionText(present);
    }

    void RejectCircle(std::size_t from) {
        const auto begin = std::find(path_.begin(), path_.end(), from);
        std::string circle;
        for (auto it = begin; it != path_.end(); ++it) {
            circle += records_[*it].name + " > ";
        }
        circle += records_[from].name;
        for (auto it = begin; it != path_.end(); ++it) {
            Reject(*it, "depends on itself: " + circle);
        }
    }

    const std::vector<PluginRecord>& records_;
    Core::Version host_;
    std::vector<Mark> marks_;
    std::map<std::string, std::size_t> byName_;
    std::vector<std::size_t> path_;
    LoadOrder result_;
};

}  // namespace

std::string VersionText(const Core::Version& version) {
    std::string text = std::to_string(version.major) + "." + std::to_string(version.minor);
    if (version.build >= 0) {
        text += "." + std::to_string(version.build);
    }
    if (version.revision >= 0) {
        text += "." + std::to_string(version.revision);
    }
    return text;
}

LoadOrder ResolveLoadOrder(const std::vector<PluginRecord>& records, const Core::Version& hostVersion) {
    return Resolver(records, hostVersion).Run();
}

}  // namespace Tarvik::Client
