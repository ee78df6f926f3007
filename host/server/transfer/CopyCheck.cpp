// SPDX-License-Identifier: MIT
#include "host/server/transfer/CopyCheck.h"

#include <algorithm>

#include "host/server/api/Numbers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

namespace {

/// Beyond any counter, and still a number that can be counted on from.
constexpr std::size_t kMostIdDigits = 15;

bool IsText(const std::string& text, std::size_t most = kMaxNameBytes) {
    return text.size() <= most && text.find('\0') == std::string::npos;
}

bool IsName(const std::string& text) {
    return !text.empty() && IsText(text);
}

bool IsId(const std::string& text) {
    return !text.empty() && text.size() <= kMostIdDigits && text[0] >= '1' && text[0] <= '9' &&
           text.find_first_not_of("0123456789") == std::string::npos;
}

std::string Joined(std::initializer_list<std::string> fields) {
    std::string row;
    for (const std::string& field : fields) {
        row.append(row.empty() ? 0 : 1, '|').append(field);
    }
    return row;
}

std::string Printed(double number) {
    return PrintDecimal(number, 1);
}

/// Whether a request could have stored the row: its text, read as a request is, gives it again.
bool IsGood(const PortCallRecord& call) {
    return ReadPortCall(Joined({std::to_string(call.order), call.portId, call.portName, call.purpose,
                                Printed(call.speedKmh), Printed(call.weatherFactor),
                                Printed(call.hoursInPort)})) == call;
}

bool IsGood(const BookRowRecord& row) {
    return ReadBookRow(Joined({std::to_string(row.order), row.name, Printed(row.longitude),
                               Printed(row.latitude), row.sailing, std::to_string(row.spacing),
                               Printed(row.speedKmh), std::to_string(row.kind)})) == row;
}

/// Whether every row is good and comes behind the one before by its number.
template <class Row>
bool AreGood(const std::vector<Row>& rows) {
    try {
        std::int32_t before = -1;
        for (const Row& row : rows) {
            if (row.order <= before || !IsGood(row)) {
                return false;
            }
            before = row.order;
        }
        return true;
    } catch (const Refusal&) {
        return false;
    }
}

bool AreTimes(std::vector<std::string> times) {
    if (!std::all_of(times.begin(), times.end(), [](const std::string& time) { return IsTimeText(time); })) {
        return false;
    }
    std::sort(times.begin(), times.end());
    return std::adjacent_find(times.begin(), times.end()) == times.end();
}

bool IsVessel(const VesselRecord& vessel) {
    return IsText(vessel.id) && IsText(vessel.name) && vessel.mmsi >= 0;
}

}  // namespace

std::string CopyCheck::User(const UserCopy& user) {
    if (!IsName(user.records.owner)) {
        return "the user has no name";
    }
    if (!users_.insert(user.records.owner).second) {
        return "the user is there twice";
    }
    known_ = CopyIds();
    remarks_.clear();
    return {};
}

std::string CopyCheck::Category(const CategoryCopy& category) {
    if (!TakeId(category.id)) {
        return "the id is none, or is there twice";
    }
    if (!IsName(category.name)) {
        return "the name is empty or too long";
    }
    known_.PutCategory(category.id, category.id);
    return {};
}

std::string CopyCheck::Voyage(const VoyageCopy& copy) {
    const VoyageRecord& voyage = copy.voyage;
    if (!TakeId(voyage.id)) {
        return "the id is none, or is there twice";
    }
    if (!IsName(voyage.name)) {
        return "the name is empty or too long";
    }
    if (!IsVessel(voyage.vessel)) {
        return "the vessel is none";
    }
    if (*std::min_element(voyage.figures.begin(), voyage.figures.end()) < 0) {
        return "a figure is below 0";
    }
    if (!AreTimes(copy.aisTimes)) {
        return "an AIS time is none, or is there twice";
    }
    if (!AreGood(copy.calls)) {
        return "a port call is none, or out of its order";
    }
    if (copy.book && !TakeId(copy.book->id)) {
        return "the book's id is none, or is there twice";
    }
    if (copy.book && !IsTimeText(copy.book->date)) {
        return "the book's date is none";
    }
    if (copy.book && !AreGood(copy.book->rows)) {
        return "a row of the book is none, or out of its order";
    }
    known_.PutVoyage(voyage.id, voyage.id);
    return {};
}

std::string CopyCheck::Remark(const RemarkCopy& copy) {
    if (!IsText(copy.object.id, kMaxNameBytes * 2) || !known_.Knows(copy.object)) {
        return "the remark is of nothing that the user has";
    }
    if (copy.remark.seq < 1) {
        return "the remark's number is below 1";
    }
    if (!remarks_.insert({copy.object.type, copy.object.id, copy.remark.seq}).second) {
        return "the remark is there twice";
    }
    if (!IsText(copy.remark.subject, kMaxBodyBytes) || !IsText(copy.remark.body, kMaxBodyBytes)) {
        return "the remark's text is too long";
    }
    return {};
}

bool CopyCheck::TakeId(const std::string& id) {
    if (!IsId(id) || !seen_.insert(id).second) {
        return false;
    }
    const std::int64_t number = std::stoll(id);
    lowestId_ = lowestId_ == 0 ? number : std::min(lowestId_, number);
    highestId_ = std::max(highestId_, number);
    return true;
}

}  // namespace Tarvik::Server
