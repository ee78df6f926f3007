// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

/// The route from A to B with a point 118 on it that has the alternatives 105 and 116.
inline constexpr const char* kRouteWithAlternatives =
    R"([{point_cd:"40001",distance:0,routes:[],rp_groups:[]},{point_cd:"40002",distance:1.5,)"
    R"(routes:[{route:"1",from_cd:"40001",end_cd:"118",pointset:"0.000,0.000|0.500,0.000",distance:1.0},)"
    R"({route:"2",from_cd:"118",end_cd:"40002",pointset:"0.500,0.000|1.000,0.000",distance:1.0}],)"
    R"(rp_groups:["118=40001,40002;105|116"],rp_id_str:"118"}])";

/// The controllers with the sample table of points.
class RouteFixture : public ScheduleFixture {
  protected:
    using Texts = std::vector<std::string>;

    RouteFixture() { folder.WriteSamplePoints(); }
    /// The reply to a request for one leg from `from` to `to`, with one segment.
    static std::string LegReply(const std::string& from, const std::string& to, const std::string& pointset) {
        return R"([{point_cd:")" + from + R"(",routes:[],rp_groups:[]},{point_cd:")" + to +
               R"(",routes:[{route:"1",from_cd:")" + from + R"(",end_cd:")" + to + R"(",pointset:")" +
               pointset + R"("}],rp_groups:[]}])";
    }
    /// Typed rows A, B and C.
    static PortCallRows ThreeRows() {
        PortCallRows typed = TypedRows();
        typed.push_back(typed[1]);
        typed[2].ppn = "C";
        typed[2].ppi = "40003";
        return typed;
    }
};

}  // namespace Tarvik::Seaplan
