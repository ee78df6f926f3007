// SPDX-License-Identifier: MIT
#include "seaplan/controllers/PendingRoute.h"

namespace Tarvik::Seaplan {

PendingRoute::Rollback::~Rollback() {
    if (!kept_) {
        pending_.route_ = std::move(before_);
    }
}

bool PendingRoute::IsFor(const std::string& vi) const {
    return IsThere() && route_.voyage == vi;
}

// The timer loads every voyage that is on the chart; a person's unsaved route of another one must outlive
// that.
void PendingRoute::NoteLoaded(const std::string& vi, const PortCallRows& rows) {
    if (IsFor(vi)) {
        Drop();
    }
    NoteShown(rows);
}

void PendingRoute::NoteShown(const PortCallRows& rows) {
    portNames_.clear();
    for (const VoyPortCall& row : rows) {
        portNames_.push_back(row.ppn);
    }
    isCurrent_ = 1;
}

void PendingRoute::ForgetFor(const std::string& vi) {
    if (IsFor(vi)) {
        Drop();
    }
    portNames_.clear();
}

void PendingRoute::Forget() {
    Drop();
    portNames_.clear();
}

}  // namespace Tarvik::Seaplan
