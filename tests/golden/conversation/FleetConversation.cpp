// SPDX-License-Identifier: MIT
#include <tarvik/util/Jsona.h>

#include "seaplan/protocol/Exchange.h"
#include "tests/golden/conversation/Conversation.h"

namespace Tarvik::Server {

namespace {

class FleetConversation : public Conversation {
  protected:
    FleetConversation() : Conversation("fleet") {}

    /// Asks and writes down; the result is that of the exchange.
    void Ask(const std::string& what, Interface::VoyCommand command, const std::string& text) {
        Util::Jsona reply;
        Note(what, Seaplan::SendText(text, command, reply));
    }
    void Change(const std::string& what, const std::string& text) {
        Ask(what, Interface::VoyCommand::ChangeFleet, text);
    }
    void Load(const std::string& what = "load the fleet") {
        Ask(what, Interface::VoyCommand::LoadFleet, R"({ui:"ann"})");
    }
};

TEST_F(FleetConversation, IsAsItWasRecorded) {
    const std::string numbers = R"(,vsmsi:"477123456",vsimo:"9134270",vscs:"VRAB2")";
    const std::string figures = R"(,vst:"Bulk carrier",vsl:"229.5",vsp:"25.928"})";
    const std::string unknown = R"(,vsmsi:"0",vsimo:"0",vscs:"",vst:"",vsl:"0",vsp:"0"})";
    Load("load the fleet of a user who has none");
    Change("add a vessel", R"({vsi:"",type:"0",vsn:"Meridian")" + numbers + figures);
    Change("add one of which only the name is known", R"({vsi:"",type:"0",vsn:"木筏")" + unknown);
    Change("add one without a name", R"({vsi:"",type:"0",vsn:"")" + unknown);
    Change("add one with an MMSI that is none",
           R"({vsi:"",type:"0",vsn:"x",vsmsi:"47712345",vsimo:"0",vscs:"")" + figures);
    Change("add one with a wrong check digit",
           R"({vsi:"",type:"0",vsn:"x",vsmsi:"0",vsimo:"9134271",vscs:"")" + figures);
    Change("add one with a quote", R"({vsi:"",type:"0",vsn:"the "x"")" + unknown);
    Load();
    Change("change one", R"({vsi:"1000002",type:"1",vsn:"Ferry")" + numbers + figures);
    Change("change one that is not there", R"({vsi:"7",type:"1",vsn:"Ferry")" + numbers + figures);
    Load();
    Change("remove one", R"({vsi:"1000001",type:"2"})");
    Change("remove it again", R"({vsi:"1000001",type:"2"})");
    Load();
    host.user = "bob";
    Change("another user removes one", R"({vsi:"1000002",type:"2"})");
    Load("another user loads the fleet");
}

}  // namespace
}  // namespace Tarvik::Server
