// SPDX-License-Identifier: MIT
#include <cstdint>
#include <stdexcept>
#include <utility>

#include <nlohmann/json.hpp>

#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server::CopyJson {

namespace {

using Json = nlohmann::ordered_json;

/// A whole number that its record can hold; the JSON library would cut it silently.
template <class Number>
Number Whole(const Json& value) {
    if (!value.is_number_integer()) {
        throw std::out_of_range("a whole number is expected");
    }
    if (value.is_number_unsigned()) {
        const auto wide = value.get<std::uint64_t>();
        if (!std::in_range<Number>(wide)) {
            throw std::out_of_range("a number is too large");
        }
        return static_cast<Number>(wide);
    }
    const auto wide = value.get<std::int64_t>();
    if (!std::in_range<Number>(wide)) {
        throw std::out_of_range("a number is too small");
    }
    return static_cast<Number>(wide);
}

double Real(const Json& value) {
    if (!value.is_number()) {
        throw std::out_of_range("a number is expected");
    }
    return value.get<double>();
}

std::string Text(const Json& value) {
    return value.get_ref<const std::string&>();
}

DeletionState State(const Json& value) {
    const int state = Whole<int>(value);
    if (state != 0 && state != 1) {
        throw std::out_of_range("a state is 0 or 1");
    }
    return static_cast<DeletionState>(state);
}

const Json& Row(const Json& value, std::size_t size) {
    if (!value.is_array() || value.size() != size) {
        throw std::out_of_range("a row has another length");
    }
    return value;
}

Json WriteBook(const BookRecord& book) {
    Json rows = Json::array();
    for (const BookRowRecord& row : book.rows) {
        rows.push_back(Json::array({row.order, row.name, row.longitude, row.latitude, row.sailing,
                                    row.spacing, row.speedKmh, row.kind}));
    }
    return {{"id", book.id}, {"date", book.date}, {"rows", std::move(rows)}};
}

BookRecord ReadBook(const Json& value) {
    BookRecord book{Text(value.at("id")), Text(value.at("date")), {}};
    for (const Json& item : value.at("rows")) {
        const Json& row = Row(item, 8);
        book.rows.push_back({Whole<std::int32_t>(row[0]), Text(row[1]), Real(row[2]), Real(row[3]),
                             Text(row[4]), Whole<std::int32_t>(row[5]), Real(row[6]),
                             Whole<std::int32_t>(row[7])});
    }
    return book;
}

Json WriteCalls(const std::vector<PortCallRecord>& calls) {
    Json rows = Json::array();
    for (const PortCallRecord& call : calls) {
        rows.push_back(Json::array({call.order, call.portId, call.portName, call.purpose, call.speedKmh,
                                    call.weatherFactor, call.hoursInPort}));
    }
    return rows;
}

std::vector<PortCallRecord> ReadCalls(const Json& value) {
    std::vector<PortCallRecord> calls;
    for (const Json& item : value) {
        const Json& row = Row(item, 7);
        calls.push_back({Whole<std::int32_t>(row[0]), Text(row[1]), Text(row[2]), Text(row[3]), Real(row[4]),
                         Real(row[5]), Real(row[6])});
    }
    return calls;
}

}  // namespace

std::string UserLine(const UserCopy& user) {
    Json line = {{"user", user.records.owner}};
    if (user.account) {
        line["password"] = user.account->passwordHash;
        line["disabled"] = user.account->disabled;
    }
    return line.dump();
}

std::string CategoryLine(const CategoryCopy& category) {
    return Json{
        {"category", category.id}, {"name", category.name}, {"state", static_cast<int>(category.state)}}
        .dump();
}

std::string VoyageLine(const VoyageCopy& copy) {
    const VoyageRecord& voyage = copy.voyage;
    Json line = {{"voyage", voyage.id}, {"name", voyage.name}};
    line["vessel"] = Json::array({voyage.vessel.id, voyage.vessel.name, voyage.vessel.mmsi});
    line["route"] = voyage.routeShown;
    line["ais"] = voyage.aisTraced;
    line["figures"] = voyage.figures;
    line["state"] = static_cast<int>(voyage.state);
    line["times"] = copy.aisTimes;
    line["calls"] = WriteCalls(copy.calls);
    if (copy.book) {
        line["book"] = WriteBook(*copy.book);
    }
    return line.dump();
}

std::string RemarkLine(const RemarkCopy& copy) {
    Json line;
    line["remark"] = Json::array({copy.object.type, copy.object.id, copy.remark.seq});
    line["subject"] = copy.remark.subject;
    line["body"] = copy.remark.body;
    line["created"] = copy.remark.created;
    line["updated"] = copy.remark.updated;
    return line.dump();
}

std::string VesselLine(const FleetRecord& vessel) {
    return Json{{"vessel", vessel.id},           {"name", vessel.name},
                {"mmsi", vessel.mmsi},           {"imo", vessel.imo},
                {"callsign", vessel.callSign},   {"type", vessel.type},
                {"length", vessel.lengthMetres}, {"speed", vessel.speedKmh}}
        .dump();
}

std::string PlaceLine(const PlaceRecord& place) {
    Json line = {{"place", place.id}, {"name", place.name}};
    line["position"] = Json::array({place.longitude, place.latitude});
    return line.dump();
}

UserCopy ReadUser(const Json& line) {
    UserCopy user;
    user.records.owner = Text(line.at("user"));
    if (line.contains("password")) {
        user.account = AccountCopy{Text(line.at("password")), line.at("disabled").get<bool>()};
    }
    return user;
}

CategoryCopy ReadCategory(const Json& line) {
    return {Text(line.at("category")), Text(line.at("name")), State(line.at("state")), {}};
}

VoyageCopy ReadVoyage(const Json& line) {
    VoyageCopy copy;
    copy.voyage.id = Text(line.at("voyage"));
    copy.voyage.name = Text(line.at("name"));
    const Json& vessel = Row(line.at("vessel"), 3);
    copy.voyage.vessel = {Text(vessel[0]), Text(vessel[1]), Whole<std::int32_t>(vessel[2])};
    copy.voyage.routeShown = line.at("route").get<bool>();
    copy.voyage.aisTraced = line.at("ais").get<bool>();
    const Json& figures = Row(line.at("figures"), copy.voyage.figures.size());
    for (std::size_t i = 0; i < figures.size(); ++i) {
        copy.voyage.figures[i] = Whole<std::int32_t>(figures[i]);
    }
    copy.voyage.state = State(line.at("state"));
    for (const Json& time : line.at("times")) {
        copy.aisTimes.push_back(Text(time));
    }
    copy.calls = ReadCalls(line.at("calls"));
    if (line.contains("book")) {
        copy.book = ReadBook(line.at("book"));
    }
    return copy;
}

RemarkCopy ReadRemark(const Json& line) {
    const Json& name = Row(line.at("remark"), 3);
    return {{Whole<int>(name[0]), Text(name[1])},
            {Whole<std::int32_t>(name[2]), Text(line.at("subject")), Text(line.at("body")),
             Whole<std::int64_t>(line.at("created")), Whole<std::int64_t>(line.at("updated"))}};
}

FleetRecord ReadVessel(const Json& line) {
    return {Text(line.at("vessel")),
            Text(line.at("name")),
            Whole<std::int32_t>(line.at("mmsi")),
            Whole<std::int32_t>(line.at("imo")),
            Text(line.at("callsign")),
            Text(line.at("type")),
            Real(line.at("length")),
            Real(line.at("speed"))};
}

PlaceRecord ReadPlace(const Json& line) {
    const Json& position = Row(line.at("position"), 2);
    return {Text(line.at("place")), Text(line.at("name")), Real(position[0]), Real(position[1])};
}

}  // namespace Tarvik::Server::CopyJson
