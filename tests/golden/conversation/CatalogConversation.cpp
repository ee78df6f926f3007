// SPDX-License-Identifier: MIT
#include <vector>

#include "seaplan/protocol/PortCallCommands.h"
#include "tests/golden/conversation/Conversation.h"

namespace Tarvik::Server {

namespace {

constexpr const char* kFullwidth = "大西洋 ＂A＂ ＼ \xF0\x9F\x9A\xA2";

class CategoryConversation : public Conversation {
  protected:
    CategoryConversation() : Conversation("categories") {}
};

TEST_F(CategoryConversation, IsAsItWasRecorded) {
    std::string ci;
    std::string other;
    LoadAll("load of a user who has nothing");
    Note("create a category", module.CreateCategory("Atlantic", ci));
    Note("create one with fullwidth signs", module.CreateCategory(kFullwidth, other));
    Note("create one without a name", module.CreateCategory("", other));
    Note("create one whose name has a quote", module.CreateCategory("the \"A\"", other));
    Note("rename", module.RenameCategory(ci, "North Atlantic"));
    Note("rename to a name that ends in a backslash", module.RenameCategory(ci, "back\\"));
    Note("rename one that is not there", module.RenameCategory("7", "x"));
    Note("destroy what is in use", module.ChangeCategoryState(ci, 3));
    Note("recover what is in use", module.ChangeCategoryState(ci, 2));
    Note("to the recycle bin", module.ChangeCategoryState(ci, 1));
    LoadAll();
    Note("to the recycle bin again", module.ChangeCategoryState(ci, 1));
    Note("recover", module.ChangeCategoryState(ci, 2));
    Note("to the recycle bin", module.ChangeCategoryState(ci, 1));
    Note("create a voyage in the recycle bin", module.CreateVoyage("V", ci, other));
    Note("destroy", module.ChangeCategoryState(ci, 3));
    Note("recover what is destroyed", module.ChangeCategoryState(ci, 2));
    LoadAll();
}

class VoyageConversation : public Conversation {
  protected:
    VoyageConversation() : Conversation("voyages") {}

    std::string ci;
    std::string vi;
};

TEST_F(VoyageConversation, IsAsItWasRecorded) {
    std::string other;
    Note("create a category", module.CreateCategory("Atlantic", ci));
    Note("create a voyage", module.CreateVoyage("New voyage - 0", ci, vi));
    Note("create one in a category that is not there", module.CreateVoyage("x", "7", other));
    Note("create one without a name", module.CreateVoyage("", ci, other));
    Note("rename", module.RenameVoyage(vi, kFullwidth));
    Note("rename to a name with a quote", module.RenameVoyage(vi, "a\"b"));
    Note("change the vessel", module.ChangeVessel(vi, "v7", "Meridian", 477123456));
    Note("change to a vessel of no register", module.ChangeVessel(vi, "", "Nameless", 0));
    Note("change to no vessel", module.ChangeVessel(vi, "", "", 0));
    Note("show the route", module.SetRouteDisplay(vi, "open"));
    Note("follow the vessel", module.SetAisTracing(vi, "open"));
    Note("show with another word", module.SetRouteDisplay(vi, "OPEN"));
    Note("store the figures", Seaplan::SaveFigures(vi, {1, 2, 3, 4, 5, 6, 500000}));
    Note("store a figure below 0", Seaplan::SaveFigures(vi, {-1, 2, 3, 4, 5, 6, 7}));
    LoadAll();
    Note("hide the route", module.SetRouteDisplay(vi, "close"));
    Note("follow no more", module.SetAisTracing(vi, "close"));
    Note("destroy what is in use", module.ChangeVoyageState(vi, 4));
    Note("to the recycle bin", module.ChangeVoyageState(vi, 2));
    LoadAll();
    Note("recover", module.ChangeVoyageState(vi, 3));
    Note("to the recycle bin", module.ChangeVoyageState(vi, 2));
    Note("destroy", module.ChangeVoyageState(vi, 4));
    Note("rename what is destroyed", module.RenameVoyage(vi, "x"));
    LoadAll();
}

class StrangerConversation : public Conversation {
  protected:
    StrangerConversation() : Conversation("stranger") {}
};

TEST_F(StrangerConversation, IsAsItWasRecorded) {
    std::string ci;
    std::string vi;
    std::string other;
    std::vector<std::string> times;
    Note("create a category", module.CreateCategory("Atlantic", ci));
    Note("create a voyage", module.CreateVoyage("V", ci, vi));
    host.user = "bob";
    Note("another user renames the category", module.RenameCategory(ci, "mine"));
    Note("puts it into the recycle bin", module.ChangeCategoryState(ci, 1));
    Note("creates a voyage in it", module.CreateVoyage("mine", ci, other));
    Note("renames the voyage", module.RenameVoyage(vi, "mine"));
    Note("reads its AIS times", module.GetAisModTimes(vi, times));
    Note("loads under the first one's name", Seaplan::VoyCatalogModule(&store).LoadAll("ann"));
    host.user.clear();
    Note("nobody logged in asks", module.RenameVoyage(vi, "x"));
    host.user = "ann";
    LoadAll("the first one loads");
}

}  // namespace
}  // namespace Tarvik::Server
