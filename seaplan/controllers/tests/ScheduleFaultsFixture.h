// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "seaplan/controllers/PendingRoute.h"
#include "seaplan/controllers/VoyCatalogController.h"
#include "seaplan/controllers/VoyController.h"
#include "seaplan/controllers/VoyPortCallModule.h"
#include "seaplan/data/PortDirectory.h"
#include "seaplan/panels/tests/PanelDesk.h"

namespace Tarvik::Seaplan {

using Names = std::vector<std::string>;

/// The real controllers on the real server, with what is stored as the server tells it.
class ScheduleFaultsFixture : public testing::Test {
  protected:
    ScheduleFaultsFixture() {
        desk.AddCategory("Cat");
        std::string user;
        EXPECT_EQ(desk.catalog.Connect(user), 0);
        user_ = user;
    }
    /// A voyage on the server, saved with these ports unless there are none, and all loaded.
    std::string Voyage(const Names& ports) {
        DeskVoyage voyage;
        voyage.name = "V" + std::to_string(++made_);
        voyage.calls = Rows(ports);
        const std::string vi = desk.AddVoyage("Cat", voyage);
        Restart();
        return vi;
    }
    /// A new client of the same user.
    void Restart() {
        desk.store.Clear();
        desk.voyages.Module().Pending().Forget();
        EXPECT_EQ(desk.catalog.Load(user_), 0);
        desk.ForgetRecords();
    }
    static PortCallRows Rows(const Names& ports) {
        PortCallRows rows(ports.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i].ppn = ports[i];
            rows[i].pp = i == 0 ? "L" : "D";
            rows[i].psp = i == 0 ? 0.0F : 10.0F;
        }
        if (!rows.empty()) {
            rows.front().eta = Util::_datetime_t(0, 0, 8, 1, 3, 2024);
        }
        return rows;
    }
    PortCallRows Calculated(const std::string& vi, const Names& ports) {
        PortCallRows rows = Rows(ports);
        PortCallRows out;
        int had = 0;
        desk.voyages.ResolvePortIds(rows);
        EXPECT_EQ(desk.voyages.CalculateForVoyage(vi, rows, out, had), 0);
        return out;
    }
    /// Port names of the rows and of the book as the server has them.
    std::pair<Names, Names> OnServer(const std::string& vi) {
        PortCallRows rows;
        VoyPositionBook book;
        desk.voyages.Module().LoadPortCalls(vi, rows);
        desk.voyages.Module().LoadPositionBook(vi, book);
        std::pair<Names, Names> names;
        for (const VoyPortCall& row : rows) {
            names.first.push_back(row.ppn);
        }
        for (const PosBookPoint& point : book.points) {
            if (point.pst == PortPoint) {
                names.second.push_back(point.psn);
            }
        }
        return names;
    }
    /// Whether anything was sent that changes the server.
    bool SentAChange() const {
        return desk.Count(Ask::kSavePortCalls) + desk.Count(Ask::kBookDate) + desk.Count(Ask::kSaveBook) +
                   desk.Count({8}) >
               0;
    }

    PanelDesk desk;

  private:
    std::string user_;
    int made_ = 0;
};

}  // namespace Tarvik::Seaplan
