// SPDX-License-Identifier: MIT
#include "host/server/api/Replies.h"

#include "host/server/api/JsonWriter.h"
#include "host/server/api/Numbers.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server::Replies {

namespace {

void WriteVoyage(JsonWriter& out, const VoyageRecord& voyage) {
    out.BeginObject().TextMember("vi", voyage.id).TextMember("vn", voyage.name);
    out.TextMember("vsi", voyage.vessel.id).TextMember("vsn", voyage.vessel.name);
    out.NumberMember("vsmsi", voyage.vessel.mmsi);
    out.NumberMember("vr", voyage.routeShown ? 1 : 0).NumberMember("va", voyage.aisTraced ? 1 : 0);
    for (std::size_t i = 0; i < voyage.figures.size(); ++i) {
        out.NumberMember(kFigureKeys[i], voyage.figures[i]);
    }
    out.NumberMember("vrk", voyage.hasRemark ? 1 : 0).NumberMember("modais", voyage.aisTimes);
    out.NumberMember("vd", static_cast<int>(voyage.state)).EndObject();
}

void WriteBookRow(JsonWriter& out, const BookRowRecord& row) {
    out.BeginObject().Key("lon").Integer(row.order).TextMember("psn", row.name);
    out.Key("xc").Fraction(row.longitude).Key("yc").Fraction(row.latitude);
    out.TextMember("psr", row.sailing).NumberMember("pli", row.spacing);
    out.TextMember("psp", PrintDecimal(row.speedKmh, 3)).NumberMember("pst", row.kind).EndObject();
}

/// The detail without what exceeds a readable length, cut between two characters.
std::string_view Shorten(std::string_view detail) {
    constexpr std::size_t kMost = 200;
    if (detail.size() <= kMost) {
        return detail;
    }
    std::size_t end = kMost;
    while (end > 0 && (static_cast<unsigned char>(detail[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    return detail.substr(0, end);
}

}  // namespace

std::string Success() {
    return R"({"eid":0})";
}

std::string Created(std::string_view key, std::string_view id) {
    JsonWriter out;
    out.BeginObject().Key("eid").Integer(0).TextMember(key, id).EndObject();
    return out.Take();
}

std::string Error(ErrorCode code, std::string_view detail) {
    std::string text(TextOf(code));
    if (!detail.empty()) {
        text.append(": ").append(Shorten(detail));
    }
    JsonWriter out;
    out.BeginObject().Key("eid").Integer(static_cast<int>(code)).TextMember("emsg", text).EndObject();
    return out.Take();
}

std::string Catalog(const std::vector<CategoryRecord>& categories) {
    JsonWriter out;
    out.BeginArray();
    for (const CategoryRecord& category : categories) {
        out.BeginObject().TextMember("ci", category.id).TextMember("cn", category.name);
        out.NumberMember("crk", category.hasRemark ? 1 : 0)
            .NumberMember("cd", static_cast<int>(category.state));
        out.Key("voys").BeginArray();
        for (const VoyageRecord& voyage : category.voyages) {
            WriteVoyage(out, voyage);
        }
        out.EndArray().EndObject();
    }
    out.EndArray();
    return out.Take();
}

std::string Book(const std::optional<BookRecord>& book) {
    JsonWriter out;
    out.BeginArray();
    if (book) {
        out.BeginObject().TextMember("pbi", book->id).TextMember("eta", book->date).Key("pb").BeginArray();
        for (const BookRowRecord& row : book->rows) {
            WriteBookRow(out, row);
        }
        out.EndArray().EndObject();
    }
    out.EndArray();
    return out.Take();
}

std::string PortCalls(const std::vector<PortCallRecord>& calls) {
    JsonWriter out;
    out.BeginArray();
    for (const PortCallRecord& call : calls) {
        out.BeginObject().NumberMember("lon", call.order).TextMember("ppi", call.portId);
        out.TextMember("ppn", call.portName).TextMember("pp", call.purpose);
        out.TextMember("psp", PrintDecimal(call.speedKmh, 3));
        out.TextMember("pw", PrintDecimal(call.weatherFactor, 3));
        out.TextMember("apt", PrintDecimal(call.hoursInPort, 1)).EndObject();
    }
    out.EndArray();
    return out.Take();
}

std::string Fleet(const std::vector<FleetRecord>& fleet) {
    JsonWriter out;
    out.BeginArray();
    for (const FleetRecord& vessel : fleet) {
        out.BeginObject().TextMember("vsi", vessel.id).TextMember("vsn", vessel.name);
        out.NumberMember("vsmsi", vessel.mmsi).NumberMember("vsimo", vessel.imo);
        out.TextMember("vscs", vessel.callSign).TextMember("vst", vessel.type);
        out.TextMember("vsl", PrintDecimal(vessel.lengthMetres, 1));
        out.TextMember("vsp", PrintDecimal(vessel.speedKmh, 3)).EndObject();
    }
    out.EndArray();
    return out.Take();
}

std::string Places(const std::vector<PlaceRecord>& places) {
    JsonWriter out;
    out.BeginArray();
    for (const PlaceRecord& place : places) {
        out.BeginObject().TextMember("ppi", place.id).TextMember("ppn", place.name);
        out.Key("xc").Fraction(place.longitude).Key("yc").Fraction(place.latitude).EndObject();
    }
    out.EndArray();
    return out.Take();
}

std::string AisTimes(const std::vector<std::string>& times) {
    JsonWriter out;
    out.BeginObject().Key("times").BeginArray();
    for (const std::string& time : times) {
        out.Text(time);
    }
    out.EndArray().EndObject();
    return out.Take();
}

std::string Remarks(const std::vector<RemarkRecord>& remarks) {
    JsonWriter out;
    out.BeginArray();
    for (const RemarkRecord& remark : remarks) {
        out.BeginObject().NumberMember("seq", remark.seq).NumberMember("cdate", remark.created);
        out.TextMember("sub", remark.subject).TextMember("body", remark.body);
        out.NumberMember("udate", remark.updated).EndObject();
    }
    out.EndArray();
    return out.Take();
}

}  // namespace Tarvik::Server::Replies
