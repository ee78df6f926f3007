// SPDX-License-Identifier: MIT
#include "host/server/api/VoyageService.h"
#include "host/server/transfer/tests/SampleOwner.h"
#include "host/server/transfer/tests/TransferFixture.h"

namespace Tarvik::Server {

namespace {

class TransferRoundTripTest : public TransferTest {
  protected:
    TransferRoundTripTest() {
        MakeSample(*from.storage, "ann");
        to.accounts.users["ann"] = {"ann", "hash of the place", false};
    }
};

TEST_F(TransferRoundTripTest, UserOnAnEmptyServerIsTheSameToTheByte) {
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to)) << error;
    EXPECT_EQ(done, "imported 1 user, 2 categories, 3 voyages, 5 remarks");
    ASSERT_TRUE(Export(to, {"ann", false}, "again"));
    EXPECT_EQ(Bytes("again"), Bytes());
    EXPECT_GT(Bytes().size(), 1000U);
}

TEST_F(TransferRoundTripTest, EveryReplyOfTheServerIsTheSame) {
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to));
    const auto catalog = from.storage->Catalog().LoadCatalog("ann").Value();
    std::size_t schedules = 0;
    for (const CategoryRecord& category : catalog) {
        for (const VoyageRecord& voyage : category.voyages) {
            auto& before = from.storage->Schedule();
            auto& after = to.storage->Schedule();
            EXPECT_EQ(after.LoadPortCalls("ann", voyage.id).Value(),
                      before.LoadPortCalls("ann", voyage.id).Value());
            EXPECT_EQ(after.LoadAisTimes("ann", voyage.id).Value(),
                      before.LoadAisTimes("ann", voyage.id).Value());
            const auto book = before.LoadBook("ann", voyage.id).Value();
            const auto copy = after.LoadBook("ann", voyage.id).Value();
            ASSERT_EQ(copy.has_value(), book.has_value());
            if (!book) {
                continue;
            }
            EXPECT_EQ(copy->id, book->id);
            EXPECT_EQ(copy->date, book->date);
            EXPECT_EQ(copy->rows, book->rows);
            ++schedules;
        }
    }
    EXPECT_EQ(schedules, 2U);
}

TEST_F(TransferRoundTripTest, NextIdComesBehindThoseOfTheFile) {
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to));
    const auto ids = [](Place& place) {
        return std::stoll(place.storage->Catalog().CreateCategory("ann", "x").Value());
    };
    const auto last = std::stoll(from.storage->Catalog().LoadCatalog("ann").Value().back().id);
    EXPECT_GT(ids(to), last);
    EXPECT_EQ(to.storage->Catalog().LoadCatalog("ann").Value().size(), 3U);
}

TEST_F(TransferRoundTripTest, WhatIsDestroyedStaysBehind) {
    ASSERT_TRUE(Export(from, {"ann", false}));
    EXPECT_EQ(Bytes().find("\"gone\""), std::string::npos);
}

TEST_F(TransferRoundTripTest, TakenIdsGiveNewOnesToAllAndRemarksFollow) {
    MakeSmall(*to.storage, "bob");
    const std::string bobs = to.Everything("bob");
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to)) << error;
    EXPECT_NE(done.find("; ids of the file are taken here, so all records got new ones"), std::string::npos);
    EXPECT_EQ(to.Everything("bob"), bobs);
    const OwnerCopy before = from.storage->Transfer().ReadOwner("ann").Value();
    const OwnerCopy after = to.storage->Transfer().ReadOwner("ann").Value();
    ASSERT_EQ(after.categories.size(), 2U);
    EXPECT_EQ(after.categories[1].name, before.categories[1].name);
    EXPECT_EQ(after.categories[1].state, DeletionState::InBin);
    const VoyageCopy& voyage = after.categories[1].voyages.at(0);
    EXPECT_NE(voyage.voyage.id, before.categories[1].voyages[0].voyage.id);
    EXPECT_EQ(voyage.calls, before.categories[1].voyages[0].calls);
    EXPECT_EQ(voyage.book->rows, before.categories[1].voyages[0].book->rows);
    ASSERT_EQ(after.remarks.size(), before.remarks.size());
    auto& remarks = to.storage->Remarks();
    EXPECT_EQ(remarks.LoadRemarks("ann", {kCategoryRemark, after.categories[1].id}).Value().size(), 1U);
    EXPECT_EQ(remarks.LoadRemarks("ann", {kVoyageRemark, voyage.voyage.id}).Value().size(), 2U);
    const RemarkObject port{kPortCallRemark, voyage.voyage.id + "5 Sea \"x\""};
    EXPECT_EQ(remarks.LoadRemarks("ann", port).Value().at(0).created, 1772323200);
}

TEST_F(TransferRoundTripTest, FirstWriteAfterAnImportGoesOnWhereItEnded) {
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to));
    const std::string vi = to.storage->Catalog().LoadCatalog("ann").Value()[1].voyages.at(0).id;
    EXPECT_TRUE(to.storage->Schedule().AddAisTime("ann", vi, "2009-01-01 00:00:00").Succeeded());
    EXPECT_EQ(
        to.storage->Schedule().LoadAisTimes("ann", vi).Value(),
        (std::vector<std::string>{"2026-03-02 00:00:00", "2010-01-01 00:00:00", "2009-01-01 00:00:00"}));
}

TEST_F(TransferRoundTripTest, UsersOfAClientGoToAnyUserOfAServer) {
    ASSERT_TRUE(Export(from, {}));
    MakeSample(*from.storage, "bert");
    EXPECT_FALSE(Import(to, {"carl", false}));
    EXPECT_EQ(error.find("there is no user carl here"), 0U);
    to.accounts.users["carl"] = {"carl", "hash", false};
    ASSERT_TRUE(Import(to, {"carl", false})) << error;
    EXPECT_TRUE(to.storage->Catalog().LoadCatalog("ann").Value().empty());
    ASSERT_TRUE(Export(to, {"carl", false}, "again"));
    EXPECT_NE(Bytes("again").find(R"({"user":"carl"})"), std::string::npos);
    EXPECT_EQ(to.storage->Catalog().LoadCatalog("carl").Value().size(), 2U);
}

TEST_F(TransferRoundTripTest, AllUsersGoWithTheirAccounts) {
    MakeSmall(*from.storage, "bert");
    from.accounts.users = {{"ann", {"ann", "$argon2id$a", false}},
                           {"bert", {"bert", "$argon2id$b", true}},
                           {"idle", {"idle", "$argon2id$c", false}}};
    ASSERT_TRUE(Export(from, {"", true}));
    ASSERT_TRUE(Import(to)) << error;
    EXPECT_EQ(done, "imported 3 users, 3 categories, 4 voyages, 5 remarks");
    EXPECT_EQ(to.accounts.users["ann"].passwordHash, "hash of the place") << "an account stays as it is";
    EXPECT_EQ(to.accounts.users["bert"].passwordHash, "$argon2id$b");
    EXPECT_TRUE(to.accounts.users["bert"].disabled);
    EXPECT_EQ(to.accounts.users["idle"].passwordHash, "$argon2id$c");
    EXPECT_FALSE(to.accounts.users["idle"].disabled);
    to.accounts.users["ann"].passwordHash = "$argon2id$a";
    ASSERT_TRUE(Export(to, {"", true}, "again"));
    EXPECT_EQ(Bytes("again"), Bytes());
}

TEST_F(TransferRoundTripTest, OneUserGoesWithoutPassword) {
    from.accounts.users["ann"] = {"ann", "$argon2id$a", false};
    ASSERT_TRUE(Export(from, {"ann", false}));
    EXPECT_EQ(Bytes().find("argon2id"), std::string::npos);
}

TEST_F(TransferRoundTripTest, BigBookGoesWhole) {
    std::vector<BookRowRecord> rows;
    for (int i = 0; i < 30000; ++i) {
        rows.push_back({i, "P", i * 0.001, i * 0.0001, "GC", 5, i * 0.1, 0});
    }
    const std::string vi = from.storage->Catalog().LoadCatalog("ann").Value()[0].voyages.at(0).id;
    const std::string book = from.storage->Schedule().LoadBook("ann", vi).Value()->id;
    ASSERT_TRUE(from.storage->Schedule().ReplaceBookRows("ann", book, {}, rows).Succeeded());
    ASSERT_TRUE(Export(from, {"ann", false}));
    ASSERT_TRUE(Import(to)) << error;
    EXPECT_EQ(to.storage->Schedule().LoadBook("ann", vi).Value()->rows, rows);
}

TEST_F(TransferRoundTripTest, SmallUserLooksLikeThis) {
    MakeSmall(*to.storage, "bob");
    ASSERT_TRUE(Export(to, {"bob", false}));
    EXPECT_EQ(
        Bytes(),
        "{\"format\":\"seaplan-users\",\"version\":1,\"made\":\"2026-03-01T00:00:00Z\"}\n"
        "{\"user\":\"bob\"}\n"
        "{\"category\":\"1000001\",\"name\":\"A\",\"state\":0}\n"
        "{\"voyage\":\"1000002\",\"name\":\"V\",\"vessel\":[\"\",\"\",0],\"route\":false,\"ais\":false,"
        "\"figures\":[0,0,0,0,0,0,0],\"state\":0,\"times\":[],\"calls\":[]}\n"
        "{\"end\":4,\"sha256\":\"dc1bffe493d520c251c587acf41ae2bb2901fc2a440187138631527a8c8dd270\"}\n");
}

TEST_F(TransferRoundTripTest, ChoiceThatNamesNobodyOrTooManyIsRefused) {
    EXPECT_FALSE(Export(from, {"ANN", false}));
    EXPECT_EQ(error, "there is no user ANN");
    EXPECT_FALSE(Export(to, {}));
    EXPECT_EQ(error, "there is nothing to export");
    MakeSmall(*from.storage, "bert");
    EXPECT_FALSE(Export(from, {}));
    EXPECT_EQ(error, "there are several users: take one by --user NAME, or --all");
    EXPECT_FALSE(std::filesystem::exists(Path()));
}

}  // namespace
}  // namespace Tarvik::Server
