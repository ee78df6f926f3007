// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tarvik/util/Jsona.h>

#include "host/server/api/RecordRules.h"

namespace Tarvik::Server {

/// Keys of the consumption figures in their order on the wire.
inline constexpr std::array<std::string_view, 7> kFigureKeys = {"vfn", "vff", "vfa", "vdn",
                                                                "vda", "vwn", "vwa"};

/// The members of a request object. A member that is not there or not of the form asked for refuses the
/// request.
class RequestFields {
  public:
    /// Refuses a text that does not parse or is no object.
    explicit RequestFields(std::string_view text);

    /// A text of at most `most` bytes.
    std::string Text(std::string_view key, std::size_t most = kMaxNameBytes) const;
    /// A text that is not empty.
    std::string Name(std::string_view key) const;
    /// A text that holds a whole number between the limits.
    std::int32_t Number(std::string_view key, std::int32_t least, std::int32_t most) const;
    /// A text that holds a number with or without a fraction.
    double Decimal(std::string_view key) const;
    /// A text "0" or "1".
    bool Flag(std::string_view key) const { return Number(key, 0, 1) == 1; }
    /// A time text.
    std::string Time(std::string_view key) const;
    /// The operation of a command: a whole number, as it stands or as a text.
    int Operation(std::string_view key) const;

  private:
    Util::Jsona root_;
};

/// Refuses a request of everything that a user has, `{ui:"anna"}`, of whoever is not that user.
void CheckUser(std::string_view request, const std::string& user);

/// Refuses a text that is longer than `most` bytes or holds a zero byte, which not every data base can keep.
void CheckText(std::string_view text, std::size_t most, std::string_view key);

/// The texts of a request that is an array of texts. Refuses anything else, and an array of fewer than
/// `least` texts.
std::vector<std::string> ReadTexts(std::string_view request, std::size_t least);

/// One row "number|port id|port name|purpose|speed|weather factor|hours in port", speed in km/h.
PortCallRecord ReadPortCall(std::string_view row);

/// One row "number|name|longitude|latitude|sailing|spacing|speed|kind", degrees and km/h.
BookRowRecord ReadBookRow(std::string_view row);

}  // namespace Tarvik::Server
