// SPDX-License-Identifier: MIT
#include <limits>
#include <optional>

#include <tarvik/util/Jsona.h>

#include "host/server/api/Numbers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

namespace {

/// The fields of one row, each refused with the whole row in the reason.
class RowFields {
  public:
    RowFields(std::string_view row, std::size_t count) : row_(row) {
        CheckText(row, kMaxObjectBytes, "row");
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

    std::string Text(std::size_t place) const { return std::string(fields_[place]); }
    std::int32_t Integer(std::size_t place) const {
        using Limits = std::numeric_limits<std::int32_t>;
        return ValueOrRefuse(ParseInteger(fields_[place], Limits::min(), Limits::max()));
    }
    double Decimal(std::size_t place) const {
        using Limits = std::numeric_limits<double>;
        return ValueOrRefuse(ParseDecimal(fields_[place], Limits::lowest(), Limits::max()));
    }
    /// Refuses the row when there is a fault.
    void RefuseFor(std::optional<ErrorCode> fault) const {
        if (fault) {
            const bool ofText = *fault == ErrorCode::TextTooLong || *fault == ErrorCode::BadText;
            throw Refusal(*fault, ofText ? std::string("row") : std::string(row_));
        }
    }

  private:
    template <class Number>
    Number ValueOrRefuse(const std::optional<Number>& number) const {
        if (!number) {
            throw Refusal(ErrorCode::BadNumber, std::string(row_));
        }
        return *number;
    }

    std::string_view row_;
    std::vector<std::string_view> fields_;
};

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
    if (count > kMostRows) {
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
        CheckText(texts.back(), kMaxObjectBytes, "row");
    }
    if (texts.size() < least) {
        throw Refusal(ErrorCode::MissingValue, "item " + std::to_string(texts.size()));
    }
    return texts;
}

PortCallRecord ReadPortCall(std::string_view row) {
    const RowFields fields(row, 7);
    const PortCallRecord call{fields.Integer(0), fields.Text(1),    fields.Text(2),   fields.Text(3),
                              fields.Decimal(4), fields.Decimal(5), fields.Decimal(6)};
    fields.RefuseFor(FaultOfNew(call));
    return call;
}

BookRowRecord ReadBookRow(std::string_view row) {
    const RowFields fields(row, 8);
    BookRowRecord record{fields.Integer(0), fields.Text(1),    fields.Decimal(2), fields.Decimal(3),
                         fields.Text(4),    fields.Integer(5), fields.Decimal(6), fields.Integer(7)};
    fields.RefuseFor(FaultOf(record));
    return record;
}

}  // namespace Tarvik::Server
