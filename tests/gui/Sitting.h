// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/gui/ChildProcess.h"
#include "tests/gui/ClientTree.h"
#include "tests/gui/Person.h"

namespace Tarvik::Programs {

/// A place within a window, in pixels.
struct Place {
    int x;
    int y;
};

/// One run of the client on a display, from its start to its end. In English and light, so that places and
/// colours are known.
class Sitting {
  public:
    /// Whose data folder it is: somebody's who has begun, or nobody's yet, who is asked how to begin.
    enum class Folder { Begun, New };

    Sitting(const ClientTree& client, const Person& person, const std::string& display,
            Folder folder = Folder::Begun);
    /// Photographs the screen when the test has failed and SEAPLAN_TEST_PICTURES names a folder.
    ~Sitting();
    Sitting(const Sitting&) = delete;
    Sitting& operator=(const Sitting&) = delete;

    /// Opens the voyage panel from the toolbar.
    void OpenVoyages();
    void ClickVoyages(const Place& place) const { person_.Click(voyages, place.x, place.y); }
    /// Opens the port calls of the selected voyage and waits until the panel is drawn.
    void OpenPortCalls(const Place& place);
    /// With an empty data base: names the category that comes with the panel "Tankers" and makes a voyage
    /// "Winter" in it.
    void MakeVoyage();
    /// Opens the port calls of that voyage, which has none yet.
    void OpenEmptyPortCalls();
    /// Types port names into the first cells of the table.
    void TypePorts(const std::vector<std::string>& ports) const;
    /// Tells the program to end, which asks when something is not saved.
    void AskToLeave() const;
    Ended AwaitEnd() { return process_.Wait(); }
    /// Ends the program as a person does and waits for its end.
    Ended Leave();

    std::string main;
    std::string voyages;
    std::string portCalls;

  private:
    void Rename(const std::string& name) const;
    void Await(const std::string& sql, long number) const;

    const ClientTree& client_;
    const Person& person_;
    ChildProcess process_;
};

}  // namespace Tarvik::Programs
