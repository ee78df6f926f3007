// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace Tarvik::Server {

/// How an operation ended that did not succeed.
enum class FaultKind { NotFound, Refused, Failed };

/// Why an operation did not succeed. What belongs to another owner is as unknown as what never existed.
enum class FaultReason {
    UnknownCategory,
    UnknownVoyage,
    UnknownBook,
    UnknownRemark,
    UnknownVessel,
    UnknownPlace,
    UnknownObject,
    NotInUse,
    NotInBin,
    CategoryNotInUse,
    BookExists,
    NothingToAppendTo,
    BookTakenOver,
    TooManyRows,
    RowExists,
    RemarkExists,
    ListFull,
    StorageFailed,
    MaybeStored,  ///< the connection to the data base broke while it confirmed the change
};

/// The kind that a reason belongs to.
constexpr FaultKind KindOf(FaultReason reason) {
    if (reason <= FaultReason::UnknownObject) {
        return FaultKind::NotFound;
    }
    return reason >= FaultReason::StorageFailed ? FaultKind::Failed : FaultKind::Refused;
}

/// A reason with, where there is more to say, a detail in English.
struct Fault {
    FaultReason reason = FaultReason::StorageFailed;
    std::string detail;

    FaultKind Kind() const { return KindOf(reason); }
};

/// The value of an operation that succeeded, or the fault of one that did not; a fault other than MaybeStored
/// has changed nothing.
template <class T>
class [[nodiscard]] Outcome {
  public:
    Outcome(T value) : state_(std::move(value)) {}
    Outcome(Fault fault) : state_(std::move(fault)) {}
    Outcome(FaultReason reason) : state_(Fault{reason, {}}) {}

    bool Succeeded() const { return state_.index() == 0; }
    explicit operator bool() const { return Succeeded(); }
    /// Only of an operation that succeeded.
    T& Value() { return std::get<0>(state_); }
    const T& Value() const { return std::get<0>(state_); }
    /// Only of an operation that did not succeed.
    const Fault& GetFault() const { return std::get<1>(state_); }

  private:
    std::variant<T, Fault> state_;
};

/// The value of an operation that only succeeds or not.
struct Done {};

using Status = Outcome<Done>;

}  // namespace Tarvik::Server
