// SPDX-License-Identifier: MIT
#include "host/server/api/Errors.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace Tarvik::Server {

namespace {

struct ErrorRow {
    ErrorCode code;
    std::string_view text;
};

constexpr ErrorRow kErrors[] = {
    {ErrorCode::BadJson, "the request does not parse"},
    {ErrorCode::MissingValue, "a required value is missing or is not a text"},
    {ErrorCode::UnknownCommand, "there is no such command"},
    {ErrorCode::UnknownOperation, "the command has no such operation"},
    {ErrorCode::EmptyName, "a name must not be empty"},
    {ErrorCode::TextTooLong, "a text is too long"},
    {ErrorCode::BadText, "a text holds a zero byte"},
    {ErrorCode::BadNumber, "a number does not parse or is out of range"},
    {ErrorCode::BadTime, "a time is not of the form YYYY-MM-DD hh:mm:ss"},
    {ErrorCode::BadRow, "a row does not have the right form"},
    {ErrorCode::BadPurpose, "there is no such purpose"},
    {ErrorCode::NoRows, "the request holds no rows"},
    {ErrorCode::TooManyRows, "the request holds too many rows"},
    {ErrorCode::RequestTooLong, "the request is too long"},
    {ErrorCode::UnknownPort, "a port call names no known port"},
    {ErrorCode::ReplyTooLong, "the reply would be too long"},
    {ErrorCode::BadMmsi, "this is no MMSI of a ship"},
    {ErrorCode::BadImo, "this is no IMO number, or its check digit is wrong"},
    {ErrorCode::BadName, "a port's name holds a bar"},
    {ErrorCode::OtherUser, "the request names another user"},
    {ErrorCode::NoUser, "nobody is logged in"},
    {ErrorCode::UnknownCategory, "there is no such category"},
    {ErrorCode::UnknownVoyage, "there is no such voyage"},
    {ErrorCode::UnknownBook, "there is no such position book"},
    {ErrorCode::UnknownRemark, "there is no such remark"},
    {ErrorCode::UnknownObject, "there is no such object"},
    {ErrorCode::UnknownVessel, "there is no such vessel"},
    {ErrorCode::UnknownPlace, "there is no such port of your own"},
    {ErrorCode::NotInUse, "only what is in use can go to the recycle bin"},
    {ErrorCode::NotInBin, "only what is in the recycle bin can be recovered or destroyed"},
    {ErrorCode::CategoryNotInUse, "the category is in the recycle bin"},
    {ErrorCode::BookExists, "the voyage has a position book already"},
    {ErrorCode::NothingToAppendTo, "the position book has no rows to append to"},
    {ErrorCode::RowExists, "a row's number is taken"},
    {ErrorCode::RemarkExists, "a remark of this number exists already"},
    {ErrorCode::BookTakenOver, "another client has begun to write the position book"},
    {ErrorCode::ListFull, "the list is full"},
    {ErrorCode::StorageFailed, "the data could not be stored or read"},
    {ErrorCode::Internal, "the server failed"},
    {ErrorCode::MaybeStored, "the change may be stored or not, look again"},
    {ErrorCode::TooFewStops, "a route needs two stops"},
    {ErrorCode::UnknownStop, "there is no such stop"},
    {ErrorCode::NoWay, "there is no way between two stops"},
    {ErrorCode::BadPosition, "a position is none"},
};

/// In the order of FaultReason.
constexpr std::array kFaultCodes = {
    ErrorCode::UnknownCategory,  ErrorCode::UnknownVoyage, ErrorCode::UnknownBook,
    ErrorCode::UnknownRemark,    ErrorCode::UnknownVessel, ErrorCode::UnknownPlace,
    ErrorCode::UnknownObject,    ErrorCode::NotInUse,      ErrorCode::NotInBin,
    ErrorCode::CategoryNotInUse, ErrorCode::BookExists,    ErrorCode::NothingToAppendTo,
    ErrorCode::BookTakenOver,    ErrorCode::TooManyRows,   ErrorCode::RowExists,
    ErrorCode::RemarkExists,     ErrorCode::ListFull,      ErrorCode::StorageFailed,
    ErrorCode::MaybeStored,
};
static_assert(kFaultCodes.size() == static_cast<std::size_t>(FaultReason::MaybeStored) + 1);

}  // namespace

std::string_view TextOf(ErrorCode code) {
    const auto* row = std::find_if(std::begin(kErrors), std::end(kErrors),
                                   [code](const ErrorRow& candidate) { return candidate.code == code; });
    return row == std::end(kErrors) ? TextOf(ErrorCode::Internal) : row->text;
}

ErrorCode CodeOf(FaultReason reason) {
    return kFaultCodes[static_cast<std::size_t>(reason)];
}

}  // namespace Tarvik::Server
