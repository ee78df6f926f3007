// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "seaplan/controllers/tests/ScheduleFixture.h"

namespace Tarvik::Seaplan {

/// The voyage from A (left at 14:00) to B over 0.5,0, which it passes at 17:00:19; its vessel was seen at
/// 0.4,0.1 at 17:00 of the plan's zone.
class CorrectionFixture : public ScheduleFixture {
  protected:
    using Texts = std::vector<std::string>;

    CorrectionFixture() {
        folder.WriteSamplePoints();
        ReplySchedule();
        voyages.LoadSchedule("9", rows, -1);
        Voyage().vsi = "s";
        Voyage().vsn = "Ship";
        Voyage().vsmsi = 55;
        SeeShipAt(17, 0);
        Voyage().lastPosText = "0.400,0.100";
        host.requests.clear();
    }

    /// Time of the last position, in the plan's zone.
    void SeeShipAt(int hour, int minute, int second = 0) {
        const Util::_datetime_t local(second, minute, hour, 1, 3, 2024);
        Voyage().lastPosTime = static_cast<std::int32_t>(local.to_gmt_timer() - 8 * 3600);
    }
    void ReplyWay(const std::string& pointset = "0.4,0.1|0.7,0.05|1,0") {
        host.Reply(2, R"({eid:0,pointset:")" + pointset + R"("})");
    }
    Texts Positions() {
        Texts texts;
        for (const PosBookPoint& point : Voyage().positionBook.points) {
            texts.push_back(point.position);
        }
        return texts;
    }
    static std::string NameList(const PortCallRows& list) {
        std::string text;
        for (const VoyPortCall& row : list) {
            text += (text.empty() ? "" : " ") + row.ppn;
        }
        return text;
    }

    int applied = -1;
    PortCallRows before;
    PortCallRows after;
};

}  // namespace Tarvik::Seaplan
