// SPDX-License-Identifier: MIT
#include "host/server/api/tests/ServiceFixture.h"

namespace Tarvik::Server {

namespace {

const std::string kSuccess = R"({"eid":0})";

class VoyageCommandsTest : public ServiceTest {
  protected:
    VoyageCommandsTest() {
        Converse({{4, R"({ci:"",cn:"A",type:0})", R"({"eid":0,"ci":"1000001"})"},
                  {5, R"({ci:"1000001",vi:"",vn:"New voyage - 0",type:"0",vsi:"",vr:"0",va:"0"})",
                   R"({"eid":0,"vi":"1000002"})"}});
    }
    /// Expects the load to show the only voyage with these members between its id and its state.
    void ExpectVoyage(const std::string& members, const std::string& state = "0") {
        Converse({{3, R"({ui:"ann"})",
                   R"([{"ci":"1000001","cn":"A","crk":"0","cd":"0","voys":[{"vi":"1000002",)" + members +
                       R"(,"vd":")" + state + R"("}]}])"}});
    }
};

constexpr const char* kNew =
    R"("vn":"New voyage - 0","vsi":"","vsn":"","vsmsi":"0","vr":"0","va":"0",)"
    R"("vfn":"0","vff":"0","vfa":"0","vdn":"0","vda":"0","vwn":"0","vwa":"0","vrk":"0","modais":"0")";

TEST_F(VoyageCommandsTest, NewVoyageHasNoVesselAndNoFigures) {
    ExpectVoyage(kNew);
}

TEST_F(VoyageCommandsTest, RenameChangesTheName) {
    Converse({{5, R"({vi:"1000002",vn:"Ulsan-Oslo",type:"1"})", kSuccess}});
    ExpectVoyage(
        R"("vn":"Ulsan-Oslo","vsi":"","vsn":"","vsmsi":"0","vr":"0","va":"0",)"
        R"("vfn":"0","vff":"0","vfa":"0","vdn":"0","vda":"0","vwn":"0","vwa":"0","vrk":"0","modais":"0")");
}

TEST_F(VoyageCommandsTest, VoyageGoesToTheBinAndBackAndIsDestroyedFromTheBin) {
    Converse({{5, R"({vi:"1000002",type:"2"})", kSuccess}});
    ExpectVoyage(kNew, "1");
    Converse({{5, R"({vi:"1000002",type:"3"})", kSuccess}});
    ExpectVoyage(kNew, "0");
    Converse({{5, R"({vi:"1000002",type:"2"})", kSuccess},
              {5, R"({vi:"1000002",type:"4"})", kSuccess},
              {3, R"({ui:"ann"})", R"([{"ci":"1000001","cn":"A","crk":"0","cd":"0","voys":[]}])"}});
}

TEST_F(VoyageCommandsTest, VesselFlagsFiguresRemarkAndAisTimesAreLoaded) {
    Converse({{5, R"({vi:"1000002",type:"5",vsi:"v7",vsn:"Meridian",vsmsi:"477123456"})", kSuccess},
              {5, R"({vi:"1000002",type:"6",vr:"1"})", kSuccess},
              {5, R"({vi:"1000002",type:"7",va:"1"})", kSuccess},
              {6, R"({vi:"1000002",vfn:"1",vff:"2",vfa:"3",vdn:"4",vda:"5",vwn:"6",vwa:"500000"})", kSuccess},
              {13, R"({vi:"1000002",time:"2026-03-01 00:00:00"})", kSuccess},
              {13, R"({vi:"1000002",time:"2010-01-01 00:00:00"})", kSuccess},
              {kRemark, R"({optype:"1",type:"3",objectid:"1000002",seq:"1",subject:"",body:""})", kSuccess}});
    ExpectVoyage(
        R"("vn":"New voyage - 0","vsi":"v7","vsn":"Meridian","vsmsi":"477123456","vr":"1","va":"1",)"
        R"("vfn":"1","vff":"2","vfa":"3","vdn":"4","vda":"5","vwn":"6","vwa":"500000","vrk":"1","modais":"2")");
    Converse({{5, R"({vi:"1000002",type:"6",vr:"0"})", kSuccess},
              {5, R"({vi:"1000002",type:"7",va:"0"})", kSuccess},
              {kRemark, R"({optype:"2",type:"3",objectid:"1000002",seq:"1"})", kSuccess}});
    ExpectVoyage(
        R"("vn":"New voyage - 0","vsi":"v7","vsn":"Meridian","vsmsi":"477123456","vr":"0","va":"0",)"
        R"("vfn":"1","vff":"2","vfa":"3","vdn":"4","vda":"5","vwn":"6","vwa":"500000","vrk":"0","modais":"2")");
}

TEST_F(VoyageCommandsTest, VesselWithoutIdButWithNameIsTaken) {
    Converse({{5, R"({vi:"1000002",type:"5",vsi:"",vsn:"Tern",vsmsi:"0"})", kSuccess}});
    ExpectVoyage(
        R"("vn":"New voyage - 0","vsi":"","vsn":"Tern","vsmsi":"0","vr":"0","va":"0",)"
        R"("vfn":"0","vff":"0","vfa":"0","vdn":"0","vda":"0","vwn":"0","vwa":"0","vrk":"0","modais":"0")");
}

TEST_F(VoyageCommandsTest, AisTimesAreReadInTheOrderOfTheirAdditionAndOnceEach) {
    Converse({{12, R"({vi:"1000002"})", R"({"times":[]})"},
              {13, R"({vi:"1000002",time:"2026-03-02 00:00:00"})", kSuccess},
              {13, R"({vi:"1000002",time:"2026-03-01 00:00:00"})", kSuccess},
              {13, R"({vi:"1000002",time:"2026-03-02 00:00:00"})", kSuccess},
              {12, R"({vi:"1000002"})", R"({"times":["2026-03-02 00:00:00","2026-03-01 00:00:00"]})"}});
}

}  // namespace
}  // namespace Tarvik::Server
