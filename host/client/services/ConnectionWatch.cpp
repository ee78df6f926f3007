// SPDX-License-Identifier: MIT
#include "host/client/services/ConnectionWatch.h"

namespace Tarvik::Client {

void ConnectionWatch::Take(const Connection& next) {
    if (next == now_) {
        return;
    }
    now_ = next;
    if (changed_) {
        changed_();
    }
}

void ConnectionWatch::NoteAnswer(bool loggedIn) {
    Connection next = now_;
    next.loggedIn = loggedIn;
    next.reason.clear();
    if (next.silentSince) {
        next.silentSince.reset();
        next.backSince = Util::_datetime_t::gmt_now();
    }
    Take(next);
}

void ConnectionWatch::NoteSilence(const std::string& reason) {
    Connection next = now_;
    next.reason = reason;
    next.backSince.reset();
    if (!next.silentSince) {
        next.silentSince = Util::_datetime_t::gmt_now();
    }
    Take(next);
}

void ConnectionWatch::NoteLogin(bool loggedIn) {
    Connection next;
    next.loggedIn = loggedIn;
    Take(next);
}

}  // namespace Tarvik::Client
