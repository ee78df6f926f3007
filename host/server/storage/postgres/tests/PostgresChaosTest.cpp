// SPDX-License-Identifier: MIT
// A data base that is cut off, full or silent: what was confirmed is there, what is not known is told
// to be unknown, and the storage goes on by itself.
#include <algorithm>
#include <chrono>
#include <random>
#include <string>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "host/server/storage/postgres/tests/PostgresProxy.h"
#include "host/server/storage/postgres/tests/PostgresTest.h"

namespace Tarvik::Server {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using Cut = PostgresProxy::Cut;

class PostgresChaosTest : public PostgresTest {
  protected:
    /// The storage behind the proxy, with one connection, which the test cuts.
    std::unique_ptr<PostgresStorage> OpenBehindProxy(milliseconds patience = kSilencePatience) {
        std::string text = connection_;
        const std::string folder = PostgresServer::Instance().SocketFolder();
        text.replace(text.find(folder), folder.size(), proxy_.SocketFolder());
        return PostgresStorage::Open(text, error_, {1, patience});
    }
    /// Lets the only other connection write no file beyond the size, as if the disk ended there. The data
    /// base server sets the limit, since it may run as another user.
    void LimitFiles(const std::string& bytes) {
        const std::string backend = Query(
            "SELECT pid FROM pg_stat_activity WHERE datname = current_database() AND pid <> "
            "pg_backend_pid()");
        Execute("COPY (SELECT 1) TO PROGRAM 'cat >/dev/null; prlimit --pid " + backend + " --fsize=" + bytes +
                ":unlimited'");
    }

    PostgresProxy proxy_{PostgresServer::Instance().SocketFolder()};
};

/// A connection that breaks in COMMIT, before or behind the data base's own decision.
class CutInCommit : public PostgresChaosTest, public testing::WithParamInterface<Cut> {};

TEST_P(CutInCommit, IsToldAsUnknownAndARepetitionDoesNoHarm) {
    const auto storage = OpenBehindProxy();
    ASSERT_NE(storage, nullptr) << error_;
    const std::string voyage = MakeVoyage(*storage);
    const std::string book = storage->Schedule().CreateBook("ann", voyage, "2026-03-01 08:00:00").Value();
    const std::vector<PortCallRecord> calls = {{0, "1", "New", "L", 1, 0, 0}};
    const std::vector<BookRowRecord> rows = {{0, "Row", 1, 2, "GC", 5, 18.52, 0}};
    const std::vector<BookRowRecord> more = {{1, "More", 1, 2, "GC", 5, 18.52, 0}};
    const RemarkRecord remark{1, "s", "b", 1, 1};
    /// A change, and how its repetition ends where it was stored; nothing for success.
    const std::vector<std::pair<std::function<Status()>, std::optional<FaultReason>>> changes = {
        {[&] { return storage->Schedule().ReplacePortCalls("ann", voyage, calls); }, {}},
        {[&] { return storage->Schedule().ReplaceBookRows("ann", book, "w", rows); }, {}},
        {[&] { return storage->Schedule().AppendBookRows("ann", book, "w", more); }, FaultReason::RowExists},
        {[&] { return storage->Schedule().AddAisTime("ann", voyage, "2026-03-01 08:00:00"); }, {}},
        {[&] { return storage->Catalog().RenameVoyage("ann", voyage, "W"); }, {}},
        {[&] {
             return storage->Remarks().AddRemark("ann", {kVoyageRemark, voyage}, remark);
         },
         FaultReason::RemarkExists},
        {[&] { return storage->Catalog().MoveVoyage("ann", voyage, DeletionState::InBin); },
         FaultReason::NotInUse}};
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        const auto& [change, again] = changes[i];
        proxy_.Next(GetParam());
        const Status unknown = change();
        ASSERT_FALSE(unknown);
        EXPECT_EQ(unknown.GetFault().reason, FaultReason::MaybeStored) << unknown.GetFault().detail;
        EXPECT_EQ(unknown.GetFault().Kind(), FaultKind::Failed);
        const Status repeated = change();
        const bool refused = GetParam() == Cut::AfterCommit && again;
        EXPECT_EQ(repeated.Succeeded(), !refused);
        if (refused && !repeated) {
            EXPECT_EQ(repeated.GetFault().reason, *again);
        }
    }
    EXPECT_EQ(storage->Schedule().LoadPortCalls("ann", voyage).Value(), calls);
    EXPECT_EQ(storage->Schedule().LoadBook("ann", voyage).Value()->rows.size(), 2U);
    EXPECT_EQ(storage->Schedule().LoadAisTimes("ann", voyage).Value().size(), 1U);
    EXPECT_EQ(storage->Remarks().LoadRemarks("ann", {kVoyageRemark, voyage}).Value().size(), 1U);
    EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value()[0].voyages[0].name, "W");
}

INSTANTIATE_TEST_SUITE_P(Sides, CutInCommit, testing::Values(Cut::BeforeCommit, Cut::AfterCommit),
                         [](const auto& side) {
                             return side.param == Cut::BeforeCommit ? "Before" : "After";
                         });

TEST_F(PostgresChaosTest, CutInCommitOfACreationLeavesOneOrNone) {
    const auto storage = OpenBehindProxy();
    ASSERT_NE(storage, nullptr) << error_;
    for (const Cut cut : {Cut::BeforeCommit, Cut::AfterCommit}) {
        const std::size_t before = storage->Catalog().LoadCatalog("ann").Value().size();
        proxy_.Next(cut);
        const auto made = storage->Catalog().CreateCategory("ann", "A");
        ASSERT_FALSE(made);
        EXPECT_EQ(made.GetFault().reason, FaultReason::MaybeStored);
        EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().size(),
                  before + (cut == Cut::AfterCommit ? 1 : 0));
    }
}

/// A data base that says nothing any more within COMMIT, before or behind its own decision.
class SilentInCommit : public PostgresChaosTest, public testing::WithParamInterface<Cut> {};

TEST_P(SilentInCommit, IsToldAsUnknownInItsTimeAndARepetitionDoesNoHarm) {
    const auto storage = OpenBehindProxy(milliseconds(1000));
    ASSERT_NE(storage, nullptr) << error_;
    const std::string voyage = MakeVoyage(*storage);
    const std::string book = storage->Schedule().CreateBook("ann", voyage, "2026-03-01 08:00:00").Value();
    const std::vector<PortCallRecord> calls = {{0, "1", "New", "L", 1, 0, 0}};
    const std::vector<BookRowRecord> rows = {{0, "Row", 1, 2, "GC", 5, 18.52, 0}};
    const std::vector<std::function<Status()>> changes = {
        [&] { return storage->Schedule().ReplacePortCalls("ann", voyage, calls); },
        [&] { return storage->Schedule().ReplaceBookRows("ann", book, "w", rows); }};
    for (const auto& change : changes) {
        proxy_.Next(GetParam());
        const auto begin = steady_clock::now();
        const Status unknown = change();
        EXPECT_LT(steady_clock::now() - begin, milliseconds(6000));
        ASSERT_FALSE(unknown);
        EXPECT_EQ(unknown.GetFault().reason, FaultReason::MaybeStored);
        EXPECT_EQ(unknown.GetFault().detail, "the data base did not answer in time");
        EXPECT_TRUE(change());
    }
    EXPECT_EQ(storage->Schedule().LoadPortCalls("ann", voyage).Value(), calls);
    EXPECT_EQ(storage->Schedule().LoadBook("ann", voyage).Value()->rows, rows);
    proxy_.Next(GetParam());
    const auto made = storage->Catalog().CreateCategory("ann", "B");
    ASSERT_FALSE(made);
    EXPECT_EQ(made.GetFault().reason, FaultReason::MaybeStored);
    const std::size_t stored = GetParam() == Cut::SilentAtCommit ? 2 : 1;
    EXPECT_EQ(storage->Catalog().LoadCatalog("ann").Value().size(), stored);
}

INSTANTIATE_TEST_SUITE_P(Sides, SilentInCommit, testing::Values(Cut::SilentBeforeCommit, Cut::SilentAtCommit),
                         [](const auto& side) {
                             return side.param == Cut::SilentBeforeCommit ? "Before" : "At";
                         });

TEST_F(PostgresChaosTest, SilenceBehindTheProxyIsGivenUpInItsTime) {
    const auto storage = OpenBehindProxy(milliseconds(400));
    ASSERT_NE(storage, nullptr) << error_;
    proxy_.Next(Cut::Silent);
    const auto begin = steady_clock::now();
    const auto made = storage->Catalog().CreateCategory("ann", "A");
    EXPECT_LT(steady_clock::now() - begin, milliseconds(3000));
    ASSERT_FALSE(made);
    EXPECT_EQ(made.GetFault().reason, FaultReason::StorageFailed);
    EXPECT_EQ(made.GetFault().detail, "the data base did not answer in time");
    proxy_.Next(Cut::Never);
    EXPECT_TRUE(storage->Catalog().CreateCategory("ann", "A"));
}

TEST_F(PostgresChaosTest, DataBaseThatAcceptsAndSaysNothingIsGivenUpInItsTime) {
    proxy_.Next(Cut::Silent);
    const auto begin = steady_clock::now();
    EXPECT_EQ(
        PostgresStorage::Open(
            fmt::format("host={} user=seaplan dbname=x connect_timeout=2", proxy_.SocketFolder()), error_),
        nullptr);
    EXPECT_LT(steady_clock::now() - begin, milliseconds(6000));
    EXPECT_NE(error_.find("timeout"), std::string::npos) << error_;
}

TEST_F(PostgresChaosTest, FullDiskFailsWhatDoesNotFitAndNothingElse) {
    const auto storage = PostgresStorage::Open(connection_, error_, {1});
    ASSERT_NE(storage, nullptr) << error_;
    const std::string voyage = MakeVoyage(*storage);
    ASSERT_TRUE(storage->Schedule().ReplacePortCalls("ann", voyage, {{0, "1", "First", "L", 1, 0, 0}}));
    // Beyond a segment of the log, which is never longer, and below what the change needs.
    LimitFiles(std::to_string(1536 * 1024));
    std::mt19937 random{20260303};
    std::vector<PortCallRecord> many;
    for (int i = 0; i < 3000; ++i) {
        std::string name(1000, ' ');
        std::generate(name.begin(), name.end(), [&] { return static_cast<char>('a' + random() % 26); });
        many.push_back({i, "1", name, "D", 1, 0, 0});
    }
    const Status full = storage->Schedule().ReplacePortCalls("ann", voyage, many);
    ASSERT_FALSE(full);
    EXPECT_EQ(full.GetFault().reason, FaultReason::StorageFailed);
    EXPECT_NE(full.GetFault().detail.find("could not extend file"), std::string::npos)
        << full.GetFault().detail;
    EXPECT_EQ(storage->Schedule().LoadPortCalls("ann", voyage).Value().at(0).portName, "First");
    EXPECT_TRUE(storage->Catalog().RenameVoyage("ann", voyage, "small"));
    LimitFiles("unlimited");
    EXPECT_TRUE(storage->Schedule().ReplacePortCalls("ann", voyage, many));
    EXPECT_EQ(storage->Schedule().LoadPortCalls("ann", voyage).Value().size(), many.size());
}

}  // namespace
}  // namespace Tarvik::Server
