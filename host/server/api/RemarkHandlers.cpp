// SPDX-License-Identifier: MIT
#include <limits>

#include "host/server/api/CommandHandlers.h"
#include "host/server/api/Refusal.h"
#include "host/server/api/Replies.h"
#include "host/server/api/RequestFields.h"

namespace Tarvik::Server {

namespace {

enum Operation { kAdd = 1, kDelete = 2, kChange = 3, kList = 4 };

std::int32_t ReadSeq(const RequestFields& fields) {
    return fields.Number("seq", 1, std::numeric_limits<std::int32_t>::max());
}

RemarkRecord ReadRemark(const RequestFields& fields, std::int64_t now) {
    return {ReadSeq(fields), fields.Text("subject", kMaxBodyBytes), fields.Text("body", kMaxBodyBytes), now,
            now};
}

}  // namespace

std::string KeepRemarks(const CommandCall& call) {
    RemarkStorage& remarks = call.storage.Remarks();
    const RequestFields fields(call.text);
    const int operation = fields.Operation("optype");
    // A port call's object is an id and a name together.
    const RemarkObject object{fields.Number("type", kCategoryRemark, kPortCallRemark),
                              fields.Text("objectid", kMaxObjectBytes)};
    switch (operation) {
        case kAdd:
            ValueOrRefuse(remarks.AddRemark(call.user, object, ReadRemark(fields, call.clock())));
            break;
        case kDelete:
            ValueOrRefuse(remarks.DeleteRemark(call.user, object, ReadSeq(fields)));
            break;
        case kChange:
            ValueOrRefuse(remarks.ChangeRemark(call.user, object, ReadRemark(fields, call.clock())));
            break;
        case kList:
            return Replies::Remarks(ValueOrRefuse(remarks.LoadRemarks(call.user, object)));
        default:
            throw Refusal(ErrorCode::UnknownOperation, "optype");
    }
    return Replies::Success();
}

}  // namespace Tarvik::Server
