// SPDX-License-Identifier: MIT
#include "host/server/api/RemarkCommands.h"

#include <limits>

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

std::string RemarkCommands::Handle(const std::string& user, std::string_view text) {
    const RequestFields fields(text);
    const int operation = fields.Operation("optype");
    // A port call's object is an id and a name together.
    const RemarkObject object{fields.Number("type", kCategoryRemark, kPortCallRemark),
                              fields.Text("objectid", kMaxNameBytes * 2)};
    switch (operation) {
        case kAdd:
            ValueOrRefuse(storage_.AddRemark(user, object, ReadRemark(fields, clock_())));
            break;
        case kDelete:
            ValueOrRefuse(storage_.DeleteRemark(user, object, ReadSeq(fields)));
            break;
        case kChange:
            ValueOrRefuse(storage_.ChangeRemark(user, object, ReadRemark(fields, clock_())));
            break;
        case kList:
            return Replies::Remarks(ValueOrRefuse(storage_.LoadRemarks(user, object)));
        default:
            throw Refusal(ErrorCode::UnknownOperation, "optype");
    }
    return Replies::Success();
}

}  // namespace Tarvik::Server
