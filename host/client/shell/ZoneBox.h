// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <string>

namespace Tarvik::Client {

class ZonesLeft;

/// Chooses a time zone: from the list, or from what is left of it while words of a city, a country or an
/// offset are typed.
class ZoneBox : public QComboBox {
    Q_OBJECT
  public:
    /// `language` is the one in which places are told; `current` is shown at first.
    ZoneBox(const std::string& language, const std::string& current, QWidget* parent);
    /// What stands in the field: a zone's name, or what was typed so far.
    std::string Zone() const;
    /// Whether that is a zone.
    bool IsRight() const;
    /// Takes the zone whose name was typed in any case, or the only one that the typed words leave.
    void TakeMatch();

  private:
    ZonesLeft* left_ = nullptr;  ///< the zones that answer to what is typed
};

}  // namespace Tarvik::Client
