// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresCatalogReader.h"

#include <map>

namespace Tarvik::Server {

namespace {

constexpr std::string_view kCategories =
    "SELECT ci, cn, cd, EXISTS (SELECT 1 FROM remarks r WHERE r.owner = c.owner AND r.type = 2 "
    "AND md5(r.objectid) = md5(c.ci) AND r.objectid = c.ci) "
    "FROM categories c WHERE owner = $1 AND cd <> 2 ORDER BY ci::bigint";

constexpr std::string_view kVoyages =
    "SELECT ci, vi, vn, vsi, vsn, vsmsi, vr, va, vd, "
    "EXISTS (SELECT 1 FROM remarks r WHERE r.owner = v.owner AND r.type = 3 "
    "AND md5(r.objectid) = md5(v.vi) AND r.objectid = v.vi), "
    "(SELECT count(*) FROM ais_times a WHERE a.owner = v.owner AND a.vi = v.vi), "
    "vfn, vff, vfa, vdn, vda, vwn, vwa "
    "FROM voyages v WHERE owner = $1 AND vd <> 2 ORDER BY vi::bigint";

VoyageRecord VoyageOf(const PostgresRows& rows, int row) {
    VoyageRecord voyage;
    voyage.id = rows.Text(row, 1);
    voyage.name = rows.Text(row, 2);
    voyage.vessel = {rows.Text(row, 3), rows.Text(row, 4), rows.Integer32(row, 5)};
    voyage.routeShown = rows.Flag(row, 6);
    voyage.aisTraced = rows.Flag(row, 7);
    voyage.state = static_cast<DeletionState>(rows.Integer32(row, 8));
    voyage.hasRemark = rows.Flag(row, 9);
    voyage.aisTimes = rows.Integer32(row, 10);
    for (std::size_t i = 0; i < voyage.figures.size(); ++i) {
        voyage.figures[i] = rows.Integer32(row, 11 + static_cast<int>(i));
    }
    return voyage;
}

}  // namespace

std::vector<CategoryRecord> ReadCatalog(PostgresConnection& connection, const std::string& owner) {
    std::vector<CategoryRecord> categories;
    std::map<std::string, std::size_t> places;
    const PostgresRows category = connection.Run(kCategories, owner);
    for (int row = 0; row < category.Count(); ++row) {
        places.emplace(category.Text(row, 0), categories.size());
        categories.push_back({category.Text(row, 0),
                              category.Text(row, 1),
                              category.Flag(row, 3),
                              static_cast<DeletionState>(category.Integer32(row, 2)),
                              {}});
    }
    const PostgresRows voyage = connection.Run(kVoyages, owner);
    for (int row = 0; row < voyage.Count(); ++row) {
        const auto place = places.find(voyage.Text(row, 0));
        if (place != places.end()) {
            categories[place->second].voyages.push_back(VoyageOf(voyage, row));
        }
    }
    return categories;
}

}  // namespace Tarvik::Server
