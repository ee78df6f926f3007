// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "host/server/storage/contract/Outcome.h"

namespace Tarvik::Server {

/// The `eid` of every reply that refuses a request. Numbers are part of the protocol: they never change their
/// meaning.
enum class ErrorCode : int {
    BadJson = 1,
    MissingValue = 2,
    UnknownCommand = 3,
    UnknownOperation = 4,
    EmptyName = 5,
    TextTooLong = 6,
    BadText = 7,
    BadNumber = 8,
    BadTime = 9,
    BadRow = 10,
    BadPurpose = 11,
    NoRows = 12,
    TooManyRows = 13,
    RequestTooLong = 14,
    UnknownPort = 15,
    ReplyTooLong = 16,
    BadMmsi = 17,
    BadImo = 18,
    BadName = 19,
    OtherUser = 20,
    NoUser = 21,
    UnknownCategory = 30,
    UnknownVoyage = 31,
    UnknownBook = 32,
    UnknownRemark = 33,
    UnknownObject = 34,
    UnknownVessel = 35,
    UnknownPlace = 36,
    NotInUse = 40,
    NotInBin = 41,
    CategoryNotInUse = 42,
    BookExists = 43,
    NothingToAppendTo = 44,
    RowExists = 45,
    RemarkExists = 46,
    BookTakenOver = 47,
    ListFull = 48,
    StorageFailed = 50,
    Internal = 51,
    MaybeStored = 52,
    TooFewStops = 60,  ///< of the search for routes, as the next one
    UnknownStop = 61,
    NoWay = 62,
    BadPosition = 63,
};

/// What the code says, in English, without a full stop.
std::string_view TextOf(ErrorCode code);

/// The code that a fault of the storage goes out as.
ErrorCode CodeOf(FaultReason reason);

}  // namespace Tarvik::Server
