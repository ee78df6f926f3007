// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "seaplan/panels/tests/PanelDesk.h"

namespace Tarvik::Seaplan::Walk {

/// A request that may change what is stored.
struct Write {
    std::uint16_t command = 0;
    std::string text;
    bool taken = false;     ///< the server did it
    bool answered = false;  ///< and the client was told so
};

/// Stands between the client and the desk's server, loses and refuses what it is told to, and notes what was
/// written.
class FaultyServer {
  public:
    explicit FaultyServer(PanelDesk& desk);
    ~FaultyServer();
    FaultyServer(const FaultyServer&) = delete;
    FaultyServer& operator=(const FaultyServer&) = delete;

    /// The n-th request from now on, counted from 0, is refused.
    void Refuse(int n) { refused_ = n; }
    /// From that request on none is answered, until Heal.
    void Cut(int n) { cut_ = n; }
    /// That request is done, and its answer lost.
    void LoseAnswer(int n) { lost_ = n; }
    void Heal();

    void BeginStep();
    const std::vector<Write>& Writes() const { return writes_; }
    /// Whether a request of this step was lost or refused on purpose.
    bool HasStruck() const { return struck_; }

    /// While it lives requests are the test's own: nothing befalls them, and they are not noted.
    class Aside {
      public:
        Aside(FaultyServer& server, std::string user);
        ~Aside();
        Aside(const Aside&) = delete;
        Aside& operator=(const Aside&) = delete;

      private:
        FaultyServer& server_;
        std::optional<std::string> userBefore_;
    };

  private:
    std::optional<std::string> Answer(const Interface::VoyServerRequest& request);

    PanelDesk& desk_;
    std::function<std::optional<std::string>(const Interface::VoyServerRequest&)> server_;
    int refused_ = -1;
    int cut_ = -1;
    int lost_ = -1;
    bool aside_ = false;
    bool struck_ = false;
    std::vector<Write> writes_;
};

}  // namespace Tarvik::Seaplan::Walk
