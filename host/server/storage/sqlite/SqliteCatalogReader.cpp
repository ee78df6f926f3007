// SPDX-License-Identifier: MIT
#include "host/server/storage/sqlite/SqliteCatalogReader.h"

#include <map>

#include "host/server/storage/sqlite/SqliteStatement.h"

namespace Tarvik::Server {

namespace {

constexpr std::string_view kCategories =
    "SELECT ci, cn, cd, EXISTS (SELECT 1 FROM remarks r WHERE r.owner = c.owner AND r.type = 2 "
    "AND r.objectid = c.ci) FROM categories c WHERE owner = ? AND cd <> 2 ORDER BY CAST(ci AS INTEGER)";

constexpr std::string_view kVoyages =
    "SELECT ci, vi, vn, vsi, vsn, vsmsi, vr, va, vd, "
    "EXISTS (SELECT 1 FROM remarks r WHERE r.owner = v.owner AND r.type = 3 AND r.objectid = v.vi), "
    "(SELECT count(*) FROM ais_times a WHERE a.owner = v.owner AND a.vi = v.vi), "
    "vfn, vff, vfa, vdn, vda, vwn, vwa "
    "FROM voyages v WHERE owner = ? AND vd <> 2 ORDER BY CAST(vi AS INTEGER)";

VoyageRecord ReadVoyage(const SqliteStatement& row) {
    VoyageRecord voyage;
    voyage.id = row.Text(1);
    voyage.name = row.Text(2);
    voyage.vessel = {row.Text(3), row.Text(4), row.Integer32(5)};
    voyage.routeShown = row.Integer(6) != 0;
    voyage.aisTraced = row.Integer(7) != 0;
    voyage.state = static_cast<DeletionState>(row.Integer32(8));
    voyage.hasRemark = row.Integer(9) != 0;
    voyage.aisTimes = row.Integer32(10);
    for (std::size_t i = 0; i < voyage.figures.size(); ++i) {
        voyage.figures[i] = row.Integer32(11 + static_cast<int>(i));
    }
    return voyage;
}

}  // namespace

std::vector<CategoryRecord> ReadCatalog(SqliteDatabase& database, const std::string& owner) {
    std::vector<CategoryRecord> categories;
    std::map<std::string, std::size_t> places;
    SqliteStatement category(database, kCategories);
    category.Bind(owner);
    while (category.Step()) {
        places.emplace(category.Text(0), categories.size());
        categories.push_back({category.Text(0),
                              category.Text(1),
                              category.Integer(3) != 0,
                              static_cast<DeletionState>(category.Integer32(2)),
                              {}});
    }
    SqliteStatement voyage(database, kVoyages);
    voyage.Bind(owner);
    while (voyage.Step()) {
        const auto place = places.find(voyage.Text(0));
        if (place != places.end()) {
            categories[place->second].voyages.push_back(ReadVoyage(voyage));
        }
    }
    return categories;
}

}  // namespace Tarvik::Server
