// SPDX-License-Identifier: MIT
#include "seaplan/data/PointTables.h"

#include <tarvik/interface/LoadString.h>
#include <tarvik/util/FileUtl.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/data/TableRows.h"
#include "seaplan/data/VoyPositionBook.h"

namespace Tarvik::Seaplan {

namespace {

constexpr std::size_t kShortId = 4;
constexpr int kFirstPortDigit = 4;
constexpr const char16_t* kPointNames = u"RoutePoints";  ///< section of the language files

std::string LinkKey(const std::string& from, const std::string& to) {
    return from + "-" + to;
}

std::string PositionText(const Util::CppSQLite3Query& row, int column) {
    return ColumnText(row, column) + "," + ColumnText(row, column + 1);
}

}  // namespace

bool AreLinked(const SamePortLinks& links, const std::string& idA, const std::string& idB) {
    return links.contains(LinkKey(idA, idB));
}

std::string ShownName(const RoutePointRow& point) {
    const Interface::LanguageSource* texts = Interface::LanguageSource::Current();
    if (texts == nullptr) {
        return point.name;
    }
    const std::u16string section(kPointNames);
    const auto text = texts->Find(section, section, Util::StringUtl::TranslateString(point.id));
    return text && !text->empty() ? Util::StringUtl::TranslateString(*text) : point.name;
}

std::string PointDatabasePath() {
    return Util::FileUtl::BusinessData(Util::kPointTableFile);
}

int LoadPortPositions(const std::string& database, PointMap& map) {
    if (!map.empty()) {
        return 0;
    }
    PointMap loaded;
    const bool read =
        ForEachRow(database, "select id,x,y from t_point where isport='1'", [&](const auto& row) {
            const std::string id = ColumnText(row, 0);
            loaded[id] = {id, "", PositionText(row, 1)};
        });
    if (!read) {
        return -1;
    }
    map = std::move(loaded);
    return 0;
}

int LoadRoutePoints(const std::string& database, PointMap& map) {
    if (!map.empty()) {
        return 0;
    }
    PointMap loaded;
    const bool read =
        ForEachRow(database, "select id,name,x,y from t_point where isport='0'", [&](const auto& row) {
            const std::string id = ColumnText(row, 0);
            loaded[id] = {id, ColumnText(row, 1), PositionText(row, 2)};
        });
    if (!read) {
        return -1;
    }
    map = std::move(loaded);
    return 0;
}

int LoadSamePortLinks(const std::string& database, SamePortLinks& links) {
    SamePortLinks loaded;
    const char* sql = "select id,origid from t_point where isport='1' and origid!='0'";
    const bool read = ForEachRow(database, sql, [&](const auto& row) {
        const std::string id = ColumnText(row, 0);
        const std::string original = ColumnText(row, 1);
        loaded[LinkKey(id, original)] = "";
        loaded[LinkKey(original, id)] = "";
    });
    if (!read) {
        return -1;
    }
    links.merge(loaded);
    return 0;
}

int LoadPortNamesByLocal(const std::string& database, std::map<std::string, std::string>& names) {
    std::map<std::string, std::string> loaded;
    const bool read =
        ForEachRow(database, "select name,namecn from t_point where isport='1'", [&](const auto& row) {
            if (const char* local = row.fieldValue(1)) {
                loaded[local] = ColumnText(row, 0);
            }
        });
    if (!read) {
        return -1;
    }
    loaded.merge(names);  // what was just read wins
    names = std::move(loaded);
    return 0;
}

int PointKindOfId(const std::string& id) {
    if (id.size() < kShortId) {
        return ShortIdRoutePoint;
    }
    return Util::StringUtl::ToInt(id.substr(0, 1)) >= kFirstPortDigit ? PortPoint : LongIdRoutePoint;
}

}  // namespace Tarvik::Seaplan
