// SPDX-License-Identifier: MIT
#include <vector>

#include "seaplan/protocol/BookCommands.h"
#include "seaplan/protocol/PortCallCommands.h"
#include "seaplan/protocol/RemarkList.h"
#include "tests/golden/conversation/Conversation.h"
#include "tests/protocol/SampleRows.h"
#include "testsupport/PortDictionary.h"

namespace Tarvik::Server {

namespace {

/// A conversation about one voyage, whose making is not written down.
class VoyageTalk : public Conversation {
  protected:
    explicit VoyageTalk(const std::string& file) : Conversation(file) {
        Note("create a category", module.CreateCategory("Atlantic", ci));
        Note("create a voyage", module.CreateVoyage("V", ci, vi));
    }

    std::string ci;
    std::string vi;
};

class PortCallConversation : public VoyageTalk {
  protected:
    PortCallConversation() : VoyageTalk("portcalls") {}

    static Seaplan::PortCallRows Ports() {
        Seaplan::PortCallRows rows = ThreePorts("上海");
        rows[2].ppi.clear();
        return rows;
    }
};

TEST_F(PortCallConversation, IsAsItWasRecorded) {
    const TestSupport::PortDictionary dictionary(TestSupport::PortDictionary::Ports{{"Rotterdam", "40208"}});
    Seaplan::PortCallRows rows;
    Note("read the port calls of a new voyage", Seaplan::LoadPortCalls(vi, rows));
    rows = Ports();
    Note("write three", Seaplan::SavePortCalls(vi, rows));
    Note("read them", Seaplan::LoadPortCalls(vi, rows));
    rows.pop_back();
    Note("write two", Seaplan::SavePortCalls(vi, rows));
    rows[0].ppn = "a|b";
    Note("write a name with a bar", Seaplan::SavePortCalls(vi, rows));
    rows = Ports();
    rows[1].pp = "Q";
    Note("write a purpose that there is not", Seaplan::SavePortCalls(vi, rows));
    rows.resize(1);
    Note("write one", Seaplan::SavePortCalls(vi, rows));
    Note("read them", Seaplan::LoadPortCalls(vi, rows));
    Note("read those of a voyage that is not there", Seaplan::LoadPortCalls("7", rows));
}

class AisTimeConversation : public VoyageTalk {
  protected:
    AisTimeConversation() : VoyageTalk("aistimes") {}
};

TEST_F(AisTimeConversation, IsAsItWasRecorded) {
    std::vector<std::string> times;
    Note("read the AIS times of a new voyage", module.GetAisModTimes(vi, times));
    Note("add one", module.AddAisModTime(vi, "2026-03-02 08:00:00"));
    Note("add the last that stays local", module.AddAisModTime(vi, "2011-10-02 07:59:59"));
    Note("add the first that is converted", module.AddAisModTime(vi, "2011-10-02 08:00:00"));
    Note("add one again", module.AddAisModTime(vi, "2026-03-02 08:00:00"));
    Note("add what is no time", module.AddAisModTime(vi, "0"));
    Note("read them", module.GetAisModTimes(vi, times));
    LoadAll();
}

class BookConversation : public VoyageTalk {
  protected:
    BookConversation() : VoyageTalk("book") {}

    static Seaplan::BookPoints Points(int count) {
        Seaplan::BookPoints points(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            auto& point = points[static_cast<std::size_t>(i)];
            point.psn = i % 50 == 0 ? "点 " + std::to_string(i) : "";
            point.position = std::to_string(i % 180) + ".125,-" + std::to_string(i % 90) + ".250";
            point.psr = i % 2 == 0 ? "GC" : "RL";
            point.pli = 1 + i % 5;
            point.psp = 10.0F + static_cast<float>(i % 7) / 8;
            point.pst = i == 0 || i == count - 1 ? 5 : 0;
        }
        return points;
    }
};

TEST_F(BookConversation, IsAsItWasRecorded) {
    Seaplan::VoyPositionBook book;
    std::string id;
    std::string again;
    Note("read the book of a new voyage", Seaplan::LoadPositionBook(vi, book));
    Note("make sure of a book", Seaplan::EnsurePositionBook(vi, "2026-03-01 08:00:00", id));
    Note("make sure of it again", Seaplan::EnsurePositionBook(vi, "2027-01-01 00:00:00", again));
    Note("set its date", Seaplan::SetPositionBookDate(id, "2010-06-01 12:00:00"));
    Note("set a date that is none", Seaplan::SetPositionBookDate(id, "2009"));
    Note("set the date of a book that is not there",
         Seaplan::SetPositionBookDate("7", "2010-06-01 12:00:00"));
    Note("write three rows", Seaplan::SavePositionBookRows(id, Points(3)));
    Note("read them", Seaplan::LoadPositionBook(vi, book));
    Note("write no rows", Seaplan::SavePositionBookRows(id, {}));
    Note("write 201 rows", Seaplan::SavePositionBookRows(id, Points(201)));
    auto points = Points(101);
    points[100].psn = "a|b";
    Note("write 101 rows of which the last is broken", Seaplan::SavePositionBookRows(id, points));
    book = Seaplan::VoyPositionBook();
    Note("read what is there", Seaplan::LoadPositionBook(vi, book));
}

class RemarkConversation : public VoyageTalk {
  protected:
    RemarkConversation() : VoyageTalk("remarks") {}

    int Said(bool success) { return success ? 1 : 0; }
};

TEST_F(RemarkConversation, IsAsItWasRecorded) {
    Seaplan::RemarkList list;
    int seq = 0;
    const std::string port = vi + "Rotterdam";
    Note("list none", Said(list.LoadRemarks(Seaplan::CategoryRemark, ci)));
    Note("add to a category", Said(list.AddRemark(Seaplan::CategoryRemark, ci, seq, "Subject", "Body")));
    Note("add to a voyage", Said(list.AddRemark(Seaplan::VoyageRemark, vi, seq, "船", "two\nlines")));
    Note("add to a port call",
         Said(list.AddRemark(Seaplan::PortCallRemark, port, seq, "Pilot", "call at 04:00")));
    Note("add a second", Said(list.AddRemark(Seaplan::PortCallRemark, port, seq, "Tugs", "two")));
    Note("add one with a quote", Said(list.AddRemark(Seaplan::PortCallRemark, port, seq, "say \"x\"", "")));
    Note("add one to what is not there", Said(list.AddRemark(Seaplan::VoyageRemark, "7", seq, "s", "b")));
    host.now += 3600;
    Note("change", Said(list.ChangeRemark(Seaplan::PortCallRemark, port, 1, "Pilot 船", "call at 05:00")));
    Note("change one that is not there", Said(list.ChangeRemark(Seaplan::PortCallRemark, port, 9, "s", "b")));
    Note("delete", Said(list.DeleteRemark(Seaplan::PortCallRemark, port, 2)));
    Note("delete it again", Said(list.DeleteRemark(Seaplan::PortCallRemark, port, 2)));
    Note("list", Said(list.LoadRemarks(Seaplan::PortCallRemark, port)));
    LoadAll();
}

}  // namespace
}  // namespace Tarvik::Server
