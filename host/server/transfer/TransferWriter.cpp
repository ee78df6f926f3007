// SPDX-License-Identifier: MIT
#include "host/server/transfer/TransferWriter.h"

#include <utility>

#include <nlohmann/json.hpp>

#include "host/server/storage/contract/ServerTime.h"
#include "host/server/transfer/TransferFile.h"

namespace Tarvik::Server {

TransferWriter::TransferWriter(Sink sink, std::int64_t made) : sink_(std::move(sink)) {
    const nlohmann::ordered_json head = {
        {"format", kTransferFormat}, {"version", kTransferVersion}, {"made", UtcText(made)}};
    Write(head.dump());
}

void TransferWriter::User(const UserCopy& user) {
    Write(CopyJson::UserLine(user));
    for (const FleetRecord& vessel : user.records.fleet) {
        Write(CopyJson::VesselLine(vessel));
    }
    for (const PlaceRecord& place : user.records.places) {
        Write(CopyJson::PlaceLine(place));
    }
    for (const CategoryCopy& category : user.records.categories) {
        Write(CopyJson::CategoryLine(category));
        for (const VoyageCopy& voyage : category.voyages) {
            Write(CopyJson::VoyageLine(voyage));
        }
    }
    for (const RemarkCopy& remark : user.records.remarks) {
        Write(CopyJson::RemarkLine(remark));
    }
}

void TransferWriter::End() {
    const nlohmann::ordered_json end = {{"end", lines_}, {"sha256", checksum_.Finish()}};
    sink_(end.dump() + "\n");
}

void TransferWriter::Write(const std::string& line) {
    const std::string whole = line + "\n";
    checksum_.Add(whole);
    sink_(whole);
    ++lines_;
}

}  // namespace Tarvik::Server
