// SPDX-License-Identifier: MIT
// Every reader of the client meets the same reply text. Any bytes give a known code, no block is lost, and
// what a failure leaves behind is empty.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <tarvik/bus/HostContract.h>
#include <tarvik/core/TEvent.h>
#include <tarvik/core/TObject.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/ServerRequest.h>

#include "seaplan/protocol/BookCommands.h"
#include "seaplan/protocol/Exchange.h"
#include "seaplan/protocol/PortCallCommands.h"
#include "seaplan/protocol/RemarkList.h"
#include "seaplan/protocol/VoyCatalogModule.h"
#include "tarvik/src/core/BusTesting.h"

using namespace Tarvik;
using namespace Tarvik::Seaplan;

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// Answers every exchange with one text.
class Host : public Core::TObject {
  public:
    Host() {
        Offer(Interface::Bus::ServerExchange.name, exchange_);
        exchange_.Set<&Host::OnExchange>(this);
        Offer(Interface::Bus::CurrentTimeZone.name, zone_);
        zone_.Set<&Host::OnZone>(this);
    }
    std::string text;

  private:
    void Offer(const char* name, Core::TEvent& delegate) {
        Core::TrvKernel::Instance()->CreateTrvService(name, this, "", "", nullptr);
        Core::TrvKernel::Instance()->BindTrvService(name, &delegate);
    }
    void* OnExchange(void* input) {
        const auto* request = static_cast<const Interface::VoyServerRequest*>(input);
        Require(request->Payload()[request->length - 1] == '\0');
        auto* block = static_cast<char*>(Core::AllocateBusBlock(sizeof *request + text.size() + 1));
        std::memset(block, 0xA5, sizeof *request);
        std::memcpy(block + sizeof *request, text.c_str(), text.size() + 1);
        return block;
    }
    void* OnZone(void*) { return &zoneName_; }

    std::string zoneName_ = "China Standard Time";
    Core::TEvent exchange_;
    Core::TEvent zone_;
};

void CheckPaths() {
    Util::Jsona reply;
    const int code = SendText("{}", Interface::VoyCommand::ChangeVoyage, reply);
    Require(code == 0 || code == -2);
    ServerBlock request;
    ServerBlock answer;
    SendRemark("{}", request);
    const bool agreed = SyncServer(request, answer);
    Require(answer != nullptr);
    // What the voyage path takes for success the remark path does too, and it does not mind a bad text.
    Require(agreed || (code == 0 && !IsSuccess(reply)));
}

void CheckPortCalls() {
    PortCallRows rows(1);
    const int code = LoadPortCalls("1", rows);
    Require(code == 0 || (code <= -2 && code >= -4));
    Require((code == 0) == !rows.empty());
    static_cast<void>(SavePortCalls("1", rows));
}

void CheckBook() {
    VoyPositionBook book;
    const int code = LoadPositionBook("1", book);
    Require(code == 0 || (code <= -2 && code >= -5));
    Require(code == 0 || book.points.empty());
    std::string text;
    Require(BookRowsText("1", book.points, {0, static_cast<int>(book.points.size())}, text));
    static_cast<void>(SavePositionBookRows("1", book.points));
    std::string id;
    const int ensured = EnsurePositionBook("1", "2024-01-01 00:00:00", id);
    Require(ensured == 0 || ensured == -2 || ensured == -5 || ensured == -6);
    Require(ensured == 0 || id.empty());
}

void CheckCatalog() {
    VoyageStore store;
    VoyCatalogModule module(&store);
    std::string id;
    const int made = module.CreateCategory("a", id);
    Require(made == 0 || (made <= -2 && made >= -5));
    Require((made == 0) == !id.empty());
    std::vector<std::string> times;
    const int read = module.GetAisModTimes("1", times);
    Require(read == 0 || read == -2 || read == -3);
    Require(std::adjacent_find(times.begin(), times.end(), std::greater_equal<>()) == times.end());
    Require(read == 0 || times.empty());
}

void CheckRemarks() {
    RemarkList list;
    const bool loaded = list.LoadRemarks(3, "1");
    Require(loaded || list.Count() == 0);
    for (std::size_t i = 0; i < list.Count(); ++i) {
        const CRemark& remark = *list.At(i);
        Require(remark.type == 3 && remark.objectid == "1");
        Require(remark.udate.empty() || remark.udate.size() >= 19);
        Require(list.Find(3, "1", remark.seq) != nullptr);
    }
    int seq = 0;
    static_cast<void>(list.AddRemark(3, "1", seq, "s", "b"));
    Require(seq >= 1);
    const std::size_t before = list.Count();
    const bool known = list.Find(3, "1", seq) != nullptr;
    const bool deleted = list.DeleteRemark(3, "1", seq);
    Require(list.Count() == before - (deleted && known ? 1 : 0));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto* host = new Host;
    host->text.assign(reinterpret_cast<const char*>(data), size);
    const long blocks = Core::BusTesting::LiveBlocks();
    CheckPaths();
    CheckPortCalls();
    CheckBook();
    CheckCatalog();
    CheckRemarks();
    Require(Core::BusTesting::LiveBlocks() == blocks);
    return 0;
}
