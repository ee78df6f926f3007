// SPDX-License-Identifier: MIT
#include <limits>

#include <tarvik/util/Jsona.h>

#include "host/server/api/Numbers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

namespace {

constexpr std::size_t kMaxTexts = 100000;
constexpr std::int32_t kMostOrder = 1000000;
// Far beyond any ship: a speed between two fixes close in time is what it is, and a save must not fail for
// it.
constexpr double kMostSpeedKmh = 1e9;
constexpr double kMostHours = 1000000;

/// The fields of one row, each refused with the whole row in the reason.
class RowFields {
  public:
    RowFields(std::string_view row, std::size_t count) : row_(row) {
        CheckText(row, kMaxNameBytes * 2, "row");
        std::size_t from = 0;
        for (std::size_t bar = row.find('|'); bar != std::string_view::npos; bar = row.find('|', from)) {
            fields_.push_back(row.substr(from, bar - from));
            from = bar + 1;
        }
        fields_.push_back(row.substr(from));
        if (fields_.size() != count) {
            throw Refusal(ErrorCode::BadRow, std::string(row));
        }
    }

    std::string Text(std::size_t place) const {
        CheckText(fields_[place], kMaxNameBytes, "row");
        return std::string(fields_[place]);
    }
    std::int32_t Integer(std::size_t place, std::int32_t least, std::int32_t most) const {
        const auto number = ParseInteger(fields_[place], least, most);
        if (!number) {
            throw Refusal(ErrorCode::BadNumber, std::string(row_));
        }
        return *number;
    }
    double Decimal(std::size_t place, double least, double most) const {
        const auto number = ParseDecimal(fields_[place], least, most);
        if (!number) {
            throw Refusal(ErrorCode::BadNumber, std::string(row_));
        }
        return *number;
    }
    [[noreturn]] void Refuse(ErrorCode code) const { throw Refusal(code, std::string(row_)); }

  private:
    std::string_view row_;
    std::vector<std::string_view> fields_;
};

/// A blank stands for a ship's position in the plug-in's table, which is no port call.
bool IsPurpose(std::string_view text) {
    constexpr std::string_view kPurposes = "12BCDLOWYZ";
    return text.size() == 1 && kPurposes.find(text[0]) != std::string_view::npos;
}

}  // namespace

std::vector<std::string> ReadTexts(std::string_view request, std::size_t least) {
    Util::Jsona root;
    if (!root.parse(request)) {
        throw Refusal(ErrorCode::BadJson,
                      std::string(root.ErrorText()) + " at byte " + std::to_string(root.ErrorOffset()));
    }
    if (root.kind() != Util::Jsona::Kind::Array) {
        throw Refusal(ErrorCode::BadJson, "an array is expected");
    }
    const auto count = static_cast<std::size_t>(root.size());
    if (count > kMaxTexts) {
        throw Refusal(ErrorCode::TooManyRows, std::to_string(count));
    }
    std::vector<std::string> texts;
    texts.reserve(count);
    for (int i = 0; i < root.size(); ++i) {
        const Util::Jsona item = root.get(i);
        if (item.kind() != Util::Jsona::Kind::Text) {
            throw Refusal(ErrorCode::MissingValue, "item " + std::to_string(i));
        }
        texts.push_back(item.text());
        CheckText(texts.back(), kMaxNameBytes * 2, "row");
    }
    if (texts.size() < least) {
        throw Refusal(ErrorCode::MissingValue, "item " + std::to_string(texts.size()));
    }
    return texts;
}

PortCallRecord ReadPortCall(std::string_view row) {
    const RowFields fields(row, 7);
    PortCallRecord call;
    call.order = fields.Integer(0, 0, kMostOrder);
    call.portId = fields.Text(1);
    call.portName = fields.Text(2);
    call.purpose = fields.Text(3);
    if (call.portName.empty()) {
        fields.Refuse(ErrorCode::BadRow);
    }
    if (call.portId.empty()) {
        fields.Refuse(ErrorCode::UnknownPort);
    }
    if (!IsPurpose(call.purpose)) {
        fields.Refuse(ErrorCode::BadPurpose);
    }
    call.speedKmh = fields.Decimal(4, 0, kMostSpeedKmh);
    // The client rounds to three decimals, so that its greatest factor below 1 arrives as 1.
    call.weatherFactor = fields.Decimal(5, 0, 1);
    call.hoursInPort = fields.Decimal(6, 0, kMostHours);
    return call;
}

BookRowRecord ReadBookRow(std::string_view row) {
    const RowFields fields(row, 8);
    BookRowRecord record;
    record.order = fields.Integer(0, 0, kMostOrder);
    record.name = fields.Text(1);
    // A line that crosses the date line may go on beyond 180 degrees.
    record.longitude = fields.Decimal(2, -360, 360);
    record.latitude = fields.Decimal(3, -90, 90);
    record.sailing = fields.Text(4);
    record.spacing = fields.Integer(5, 0, 360);
    record.speedKmh = fields.Decimal(6, 0, kMostSpeedKmh);
    record.kind = fields.Integer(7, 0, 9);
    return record;
}

}  // namespace Tarvik::Server
