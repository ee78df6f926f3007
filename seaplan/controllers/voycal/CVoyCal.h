// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>

#include "seaplan/controllers/voycal/VoyCalChange.h"
#include "seaplan/controllers/voycal/VoyCalRecords.h"
#include "seaplan/data/PortDirectory.h"

namespace Tarvik::Seaplan {

/// A route calculator of its own, offered on the bus as TRV_S_CAL_VOYAGE: takes port ids joined by ",", draws
/// the route of a stored reply and lets its route points be exchanged by clicks. The answer points to a
/// VoyCalResult that stays the calculator's and holds until the next call.
class CVoyCal : public Core::TObject {
  public:
    /// Takes the route points over once; a directory that cannot read them leaves none.
    CVoyCal(PortDirectory& ports, std::string reply);
    ~CVoyCal() override;
    CVoyCal(const CVoyCal&) = delete;
    CVoyCal& operator=(const CVoyCal&) = delete;
    /// The plug-in's calculator over the host's data and the stored sample. The composition root makes it.
    static CVoyCal* Instance();

    /// What the last calculation gave; `valid` is 0 before the first.
    const VoyCalResult& Result() const { return result_; }
    /// One entry a port: its id, or "id|points passed|locks" behind a change. Empty without a calculation.
    const std::vector<std::string>& Ids() const { return ids_; }
    /// The ports with the ways between them; empty without a calculation.
    const std::vector<VoyCalPort>& Ports() const { return ports_; }
    /// The route point whose alternatives are shown, empty for none.
    const std::string& SelectedPoint() const { return selected_; }

    /// Name of a language number as sites write it: 1028 "zh-TW", 2052 "zh-CN", any other "en-US".
    static std::string LanguageCode(int language);
    /// Address of one of the host's sites by its key, `fallback` when the host has none.
    static std::string SiteAddress(const std::string& key, const std::string& fallback);

  private:
    const VoyCalResult* OnCalculate(const std::string* text);
    const char* OnPointClicked(const std::string& id);
    const char* OnAlternativeClicked(const std::string& id);
    void Reset();
    void Calculate(std::vector<std::string> ids);
    void AskPorts();
    void Draw();
    void LabelPoints();
    void SendExtent();
    void ApplyChange(const std::string& newId);
    void CalculateAgain();
    bool ShowAlternatives(const std::string& id);

    VoyCalPoints points_;
    std::string reply_;
    std::vector<VoyCalPort> ports_;
    std::vector<std::string> ids_;
    VoyCalResult result_;
    VoyCalChange change_;
    std::string mode_;  ///< "case3" behind a change
    std::string selected_;
    Interface::TrvMapExtent extent_;
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::Seaplan
