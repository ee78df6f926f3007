// SPDX-License-Identifier: MIT
#include "host/plugins/ais/input/LinkSource.h"

#include <utility>

#include "host/plugins/ais/input/FileSource.h"

namespace Tarvik::Ais {

void LinkSource::Tick(std::int64_t now) {
    now_ = now;
    if (retry_.IsOverdue(now)) {
        const bool silent = retry_.Now() == Retry::State::Open;
        Drop();
        retry_.Failed(now, silent ? "nothing heard for two minutes" : "no answer");
    }
    if (retry_.IsDue(now)) {
        retry_.Called(now);
        link_ = maker_();
        const auto link = link_;
        link->Call(shared_from_this());
    }
}

void LinkSource::Close() {
    Drop();
    maker_ = {};
    taker_ = {};
}

void LinkSource::Drop() {
    if (const auto link = std::exchange(link_, nullptr)) {
        link->Hang();
    }
}

SourceState LinkSource::State() const {
    return {retry_.Now() == Retry::State::Open, false, retry_.Openings(), retry_.Error()};
}

bool LinkSource::Opened(const Link& link) {
    if (link_.get() != &link) {
        return false;
    }
    retry_.Opened(now_);
    taker_.began();
    return true;
}

bool LinkSource::Heard(const Link& link, std::string_view bytes) {
    if (link_.get() != &link) {
        return false;
    }
    retry_.Heard(now_);
    taker_.bytes(bytes);
    return true;
}

void LinkSource::Failed(const Link& link, const std::string& error) {
    if (link_.get() == &link) {
        Drop();
        retry_.Failed(now_, error);
    }
}

std::shared_ptr<Source> Source::Make(boost::asio::io_context& io, const InputAddress& address,
                                     SourceTaker taker) {
    if (address.kind == InputKind::File) {
        return std::make_shared<FileSource>(address.place, address.pace, std::move(taker));
    }
    LinkSource::LinkMaker maker = [&io, address]() -> std::shared_ptr<LinkSource::Link> {
        switch (address.kind) {
            case InputKind::Udp:
                return MakeUdpLink(io, address);
            case InputKind::Serial:
                return MakeSerialLink(io, address);
            default:
                return MakeTcpLink(io, address);
        }
    };
    return std::make_shared<LinkSource>(std::move(maker), std::move(taker));
}

}  // namespace Tarvik::Ais
