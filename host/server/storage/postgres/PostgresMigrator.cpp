// SPDX-License-Identifier: MIT
#include "host/server/storage/postgres/PostgresConnection.h"

namespace Tarvik::Server {

namespace {

/// Any number will do as long as every version of this program takes the same ("Seap").
constexpr std::int64_t kMigrationLock = 0x53656170;

/// A step may take longer than a request, and who waits for another's steps too.
constexpr const char* kNoLimits =
    "SELECT set_config('statement_timeout', '0', true), set_config('lock_timeout', '0', true)";

constexpr const char* kOwnTable =
    "SELECT current_schema() IS NOT NULL, "
    "to_regclass(quote_ident(current_schema()) || '.schema_version') IS NOT NULL";

/// Tables in the schema, except those that extensions of the data base bring along.
constexpr const char* kAnyTable =
    "SELECT EXISTS (SELECT 1 FROM pg_catalog.pg_class c "
    "WHERE c.relnamespace = to_regnamespace(quote_ident(current_schema())) AND c.relkind IN ('r', 'p') "
    "AND NOT EXISTS (SELECT 1 FROM pg_catalog.pg_depend d WHERE d.classid = 'pg_catalog.pg_class'::regclass "
    "AND d.objid = c.oid AND d.deptype = 'e'))";

constexpr const char* kMakeVersion =
    "CREATE TABLE schema_version (only_row BOOLEAN PRIMARY KEY DEFAULT TRUE CHECK (only_row), "
    "version INTEGER NOT NULL); INSERT INTO schema_version (version) VALUES (0)";

/// Version of the tables, 0 when there are none.
std::int64_t VersionOf(PostgresConnection& connection) {
    const PostgresRows own = connection.Execute(kOwnTable);
    if (!own.Flag(0, 0)) {
        throw SqlError("the data base has no schema that the user may use");
    }
    if (!own.Flag(0, 1)) {
        if (connection.Execute(kAnyTable).Flag(0, 0)) {
            throw SqlError("the data base holds tables of another program");
        }
        return 0;
    }
    const PostgresRows version = connection.Execute("SELECT version FROM schema_version");
    if (version.Count() != 1 || version.Integer(0, 0) < 1) {
        throw SqlError("the data base holds tables of another program");
    }
    return version.Integer(0, 0);
}

}  // namespace

void MigratePostgres(PostgresConnection& connection) {
    connection.AllowAnyTime();
    connection.Execute(kNoLimits);
    connection.Execute("SELECT pg_advisory_xact_lock(" + std::to_string(kMigrationLock) + ")");
    const auto& steps = PostgresMigrations();
    const auto newest = static_cast<std::int64_t>(steps.size());
    const std::int64_t version = VersionOf(connection);
    if (version > newest) {
        throw SqlError("the data base has version " + std::to_string(version) +
                       ", made by a newer program; this one reads versions up to " + std::to_string(newest));
    }
    if (version == newest) {
        return;
    }
    if (version == 0) {
        connection.Execute(kMakeVersion);
    }
    for (auto step = static_cast<std::size_t>(version); step < steps.size(); ++step) {
        connection.Execute(std::string(steps[step]));
    }
    connection.Execute("UPDATE schema_version SET version = " + std::to_string(newest));
}

}  // namespace Tarvik::Server
