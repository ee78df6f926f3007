// SPDX-License-Identifier: MIT
#include "host/plugins/ais/store/TrackStore.h"

#include <cmath>
#include <filesystem>
#include <stdexcept>

#include <SQLiteCpp/SQLiteCpp.h>

namespace Tarvik::Ais {

namespace {

constexpr double kUnits = 1e7;  ///< of places, so that they come back as they were sent
constexpr int kVersion = 1;
constexpr int kBusyMs = 2000;

constexpr const char* kSchema = R"(
CREATE TABLE vessel(mmsi INTEGER PRIMARY KEY, name TEXT NOT NULL, callsign TEXT NOT NULL, destination TEXT NOT NULL,
  imo INTEGER NOT NULL, kind INTEGER NOT NULL, bow INTEGER NOT NULL, stern INTEGER NOT NULL, port INTEGER NOT NULL,
  starboard INTEGER NOT NULL, heard INTEGER NOT NULL, watched INTEGER NOT NULL) STRICT;
CREATE TABLE fix(mmsi INTEGER NOT NULL, time INTEGER NOT NULL, longitude INTEGER NOT NULL, latitude INTEGER NOT NULL,
  speed REAL NOT NULL, course REAL NOT NULL, heading INTEGER NOT NULL, PRIMARY KEY(mmsi, time)) STRICT, WITHOUT ROWID;
)";

Fix ReadFix(SQLite::Statement& row, int column) {
    Fix fix;
    fix.time = row.getColumn(column).getInt64();
    fix.longitude = double(row.getColumn(column + 1).getInt64()) / kUnits;
    fix.latitude = double(row.getColumn(column + 2).getInt64()) / kUnits;
    fix.speed = row.getColumn(column + 3).getDouble();
    fix.course = row.getColumn(column + 4).getDouble();
    fix.heading = row.getColumn(column + 5).getInt();
    return fix;
}

void WriteFixes(SQLite::Database& database, const std::vector<KeptFix>& fixes) {
    SQLite::Statement put(database, "INSERT OR REPLACE INTO fix VALUES(?,?,?,?,?,?,?)");
    for (const auto& [mmsi, fix] : fixes) {
        put.bind(1, mmsi);
        put.bind(2, fix.time);
        put.bind(3, static_cast<std::int64_t>(std::llround(fix.longitude * kUnits)));
        put.bind(4, static_cast<std::int64_t>(std::llround(fix.latitude * kUnits)));
        put.bind(5, fix.speed);
        put.bind(6, fix.course);
        put.bind(7, fix.heading);
        put.exec();
        put.reset();
    }
}

void WriteVessels(SQLite::Database& database, const std::vector<Vessel>& vessels) {
    SQLite::Statement put(database, "INSERT OR REPLACE INTO vessel VALUES(?,?,?,?,?,?,?,?,?,?,?,?)");
    for (const Vessel& vessel : vessels) {
        const Particulars& told = vessel.particulars;
        put.bind(1, vessel.mmsi);
        put.bind(2, told.name);
        put.bind(3, told.callSign);
        put.bind(4, told.destination);
        put.bind(5, told.imo);
        int column = 6;
        for (const int number : {told.shipType, told.toBow, told.toStern, told.toPort, told.toStarboard}) {
            put.bind(column++, number);
        }
        put.bind(11, vessel.heard);
        put.bind(12, vessel.watched ? 1 : 0);
        put.exec();
        put.reset();
    }
}

}  // namespace

TrackStore::TrackStore(const std::string& file) {
    try {
        Open(file);
    } catch (const std::exception&) {
        // What somebody else wrote or a disk spoilt must not keep ships off the chart; it stays for a look.
        database_.reset();
        std::filesystem::rename(file, file + ".damaged");
        std::filesystem::remove(file + "-wal");
        std::filesystem::remove(file + "-shm");
        Open(file);
    }
}

TrackStore::~TrackStore() = default;

void TrackStore::Open(const std::string& file) {
    database_ =
        std::make_unique<SQLite::Database>(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, kBusyMs);
    database_->exec("PRAGMA journal_mode=WAL");
    database_->exec("PRAGMA synchronous=NORMAL");
    database_->exec("PRAGMA journal_size_limit=16777216");
    SQLite::Transaction making(*database_, SQLite::TransactionBehavior::IMMEDIATE);
    const int version = database_->execAndGet("PRAGMA user_version").getInt();
    if (version == 0) {
        database_->exec(kSchema);
        database_->exec("PRAGMA user_version=" + std::to_string(kVersion));
    } else if (version != kVersion) {
        throw std::runtime_error("tracks of another version");
    }
    making.commit();
}

void TrackStore::Write(const std::vector<KeptFix>& fixes, const std::vector<Vessel>& vessels) {
    SQLite::Transaction writing(*database_, SQLite::TransactionBehavior::IMMEDIATE);
    WriteFixes(*database_, fixes);
    WriteVessels(*database_, vessels);
    writing.commit();
}

/// Of the fixes before `before` the first in each `step` of time stays.
void TrackStore::ThinOlder(std::int64_t before, std::int64_t step) {
    SQLite::Statement thin(
        *database_,
        "DELETE FROM fix WHERE time < ?1 AND EXISTS (SELECT 1 FROM fix AS first WHERE "
        "first.mmsi = fix.mmsi AND first.time < fix.time AND first.time >= fix.time - fix.time % ?2)");
    thin.bind(1, before);
    thin.bind(2, step);
    thin.exec();
}

void TrackStore::Thin(std::int64_t now, std::int64_t most) {
    SQLite::Transaction thinning(*database_, SQLite::TransactionBehavior::IMMEDIATE);
    SQLite::Statement old(*database_,
                          "DELETE FROM fix WHERE time < ?1 OR (time < ?2 AND mmsi NOT IN "
                          "(SELECT mmsi FROM vessel WHERE watched = 1))");
    old.bind(1, now - kWatchedAge);
    old.bind(2, now - kOtherAge);
    old.exec();
    // Made by a clock that was a day or more ahead.
    SQLite::Statement ahead(*database_, "DELETE FROM fix WHERE time > ?");
    ahead.bind(1, now + kOtherAge);
    ahead.exec();
    for (const auto& [age, step] : kSteps) {
        ThinOlder(now - age, step);
    }
    const std::int64_t over = CountFixes() - most;
    if (over > 0) {
        SQLite::Statement drop(
            *database_,
            "DELETE FROM fix WHERE time <= (SELECT time FROM fix ORDER BY time LIMIT 1 OFFSET ?)");
        drop.bind(1, over - 1);
        drop.exec();
    }
    SQLite::Statement silent(
        *database_,
        "DELETE FROM vessel WHERE watched = 0 AND heard < ? AND mmsi NOT IN (SELECT mmsi FROM fix)");
    silent.bind(1, now - kWatchedAge);
    silent.exec();
    thinning.commit();
}

std::vector<Vessel> TrackStore::Load(std::int64_t now) const {
    SQLite::Statement row(
        *database_,
        "SELECT v.mmsi, name, callsign, destination, imo, kind, bow, stern, port, starboard, heard, "
        "watched, f.time, longitude, latitude, speed, course, heading FROM vessel AS v LEFT JOIN fix AS "
        "f ON f.mmsi = v.mmsi AND f.time = (SELECT max(time) FROM fix WHERE mmsi = v.mmsi AND time <= ?)");
    row.bind(1, now + Vessels::kAhead);
    std::vector<Vessel> vessels;
    while (row.executeStep()) {
        Vessel vessel;
        vessel.mmsi = row.getColumn(0).getUInt();
        Particulars& told = vessel.particulars;
        told.name = row.getColumn(1).getString();
        told.callSign = row.getColumn(2).getString();
        told.destination = row.getColumn(3).getString();
        told.imo = row.getColumn(4).getUInt();
        int column = 5;
        for (int* number : {&told.shipType, &told.toBow, &told.toStern, &told.toPort, &told.toStarboard}) {
            *number = row.getColumn(column++).getInt();
        }
        vessel.heard = row.getColumn(10).getInt64();
        vessel.watched = row.getColumn(11).getInt() != 0;
        vessel.hasFix = !row.getColumn(12).isNull();
        if (vessel.hasFix) {
            vessel.last = ReadFix(row, 12);
            vessel.kept = vessel.last.time;
        }
        vessels.push_back(std::move(vessel));
    }
    return vessels;
}

std::vector<Fix> TrackStore::Track(std::uint32_t mmsi, std::int64_t begin, std::int64_t end) const {
    SQLite::Statement row(
        *database_,
        "SELECT time, longitude, latitude, speed, course, heading FROM fix WHERE mmsi = ? AND time "
        "BETWEEN ? AND ? ORDER BY time");
    row.bind(1, mmsi);
    row.bind(2, begin);
    row.bind(3, end);
    std::vector<Fix> fixes;
    while (row.executeStep()) {
        fixes.push_back(ReadFix(row, 0));
    }
    return fixes;
}

std::int64_t TrackStore::CountFixes() const {
    return database_->execAndGet("SELECT count(*) FROM fix").getInt64();
}

}  // namespace Tarvik::Ais
