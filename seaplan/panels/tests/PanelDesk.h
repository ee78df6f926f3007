// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "seaplan/data/VoyageStore.h"

namespace Tarvik::Interface {
struct VoyServerRequest;
}

namespace Tarvik::TestSupport {
class DataFolder;
class ManualClock;
class ManualTimer;
class PortDictionary;
class RecordingHost;
class RecordingMsgSink;
}  // namespace Tarvik::TestSupport

namespace Tarvik::Seaplan {

class DeskRoutes;
class PortDirectory;
class VoyCatalogController;
class VoyCatalogModule;
class VoyController;
class VoyPortCallModule;

/// A kind of request: its command, and what the texts of this kind hold.
struct DeskRequest {
    std::uint16_t command = 0;
    const char* part = "";
};

namespace Ask {

inline constexpr DeskRequest kRoute{1};
inline constexpr DeskRequest kNearest{2};
inline constexpr DeskRequest kLoad{3};
inline constexpr DeskRequest kAddCategory{4, "type:0"};
inline constexpr DeskRequest kDeleteCategory{4, "type:\"1\""};
inline constexpr DeskRequest kRecoverCategory{4, "type:\"2\""};
inline constexpr DeskRequest kDestroyCategory{4, "type:\"3\""};
inline constexpr DeskRequest kRenameCategory{4, "type:\"4\""};
inline constexpr DeskRequest kAddVoyage{5, "type:\"0\""};
inline constexpr DeskRequest kRenameVoyage{5, "type:\"1\""};
inline constexpr DeskRequest kDeleteVoyage{5, "type:\"2\""};
inline constexpr DeskRequest kRecoverVoyage{5, "type:\"3\""};
inline constexpr DeskRequest kDestroyVoyage{5, "type:\"4\""};
inline constexpr DeskRequest kChangeVessel{5, "type:\"5\""};
inline constexpr DeskRequest kOpenRoute{5, "type:\"6\",vr:\"1\""};
inline constexpr DeskRequest kCloseRoute{5, "type:\"6\",vr:\"0\""};
inline constexpr DeskRequest kOpenAis{5, "type:\"7\",va:\"1\""};
inline constexpr DeskRequest kCloseAis{5, "type:\"7\",va:\"0\""};
inline constexpr DeskRequest kSaveFigures{6};
inline constexpr DeskRequest kLoadBook{7};
inline constexpr DeskRequest kSaveBook{9};
inline constexpr DeskRequest kAddRemark{9, "optype:\"1\""};
inline constexpr DeskRequest kDeleteRemark{9, "optype:\"2\""};
inline constexpr DeskRequest kChangeRemark{9, "optype:\"3\""};
inline constexpr DeskRequest kLoadRemarks{9, "optype:\"4\""};
inline constexpr DeskRequest kLoadPortCalls{10};
inline constexpr DeskRequest kSavePortCalls{11};
inline constexpr DeskRequest kAddAisTime{13};
inline constexpr DeskRequest kBookDate{14};

}  // namespace Ask

/// A voyage as it lies on the server.
struct DeskVoyage {
    std::string name;
    int state = InUse;
    std::string vsi{};
    std::string vsn{};
    int vsmsi = 0;
    bool pinned = false;
    bool traced = false;
    bool remark = false;
    /// Saved with their route when there are two and more; names, speeds, stays and the first `eta` count.
    PortCallRows calls{};
    std::vector<std::string> corrections{};  ///< times of corrections from AIS, in the plan's zone
};

/// What panels are tested on: the plug-in's controllers and modules over the host's bus, behind which stand
/// the real server with a data base in memory and the ways between a few ports. The present time is
/// 2024-03-01 00:00:00 UTC, the user's zone UTC+8. Arranging throws where it fails, and leaves no record.
///
/// A test includes the headers of those parts that it speaks to: so one changed part does not compile every
/// panel test anew.
class PanelDesk {
    struct Parts;
    std::unique_ptr<Parts> parts_;

  public:
    /// On a data base that goes with the desk, or on one that is kept in a file.
    explicit PanelDesk(const std::string& database = ":memory:");
    ~PanelDesk();
    PanelDesk(const PanelDesk&) = delete;
    PanelDesk& operator=(const PanelDesk&) = delete;

    // What lies on the server
    /// The new category's id.
    std::string AddCategory(const std::string& name, bool remark = false);
    /// The new voyage's id. A category of this name that is in use must be there.
    std::string AddVoyage(const std::string& category, const DeskVoyage& voyage);
    /// Moves a category with its voyages into the recycle bin, or further.
    void MoveCategory(const std::string& name, int state);
    /// Saves port calls with their route, as AddVoyage does.
    void SaveCalls(const std::string& vi, PortCallRows calls);
    /// `count` calls at ROTTERDAM, HAMBURG, GDANSK and on, 24 hours of way apart, from a day of March 2024 at
    /// 08:00:00.
    static PortCallRows Calls(int day, int count = 2);

    // What the plug-in holds
    /// Logs in and loads the tree's records, as the tree does.
    void Load();
    /// How often a service of the chart was called.
    std::size_t Drawn(const char* service) const;
    /// Records by name. They throw std::out_of_range when there is none.
    VoyCategory& Category(const std::string& name);
    VoyInfo& Voyage(const std::string& name);

    // What the server does and was asked
    /// From now on these requests are refused with an `eid`, or find no answer.
    void Refuse(DeskRequest request) { failures_.push_back({request, true}); }
    void Lose(DeskRequest request) { failures_.push_back({request, false}); }
    void Heal() { failures_.clear(); }
    /// Texts of the requests of a kind, in order; with `part` only those that hold it.
    std::vector<std::string> Sent(DeskRequest request, const std::string& part = {}) const;
    long Count(DeskRequest request, const std::string& part = {}) const;
    /// Forgets what was asked of server, chart and vessel tracks until now.
    void ForgetRecords();

    TestSupport::DataFolder& folder;
    TestSupport::ManualClock& clock;
    TestSupport::ManualTimer& timer;
    TestSupport::RecordingMsgSink& messages;
    TestSupport::RecordingHost& host;
    TestSupport::PortDictionary& names;
    VoyageStore& store;
    VoyCatalogModule& catalogModule;
    VoyCatalogController& catalog;
    PortDirectory& directory;
    VoyPortCallModule& portCallModule;
    VoyController& voyages;
    DeskRoutes* routes = nullptr;  ///< the server's

  private:
    struct Failure {
        DeskRequest request;
        bool refused = false;
    };

    std::optional<std::string> Answer(const Interface::VoyServerRequest& request);
    std::string CategoryOnServer(const std::string& name);
    void SetState(const std::string& vi, int state);

    std::vector<Failure> failures_;
};

}  // namespace Tarvik::Seaplan
