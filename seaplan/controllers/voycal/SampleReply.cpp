// SPDX-License-Identifier: MIT
#include "seaplan/controllers/voycal/SampleReply.h"

namespace Tarvik::Seaplan {

namespace {

// clang-format off
constexpr const char* kSampleReply =
    R"([{point_cd:"40389",distance:0,routes:[],rp_groups:[],rp_id_str:"",lock_rp_id_str:""},)"
    R"({point_cd:"40208",distance:20353.5,routes:[)"
    R"({route:"1",from_cd:"40389",end_cd:"131",pointset:"117.75,38.9833|122.75,37.40761|122.7867,37.395",distance:474},)"
    R"({route:"2",from_cd:"131",end_cd:"179",pointset:"122.7867,37.395|122.8,34.5|122.6,31|121.3,26.5|119.7,24.5",distance:1502},)"
    R"({route:"3",from_cd:"179",end_cd:"164",pointset:"119.7,24.5|117.4,22|113.2,14|109.6,8.5|105.2,2.6|104.7,1.4|103.8,1.17",distance:3149},)"
    R"({route:"4",from_cd:"164",end_cd:"163",pointset:"103.8,1.17|103.35,1.2|102.2,1.95|100.95,2.85",distance:374},)"
    R"({route:"5",from_cd:"163",end_cd:"160",pointset:"100.95,2.85|98.6,4.7|95.2,6.1|80.6,5.75",distance:2355},)"
    R"({route:"6",from_cd:"160",end_cd:"151",pointset:"80.6,5.75|73,7.5|57.5,11.6|51.8,12.4|45.2,12.1|43.35,12.55",distance:4172},)"
    R"({route:"7",from_cd:"151",end_cd:"101",pointset:"43.35,12.55|42.3,14.6|37.6,22|34.1,27.4|32.56,29.8|32.34,30.45",distance:2294},)"
    R"({route:"8",from_cd:"101",end_cd:"140",pointset:"32.34,30.45|32.38,31.45|29.8,32.4|22.5,34.6|14.5,36.4",distance:1847},)"
    R"({route:"9",from_cd:"140",end_cd:"118",pointset:"14.5,36.4|11.3,37.2|9.9,37.6|2.2,37.2|-2.2,36.4|-5.6,35.95",distance:1822},)"
    R"({route:"10",from_cd:"118",end_cd:"122",pointset:"-5.6,35.95|-8.9,36.7|-9.7,38.7|-9.9,43.1",distance:1030},)"
    R"({route:"11",from_cd:"122",end_cd:"121",pointset:"-9.9,43.1|-5.9,48.75",distance:700},)"
    R"({route:"12",from_cd:"121",end_cd:"119",pointset:"-5.9,48.75|-2.4,49.9|1.4,50.98",distance:579},)"
    R"({route:"13",from_cd:"119",end_cd:"40208",pointset:"1.4,50.98|2.9,51.75|4.05,51.98",distance:218}],)"
    R"(rp_groups:["179=131,164;180","163=164,160;165|166.160,151;165","101=151,140;107",)"
    R"("140=101,118;139|138","119=121,40208;125|126|120.121,233;120"],)"
    R"(rp_id_str:"131,179,164,163,160,151,101,140,118,122,121,119",lock_rp_id_str:""},)"
    R"({point_cd:"40430",distance:550,routes:[)"
    R"({route:"14",from_cd:"40208",end_cd:"231",pointset:"4.05,51.98|4.1,52.6",distance:69},)"
    R"({route:"15",from_cd:"231",end_cd:"232",pointset:"4.1,52.6|4.5,53.4|6.4,53.85",distance:228},)"
    R"({route:"16",from_cd:"232",end_cd:"233",pointset:"6.4,53.85|8.1,54.02|8.7,53.9",distance:154},)"
    R"({route:"17",from_cd:"233",end_cd:"40430",pointset:"8.7,53.9|9.2,53.87|9.7,53.56|9.97,53.54",distance:99}],)"
    R"(rp_groups:[],rp_id_str:"231,232,233",lock_rp_id_str:""}])";
// clang-format on

}  // namespace

const char* SampleReply() {
    return kSampleReply;
}

}  // namespace Tarvik::Seaplan
