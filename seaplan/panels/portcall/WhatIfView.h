// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace Tarvik::Seaplan {

/// The questions of the strip below the table, in the order of its lines.
enum class WhatIfLine { Departure, OneSpeed, Faster, Slower };
inline constexpr std::size_t kWhatIfLines = 4;

/// What the strip shows.
struct WhatIfState {
    /// The answer to one question, told before it is taken.
    struct Line {
        std::string text{};
        bool canTake = false;  ///< it would change something
        friend bool operator==(const Line&, const Line&) = default;
    };
    bool open = false;
    std::vector<std::string> ports{};        ///< whose arrival can be asked about
    int port = -1;                           ///< of these, the one that is asked about
    std::string arrival{};                   ///< wanted there, as it was typed or as the table has it
    std::array<Line, kWhatIfLines> lines{};  ///< by WhatIfLine
    std::string note{};                      ///< why there are no answers, empty where there are

    friend bool operator==(const WhatIfState&, const WhatIfState&) = default;
};

/// The strip on the screen. It shows what it is told and reports what the person does.
class WhatIfView {
  public:
    virtual ~WhatIfView() = default;
    virtual void ShowWhatIf(const WhatIfState& state) = 0;
};

}  // namespace Tarvik::Seaplan
