// SPDX-License-Identifier: MIT
#include <unordered_map>

#include "host/server/storage/sql/SqlRecords.h"

namespace Tarvik::Server {

namespace {

VoyageRecord VoyageOf(const SqlRows& row) {
    VoyageRecord voyage;
    voyage.id = row.Text(1);
    voyage.name = row.Text(2);
    voyage.vessel = {row.Text(3), row.Text(4), row.Integer32(5)};
    voyage.routeShown = row.Flag(6);
    voyage.aisTraced = row.Flag(7);
    voyage.state = static_cast<DeletionState>(row.Integer32(8));
    voyage.hasRemark = row.Flag(9);
    voyage.aisTimes = row.Integer32(10);
    for (std::size_t i = 0; i < voyage.figures.size(); ++i) {
        voyage.figures[i] = row.Integer32(11 + static_cast<int>(i));
    }
    return voyage;
}

std::vector<BookRowRecord> ReadBookRows(SqlConnection& connection, const std::string& owner,
                                        const std::string& bookId) {
    std::vector<BookRowRecord> rows;
    const auto row = connection.Query(
        "SELECT lon, psn, xc, yc, psr, pli, psp, pst FROM book_rows WHERE owner = $1 AND pbi = $2 "
        "ORDER BY lon",
        owner, bookId);
    while (row->Next()) {
        rows.push_back({row->Integer32(0), row->Text(1), row->Real(2), row->Real(3), row->Text(4),
                        row->Integer32(5), row->Real(6), row->Integer32(7)});
    }
    return rows;
}

}  // namespace

std::vector<CategoryRecord> ReadCatalog(SqlConnection& connection, const std::string& owner) {
    std::vector<CategoryRecord> categories;
    std::unordered_map<std::string, std::size_t> places;
    const auto category = connection.Query(
        "SELECT ci, cn, cd, EXISTS (SELECT 1 FROM remarks r WHERE r.owner = c.owner AND r.type = 2 "
        "AND {object:c.ci}) FROM categories c WHERE owner = $1 AND cd <> 2 ORDER BY CAST(ci AS BIGINT)",
        owner);
    while (category->Next()) {
        places.emplace(category->Text(0), categories.size());
        categories.push_back({category->Text(0),
                              category->Text(1),
                              category->Flag(3),
                              static_cast<DeletionState>(category->Integer32(2)),
                              {}});
    }
    const auto voyage = connection.Query(
        "SELECT ci, vi, vn, vsi, vsn, vsmsi, vr, va, vd, "
        "EXISTS (SELECT 1 FROM remarks r WHERE r.owner = v.owner AND r.type = 3 AND {object:v.vi}), "
        "(SELECT count(*) FROM ais_times a WHERE a.owner = v.owner AND a.vi = v.vi), "
        "vfn, vff, vfa, vdn, vda, vwn, vwa "
        "FROM voyages v WHERE owner = $1 AND vd <> 2 ORDER BY CAST(vi AS BIGINT)",
        owner);
    while (voyage->Next()) {
        const auto place = places.find(voyage->Text(0));
        if (place != places.end()) {
            categories[place->second].voyages.push_back(VoyageOf(*voyage));
        }
    }
    return categories;
}

std::vector<PortCallRecord> ReadPortCalls(SqlConnection& connection, const std::string& owner,
                                          const std::string& voyageId) {
    std::vector<PortCallRecord> calls;
    const auto row = connection.Query(
        "SELECT lon, ppi, ppn, pp, psp, pw, apt FROM port_calls WHERE owner = $1 AND vi = $2 ORDER BY lon",
        owner, voyageId);
    while (row->Next()) {
        calls.push_back({row->Integer32(0), row->Text(1), row->Text(2), row->Text(3), row->Real(4),
                         row->Real(5), row->Real(6)});
    }
    return calls;
}

std::optional<BookRecord> ReadBook(SqlConnection& connection, const std::string& owner,
                                   const std::string& voyageId) {
    const auto found =
        connection.Query("SELECT pbi, eta FROM position_books WHERE owner = $1 AND vi = $2", owner, voyageId);
    if (!found->Next()) {
        return std::nullopt;
    }
    BookRecord book{found->Text(0), found->Text(1), {}};
    book.rows = ReadBookRows(connection, owner, book.id);
    return book;
}

std::vector<std::string> ReadAisTimes(SqlConnection& connection, const std::string& owner,
                                      const std::string& voyageId) {
    std::vector<std::string> times;
    const auto row = connection.Query(
        "SELECT time FROM ais_times WHERE owner = $1 AND vi = $2 ORDER BY place", owner, voyageId);
    while (row->Next()) {
        times.push_back(row->Text(0));
    }
    return times;
}

}  // namespace Tarvik::Server
