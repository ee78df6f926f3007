// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include <tarvik/interface/ChartRecords.h>

#include "host/ports/PlaceTable.h"

namespace Tarvik::Seamap {

/// Ports and route points by id, from the table "t_point" of the host's data base; read once, at the first
/// question, and again behind Forget. A table that cannot be read is tried again at the next question.
class PortTable {
  public:
    explicit PortTable(std::string path) : path_(std::move(path)) {}
    /// The record with its id in `text`; null when the id is unknown or the data base cannot be read. Stays
    /// valid until Forget.
    const Interface::TrvMapPort* Find(const std::string& id);
    /// All rows of the table, in order of their names; empty when the data base cannot be read.
    const std::vector<Ports::Place>& Places();
    /// The data base has changed: the next question reads it.
    void Forget();
    /// The table of points below the host's folder.
    static std::string DefaultPath();

  private:
    void Load();

    std::string path_;
    bool loaded_ = false;
    std::vector<Ports::Place> places_;
    std::map<std::string, Interface::TrvMapPort> ports_;
};

}  // namespace Tarvik::Seamap
