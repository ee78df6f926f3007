// SPDX-License-Identifier: MIT
#include "seaplan/protocol/RemarkList.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "seaplan/data/TimeText.h"
#include "seaplan/protocol/Exchange.h"
#include "seaplan/protocol/RemarkMessages.h"

namespace Tarvik::Seaplan {

namespace {

/// A text that does not fit `capacity` bytes with its NUL is not sent and counts as failed.
bool Exchange(const std::string& text, std::size_t capacity, ServerBlock& reply) {
    if (text.size() >= capacity) {
        return false;
    }
    ServerBlock request;
    SendRemark(text, request);
    return SyncServer(request, reply);
}

bool Exchange(const std::string& text, std::size_t capacity) {
    ServerBlock reply;
    return Exchange(text, capacity, reply);
}

bool IsNamed(const CRemark& remark, int type, const std::string& objectid) {
    return remark.type == type && remark.objectid == objectid;
}

}  // namespace

bool RemarkList::LoadRemarks(int type, const std::string& objectid) {
    // One of the remarks that go may name the object, so they last until the end.
    const auto gone = std::exchange(remarks_, {});
    ServerBlock reply;
    if (!Exchange(LoadRemarksText(type, objectid), kRemarkNameBytes, reply)) {
        return false;
    }
    Util::Jsona list;
    if (!list.parse(reply->Payload()) || list.kind() != Util::Jsona::Kind::Array) {
        return false;
    }
    for (CRemark& remark : ReadRemarks(list, type, objectid)) {
        remarks_.push_back(std::make_unique<CRemark>(std::move(remark)));
    }
    return true;
}

bool RemarkList::AddRemark(int type, const std::string& objectid, int& seq, const std::string& subject,
                           const std::string& body) {
    seq = NextRemarkSeq(type, objectid);
    if (!Exchange(AddRemarkText(type, objectid, seq, subject, body), kRemarkTextBytes)) {
        return false;
    }
    const std::string now = NowText(kTimeFormat);
    remarks_.push_back(std::make_unique<CRemark>(CRemark{type, objectid, seq, subject, body, now, now}));
    return true;
}

bool RemarkList::ChangeRemark(int type, const std::string& objectid, int seq, const std::string& subject,
                              const std::string& body) {
    if (!Exchange(ChangeRemarkText(type, objectid, seq, subject, body), kRemarkTextBytes)) {
        return false;
    }
    if (CRemark* remark = Find(type, objectid, seq)) {
        remark->subject = subject;
        remark->body = body;
        remark->udate = NowText(kTimeFormat);
    }
    return true;
}

bool RemarkList::DeleteRemark(int type, const std::string& objectid, int seq) {
    if (!Exchange(DeleteRemarkText(type, objectid, seq), kRemarkNameBytes)) {
        return false;
    }
    const CRemark* gone = Find(type, objectid, seq);
    const auto found = std::find_if(remarks_.begin(), remarks_.end(),
                                    [gone](const auto& remark) { return remark.get() == gone; });
    if (found != remarks_.end()) {
        remarks_.erase(found);
    }
    return true;
}

bool RemarkList::Fits(const CRemark& remark) {
    // Adding and changing name the same things in the same number of bytes.
    return AddRemarkText(remark.type, remark.objectid, remark.seq, remark.subject, remark.body).size() <
           kRemarkTextBytes;
}

int RemarkList::NextRemarkSeq(int type, const std::string& objectid) const {
    int highest = 0;
    for (const auto& remark : remarks_) {
        if (IsNamed(*remark, type, objectid)) {
            highest = std::max(highest, remark->seq);
        }
    }
    // A number that a reply made this high has no successor.
    return highest < std::numeric_limits<int>::max() ? highest + 1 : highest;
}

CRemark* RemarkList::Find(int type, const std::string& objectid, int seq) const {
    for (const auto& remark : remarks_) {
        if (IsNamed(*remark, type, objectid) && remark->seq == seq) {
            return remark.get();
        }
    }
    return nullptr;
}

CRemark* RemarkList::At(std::size_t index) const {
    return index < remarks_.size() ? remarks_[index].get() : nullptr;
}

}  // namespace Tarvik::Seaplan
