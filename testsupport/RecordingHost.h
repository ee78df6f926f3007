// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <tarvik/bus/BindingList.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/SiblingRecords.h>

namespace Tarvik::Interface {
struct TrvMapExtent;
struct TrvMapLineParams;
struct TrvMapObjectList;
struct VoyServerRequest;
}  // namespace Tarvik::Interface

namespace Tarvik::TestSupport {

/// One request as it crossed the bus, head and payload.
struct RecordedRequest {
    std::string bytes;

    std::uint32_t Length() const;
    std::uint16_t Command() const;
    std::uint16_t ModuleWord() const;
    /// Payload without its terminating NUL.
    std::string Text() const;
};

/// One call of a chart service.
struct ChartCall {
    std::string service;
    std::string id;
    std::string type;
    std::vector<std::string> points;
    std::string position;
};

/// Plays the host on the bus: answers with what the test scripted and records what it was asked. Unbinds at
/// its end.
class RecordingHost : public Core::TObject {
  public:
    RecordingHost();
    RecordingHost(const RecordingHost&) = delete;
    RecordingHost& operator=(const RecordingHost&) = delete;

    /// The next reply to `command`; replies to one command go out in order.
    void Reply(std::uint16_t command, const std::string& json) { replies_[command].push_back(json); }
    /// The next request with `command` finds no answer.
    void ReplyNothing(std::uint16_t command) { replies_[command].push_back(std::nullopt); }
    /// "command text" of every request, in order.
    std::vector<std::string> Texts() const;
    /// Texts of the requests with `command`, in order.
    std::vector<std::string> TextsOf(std::uint16_t command) const;
    /// Chart calls of one service.
    std::vector<ChartCall> ChartCallsOf(const std::string& service) const;

    bool connected = true;
    std::optional<std::string> user = "1000001";
    std::optional<std::string> zone = "China Standard Time";
    std::optional<std::vector<Interface::VesselPosition>> positions;
    /// Answers the requests for which no reply was given, after they were recorded; without it they find
    /// none.
    std::function<std::optional<std::string>(const Interface::VoyServerRequest&)> server;

    std::vector<RecordedRequest> requests;
    std::vector<ChartCall> chartCalls;
    std::vector<std::vector<std::string>> positionQueries;
    std::vector<Interface::VesselCard> vesselCards;
    std::optional<std::string> track;  ///< answer to a question for a vessel's track
    std::vector<Interface::VesselTraceRequest> trackQueries;
    std::vector<std::string> hiddenTracks;
    int logins = 0;

  private:
    void OfferHost();
    void OfferSiblings();
    void OfferChart();
    void OfferChartDeletion();
    Interface::VoyServerRequest* OnExchange(const Interface::VoyServerRequest& request);
    void OnAddLine(const Interface::TrvMapLineParams& line);
    void OnDeleteObjects(const Interface::TrvMapObjectList& list);
    void OnSetExtent(const Interface::TrvMapExtent& extent);

    std::map<std::uint16_t, std::deque<std::optional<std::string>>> replies_;
    unsigned char connectedFlag_ = 1;
    Interface::BindingList bindings_;
};

}  // namespace Tarvik::TestSupport
