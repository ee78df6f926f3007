// SPDX-License-Identifier: MIT
#include "tests/walk/Walk.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/tests/KeyTexts.h"
#include "tests/walk/Rules.h"
#include "tests/walk/World.h"

namespace Tarvik::Seaplan::Walk {

namespace {

/// One world: a server with its voyages, a person, and a client that may come and go.
class World {
  public:
    World() {
        Arrange(desk_);
        stored_ = ReadStored(desk_, server_, kUser);
        player_ = std::make_unique<Player>(desk_, server_, person_);
    }

    /// What is wrong after the step, empty for nothing.
    std::string Take(const Step& step) {
        server_.BeginStep();
        person_.asked.clear();
        const Sight before = Look(player_->Running());
        const int beginnings = player_->Beginnings();
        player_->Play(step);
        if (player_->Beginnings() > beginnings) {
            rules_.NoteFreshClient();
        }
        if (!server_.Writes().empty()) {
            last_ = std::exchange(stored_, ReadStored(desk_, server_, kUser, stored_));
        }
        const Stored& last = server_.Writes().empty() ? stored_ : last_;
        const Sight after = Look(player_->Running());
        return rules_.FaultOf({step, player_->Running(), person_, server_, before, after, last, stored_});
    }

    void Count(Tally& tally) const {
        for (const Person::Asked& box : person_.asked) {
            ++tally[box.text + (!box.question ? "" : box.yes ? " yes" : " no")];
        }
        for (const Write& write : server_.Writes()) {
            const char* outcome = write.answered ? " done"
                                  : write.taken  ? " done without an answer"
                                                 : " refused";
            ++tally[std::to_string(write.command) + outcome];
        }
        tally["struck"] += server_.HasStruck() ? 1 : 0;
        const Client& client = player_->Running();
        const bool changed = client.view.state.changed;
        tally["changed table"] += changed && client.panel.Sheet().IsUnkeptTable() ? 1 : 0;
        tally["taken back"] += client.view.edits.redo.empty() ? 0 : 1;
        for (const auto& [vi, voyage] : stored_) {
            tally["table kept"] += voyage.name.starts_with("Kept ") && !voyage.rows.empty() ? 1 : 0;
        }
        tally["marked"] += player_->Running().view.state.changed ? 1 : 0;
        for (const auto& [vi, voyage] : player_->Running().store.voyages) {
            tally["corrected"] += voyage.modais > 0 ? 1 : 0;
        }
    }

    /// Whether the server holds what the walk believes, at its end.
    std::string End() {
        const Stored now = ReadStored(desk_, server_, kUser);
        const bool same = std::equal(
            now.begin(), now.end(), stored_.begin(), stored_.end(), [](const auto& a, const auto& b) {
                return a.first == b.first && a.second.Record() == b.second.Record() &&
                       a.second.schedule == b.second.schedule;
            });
        return same ? "" : "something was stored by a request that only reads";
    }

  private:
    static constexpr const char* kUser = "1000001";

    KeyTexts texts_;
    PanelDesk desk_;
    FaultyServer server_{desk_};
    Person person_;
    Rules rules_;
    Stored stored_;
    Stored last_;  ///< before the step that wrote last
    std::unique_ptr<Player> player_;
};

}  // namespace

std::optional<WalkFault> FaultIn(const Script& script, Tally* tally) {
    World world;
    for (std::size_t i = 0; i < script.size(); ++i) {
        const std::string what = world.Take(script[i]);
        if (tally != nullptr) {
            world.Count(*tally);
        }
        if (!what.empty()) {
            return WalkFault{i, what};
        }
    }
    const std::string what = world.End();
    return what.empty() ? std::nullopt : std::optional<WalkFault>({script.size(), what});
}

Script Shrunk(Script script) {
    const auto fails = [](const Script& tried) { return FaultIn(tried).has_value(); };
    if (const auto fault = FaultIn(script); fault && fault->step + 1 < script.size()) {
        script.resize(fault->step + 1);
    }
    for (std::size_t part = std::max<std::size_t>(script.size() / 2, 1); part > 0; part /= 2) {
        for (std::size_t begin = 0; begin < script.size();) {
            Script shorter = script;
            const auto from = shorter.begin() + static_cast<std::ptrdiff_t>(begin);
            shorter.erase(from, from + static_cast<std::ptrdiff_t>(std::min(part, script.size() - begin)));
            if (!shorter.empty() && fails(shorter)) {
                script = std::move(shorter);
            } else {
                begin += part;
            }
        }
    }
    return script;
}

std::string Report(std::uint64_t seed, const WalkFault& fault) {
    const Script script = RandomScript(seed, kSteps);
    const Script shrunk = Shrunk(script);
    const auto left = FaultIn(shrunk);
    std::string text = "seed " + std::to_string(seed) + ", step " + std::to_string(fault.step) + " of " +
                       std::to_string(script.size()) + ": " + fault.what + "\n";
    text +=
        "the steps so far:\n" +
        TextOf(Script(script.begin(),
                      script.begin() + static_cast<std::ptrdiff_t>(std::min(fault.step + 1, script.size()))));
    text += "the shortest script that fails:\n" + TextOf(shrunk);
    text += left ? "with: " + left->what + "\n" : "";
    return text;
}

}  // namespace Tarvik::Seaplan::Walk
