// SPDX-License-Identifier: MIT
#include "seaplan/protocol/RemarkTexts.h"

#include <tarvik/util/StringUtl.h>

namespace Tarvik::Seaplan {

using Util::StringUtl;

std::string AddRemarkText(int type, const std::string& objectid, int seq, const std::string& subject,
                          const std::string& body) {
    return StringUtl::Format(
        "{optype:\"1\",type:\"%d\",objectid:\"%s\",seq:\"%d\",subject:\"%s\",body:\"%s\"}", type,
        objectid.c_str(), seq, subject.c_str(), body.c_str());
}

std::string DeleteRemarkText(int type, const std::string& objectid, int seq) {
    return StringUtl::Format("{optype:\"2\",type:\"%d\",objectid:\"%s\",seq:\"%d\"}", type, objectid.c_str(),
                             seq);
}

std::string ChangeRemarkText(int type, const std::string& objectid, int seq, const std::string& subject,
                             const std::string& body) {
    return StringUtl::Format(
        "{optype:\"3\",type:\"%d\",objectid:\"%s\",seq:\"%d\",subject:\"%s\",body:\"%s\"}", type,
        objectid.c_str(), seq, subject.c_str(), body.c_str());
}

std::string LoadRemarksText(int type, const std::string& objectid) {
    return StringUtl::Format("{optype:\"4\",type:\"%d\",objectid:\"%s\"}", type, objectid.c_str());
}

}  // namespace Tarvik::Seaplan
