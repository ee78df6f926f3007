// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/controllers/ScheduleCalculation.h"

/// What the numbers of a save's commands tell of the server, as the detail of a step that failed.
namespace Tarvik::Seaplan::SaveAnswers {

/// The server left the request without an answer; any other detail: it did not take it.
inline constexpr int kNone = -1;
inline constexpr int kRefused = 0;

/// Of VoyPortCallModule::SavePortCalls.
constexpr int OfPortCalls(int code) {
    return code == -2 ? kNone : kRefused;
}
/// Of VoyPortCallModule::SetPositionBookDate.
constexpr int OfBookDate(int code) {
    return code == -3 ? kNone : kRefused;
}
/// Of VoyPortCallModule::EnsurePositionBook, which asks for a list and then for a new book.
constexpr int OfNewBook(int code) {
    return code == -2 || code == -4 ? kNone : kRefused;
}
/// Of VoyPortCallModule::SavePositionBookRows, which sends them in one request or in blocks.
constexpr int OfBookRows(int code) {
    return code == -3 || code == -6 ? kNone : kRefused;
}

/// The cause that a person is told.
constexpr ScheduleFault::Cause CauseOf(int detail) {
    return detail == kNone ? ScheduleFault::Cause::Connection : ScheduleFault::Cause::Refused;
}

}  // namespace Tarvik::Seaplan::SaveAnswers
