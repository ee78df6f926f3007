// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "seaplan/controllers/VoyageRecords.h"
#include "tests/walk/Player.h"
#include "tests/walk/Stored.h"

/// What may become of what a person typed and of what is stored, told without looking into the product: by
/// what was in sight before a step, what was asked and answered in it, and what went to the server.
namespace Tarvik::Seaplan::Walk {

/// What a person entered in a row of the table.
struct EnteredRow {
    int row = 0;  ///< of the table
    std::string port;
    std::string purpose;
    double knots = 0;
    double weather = 0;
    double hoursInPort = 0;
};

/// The panel as a person saw it.
struct Sight {
    bool visible = false;
    bool marked = false;
    bool unread = false;
    std::optional<std::pair<int, std::string>> typed;  ///< table row and text of a port that is being typed
    std::string voyage;
    std::vector<EnteredRow> rows;
    std::vector<std::string> miles;
    std::string start;  ///< ETA of the first row, blank before a calculation
    bool nameOpen = false;
    bool vesselOpen = false;

    std::vector<std::string> Ports() const;
    bool IsTyping() const { return typed.has_value(); }
    /// The ports as they are once what is being typed is taken.
    std::vector<std::string> PortsTaken() const;
};

Sight Look(const Client& client);

/// What happened in a step.
struct Happened {
    const Step& step;
    const Client& client;
    const Person& person;
    const FaultyServer& server;
    const Sight& before;
    const Sight& after;
    const Stored& storedBefore;
    const Stored& stored;

    /// The distance table on show has become a voyage.
    bool IsKept() const {
        return step.act == Act::KeepTable && before.voyage == kDistanceTableId &&
               after.voyage != before.voyage;
    }
};

class Rules {
  public:
    /// What is wrong after a step, empty for nothing. Called once for each step, in order.
    std::string FaultOf(const Happened& step);
    /// The client was started anew, or its user came back: it knows what the server knows.
    void NoteFreshClient() { uncertain_.clear(); }

  private:
    void NoteWrites(const Happened& step);
    void NoteCorrections(const Happened& step);
    void NoteShown(const Happened& step);
    std::string FaultOfWriting(const Happened& step) const;
    std::string FaultOfRecords(const Happened& step) const;
    std::string FaultOfReplacing(const Happened& step) const;
    std::string FaultOfStored(const Happened& step) const;
    std::string FaultOfLoss(const Happened& step) const;
    std::string FaultOfSaved(const Happened& step) const;
    std::string FaultOfKept(const Happened& step) const;
    std::string FaultOfSight(const Happened& step) const;
    std::string FaultOfTree(const Happened& step) const;

    std::set<std::string> torn_;       ///< a save broke off, by a fault
    std::set<std::string> uncertain_;  ///< the client was not told of a write
    std::set<std::string> corrected_;  ///< from the ship's positions
    bool seen_ = false;                ///< the person has seen the stored rows of the voyage on show
    bool treeLoose_ = false;           ///< a command of the tree broke off
};

}  // namespace Tarvik::Seaplan::Walk
