// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "host/server/storage/contract/TransferStorage.h"

namespace Tarvik::Server {

/// The form of a file of exported users: UTF-8, one JSON object a line.
///
///   {"format":"seaplan-users","version":1,"made":"2026-11-21T10:00:00Z"}
///   {"user":"anna","password":"$argon2id$…","disabled":false}
///   {"vessel":"1000004","name":"Meridian","mmsi":477123456,"imo":9134270,"callsign":"VRAB2","type":"Tanker",
///    "length":229.0,"speed":25.928}                                                 (one line)
///   {"place":"1000005","name":"Berth 7","position":[4.05,51.98]}
///   {"category":"1000001","name":"2026","state":0}
///   {"voyage":"1000002","name":"North","vessel":["","",0],"route":false,"ais":false,
///    "figures":[0,0,0,0,0,0,0],"state":0,"times":[…],"calls":[[…],…],"book":{…}}      (one line)
///   {"remark":[3,"1000002",1],"subject":"…","body":"…","created":1772323200,"updated":1772323200}
///   {"end":5,"sha256":"…"}
///
/// A user's vessels, own ports and categories come behind the user, voyages behind their category, remarks
/// behind both. "password" and "disabled" stand there only when accounts were exported. A state is 0 in use
/// or 1 in the bin. A call is number, port id, port name, purpose, km/h, weather factor, hours in port; a
/// book's row is number, name, longitude, latitude, sailing, spacing, km/h, kind; a vessel has metres and
/// km/h. The last line tells the count of the lines before it and the checksum of their bytes, line ends
/// included.
inline constexpr const char* kTransferFormat = "seaplan-users";
inline constexpr int kTransferVersion = 1;

/// The user whom everything in a client's own data base belongs to.
inline constexpr const char* kClientUser = "local";

/// The account of an exported user.
struct AccountCopy {
    std::string passwordHash;
    bool disabled = false;
};

/// One user of a file.
struct UserCopy {
    std::optional<AccountCopy> account;
    OwnerCopy records;
};

/// What a file holds, known when it was read whole.
struct TransferContent {
    struct User {
        std::string name;
        std::optional<AccountCopy> account;
    };
    std::vector<User> users;
    std::int64_t lowestId =
        0;  ///< of all categories, voyages, books, vessels and own ports; 0 when there are none
    std::int64_t highestId = 0;  ///< the same
    std::size_t categories = 0;
    std::size_t voyages = 0;
    std::size_t remarks = 0;
    std::size_t vessels = 0;
    std::size_t places = 0;
};

/// Counts what a user has.
void Count(const OwnerCopy& records, TransferContent& content);

/// "2 users, 5 categories, 40 voyages, 3 remarks", and ", 6 vessels, 2 own ports" where there are any.
std::string Summary(const TransferContent& content);

/// SHA-256 over bytes that come piece by piece.
class Checksum {
  public:
    Checksum();
    ~Checksum();
    Checksum(const Checksum&) = delete;
    Checksum& operator=(const Checksum&) = delete;

    void Add(std::string_view bytes);
    /// 64 hexadecimal digits, of what was added so far; nothing can be added afterwards.
    std::string Finish();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

/// Records as objects of a line and back. Reading throws what the JSON library throws when a member is
/// missing or of another kind, and std::out_of_range for a number that its record cannot hold.
namespace CopyJson {

std::string UserLine(const UserCopy& user);
std::string CategoryLine(const CategoryCopy& category);
std::string VoyageLine(const VoyageCopy& copy);
std::string RemarkLine(const RemarkCopy& copy);
std::string VesselLine(const FleetRecord& vessel);
std::string PlaceLine(const PlaceRecord& place);

UserCopy ReadUser(const nlohmann::ordered_json& line);
CategoryCopy ReadCategory(const nlohmann::ordered_json& line);
VoyageCopy ReadVoyage(const nlohmann::ordered_json& line);
RemarkCopy ReadRemark(const nlohmann::ordered_json& line);
FleetRecord ReadVessel(const nlohmann::ordered_json& line);
PlaceRecord ReadPlace(const nlohmann::ordered_json& line);

}  // namespace CopyJson

}  // namespace Tarvik::Server
