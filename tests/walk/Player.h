// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "tests/walk/Client.h"
#include "tests/walk/FaultyServer.h"
#include "tests/walk/Script.h"

namespace Tarvik::Seaplan::Walk {

/// Does the steps of a script as a person would with mouse and keyboard: what is not in sight or not enabled
/// is not pressed, and a press anywhere takes what is being typed first.
class Player {
  public:
    Player(PanelDesk& desk, FaultyServer& server, Person& person);

    void Play(const Step& step);
    Client& Running() { return *client_; }
    const Client& Running() const { return *client_; }
    /// How often a client has begun with what the server has: started, or with a user who came back.
    int Beginnings() const { return beginnings_; }
    /// Where the ship is, and that it was seen: the vessel of some voyage.
    static constexpr const char* kVessel = "7";

  private:
    static constexpr std::size_t kMostVoyages = 8;

    void PlayTree(const Step& step);
    void PlayOpening(const Step& step);
    void PlayTable(const Step& step);
    void PlayButtons(const Step& step);
    void PlayWorld(const Step& step);

    // PlayerTree.cpp
    TreeRow PressedRow(int which, bool press);
    int PlaceOfVessel(int which) const;
    void Click(int which, const char* item, const char* otherwise = nullptr);
    void ClickDeleted(int which, const char* item);
    void AddVoyage();
    void Rename(const Step& step);
    void SetVessel(const Step& step);

    // PlayerTable.cpp
    void Type(int row, int column, const std::string& text, bool enter);
    void PickTime(int row, int column, int hours);
    int FilledRow(int which) const;
    int FreeRow() const;

    // Player.cpp
    void PressElsewhere();
    void PlayDistances(const Step& step);
    void SeeShip(const Step& step);
    bool ClosePanel();
    void Relogin();
    void Start();

    PanelDesk& desk_;
    FaultyServer& server_;
    Person& person_;
    std::unique_ptr<Client> client_;
    int beginnings_ = 0;
    int kept_ = 0;  ///< distance tables that were to be kept
};

}  // namespace Tarvik::Seaplan::Walk
