// SPDX-License-Identifier: MIT
#include <filesystem>

#include <SQLiteCpp/SQLiteCpp.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "host/data/builder/Sources.h"

namespace Tarvik::Data {

namespace {

std::string Degrees(double value) {
    std::string text = fmt::format("{:.5f}", value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text;
}

/// A row of the table, fields named as its columns.
struct PointRow {
    std::string id;
    std::string name;
    std::string namecn;
    GeoPoint at;
    std::string isPort;
    std::string origid;
    std::string unlocode;
    std::string aliases{};  ///< apart by ";"
};

class Inserter {
  public:
    explicit Inserter(SQLite::Database& database)
        : statement_(database,
                     "insert into t_point(id,name,namecn,x,y,isport,origid,unlocode,aliases) "
                     "values(?,?,?,?,?,?,?,?,?)") {}
    void Add(const PointRow& row) {
        statement_.bind(1, row.id);
        statement_.bind(2, row.name);
        statement_.bind(3, row.namecn);
        statement_.bind(4, Degrees(row.at.x));
        statement_.bind(5, Degrees(row.at.y));
        statement_.bind(6, row.isPort);
        statement_.bind(7, row.origid);
        statement_.bind(8, row.unlocode);
        statement_.bind(9, row.aliases);
        statement_.exec();
        statement_.reset();
    }

  private:
    SQLite::Statement statement_;
};

}  // namespace

std::string WritePointDatabase(const std::string& path, const Sources& sources) {
    try {
        std::filesystem::remove(path);
        SQLite::Database database(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        database.exec("pragma journal_mode=off");
        SQLite::Transaction transaction(database);
        database.exec(
            "create table t_point(id text primary key, name text, namecn text, x text, y text, isport text, "
            "origid text, unlocode text, aliases text)");
        Inserter inserter(database);
        for (const RoutePointSource& p : sources.routePoints) {
            inserter.Add({p.id, p.name, p.namecn, p.at, "0", "0", ""});
        }
        for (const PortSource& p : sources.ports) {
            inserter.Add({p.id, p.name, p.namecn, p.at, "1", p.origid, p.unlocode,
                          fmt::format("{}", fmt::join(p.aliases, ";"))});
        }
        transaction.commit();
        return {};
    } catch (const std::exception& e) {
        return "cannot write " + path + ": " + e.what();
    }
}

}  // namespace Tarvik::Data
