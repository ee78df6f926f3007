// SPDX-License-Identifier: MIT
#include "host/server/transfer/CopyCheck.h"

#include <algorithm>

#include "host/server/accounts/Credentials.h"
#include "host/server/api/Numbers.h"
#include "host/server/api/RecordRules.h"

namespace Tarvik::Server {

namespace {

/// More is no number that any counter has.
constexpr std::size_t kMostIdDigits = 15;

bool IsText(const std::string& text, std::size_t most = kMaxNameBytes) {
    return !FaultOf(text, most);
}

bool IsName(const std::string& text) {
    return !text.empty() && IsText(text);
}

bool IsId(const std::string& text) {
    return !text.empty() && text.size() <= kMostIdDigits && text[0] >= '1' && text[0] <= '9' &&
           text.find_first_not_of("0123456789") == std::string::npos;
}

/// Whether every row can be kept, and comes behind the one before by its number.
template <class Row>
bool AreGood(const std::vector<Row>& rows) {
    std::int32_t before = -1;
    for (const Row& row : rows) {
        if (row.order <= before || FaultOf(row)) {
            return false;
        }
        before = row.order;
    }
    return rows.size() <= kMostRows;
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
    if (user.account && !IsBearableHash(user.account->passwordHash)) {
        return "the password's hash would cost more than a login may";
    }
    if (!users_.insert(user.records.owner).second) {
        return "the user is there twice";
    }
    known_ = CopyIds();
    remarks_.clear();
    vessels_ = 0;
    places_ = 0;
    return {};
}

std::string CopyCheck::Category(const CategoryCopy& category) {
    if (const std::string wrong = TakeId(category.id); !wrong.empty()) {
        return "the id " + wrong;
    }
    if (!IsName(category.name)) {
        return "the name is empty or too long";
    }
    known_.PutCategory(category.id, category.id);
    return {};
}

std::string CopyCheck::Voyage(const VoyageCopy& copy) {
    const VoyageRecord& voyage = copy.voyage;
    if (const std::string wrong = TakeId(voyage.id); !wrong.empty()) {
        return "the id " + wrong;
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
    if (const std::string wrong = copy.book ? TakeId(copy.book->id) : ""; !wrong.empty()) {
        return "the book's id " + wrong;
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
    if (!IsText(copy.object.id, kMaxObjectBytes) || !known_.Knows(copy.object)) {
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

template <class Record>
std::string CopyCheck::ListRecord(const Record& record, std::size_t most, std::size_t& seen) {
    if (const std::string wrong = TakeId(record.id); !wrong.empty()) {
        return "the id " + wrong;
    }
    if (const auto fault = FaultOf(record)) {
        return std::string(TextOf(*fault));
    }
    return ++seen > most ? std::string(TextOf(ErrorCode::ListFull)) : std::string();
}

std::string CopyCheck::Vessel(const FleetRecord& vessel) {
    return ListRecord(vessel, kMostVessels, vessels_);
}

std::string CopyCheck::Place(const PlaceRecord& place) {
    return ListRecord(place, kMostPlaces, places_);
}

std::string CopyCheck::TakeId(const std::string& id) {
    if (!IsId(id) || !seen_.insert(id).second) {
        return "is none, or is there twice";
    }
    const std::int64_t number = std::stoll(id);
    if (number > kMostCopiedId) {
        return "is so high that a later backup would fail";
    }
    lowestId_ = lowestId_ == 0 ? number : std::min(lowestId_, number);
    highestId_ = std::max(highestId_, number);
    return {};
}

}  // namespace Tarvik::Server
