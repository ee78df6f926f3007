// SPDX-License-Identifier: MIT
// Shows the panels with sample voyages, or draws them into a picture, to look at them without client and
// server.
#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <algorithm>
#include <cstdio>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/skin/Palette.h>

#include "seaplan/panels/book/BookCommands.h"
#include "seaplan/panels/book/CPosBookDlg.h"
#include "seaplan/panels/mainview/SeaplanViewDlg.h"
#include "seaplan/panels/portcall/CPortCallPanelDlg.h"
#include "seaplan/panels/portcall/CellEditing.h"
#include "seaplan/panels/portcall/PanelCommands.h"
#include "seaplan/panels/portcall/PortCallSheet.h"
#include "seaplan/panels/portcall/RowCommands.h"
#include "seaplan/panels/tree/SeaplanTreeCtrl.h"
#include "seaplan/views/VoyageViews.h"
#include "seaplan/views/book/BookWindow.h"
#include "seaplan/views/bunker/BunkerWindow.h"
#include "seaplan/views/mainview/VoyagePanelWindow.h"
#include "seaplan/views/portcall/PortCallWindow.h"
#include "seaplan/views/preview/FileTexts.h"
#include "seaplan/views/preview/SampleVoyages.h"
#include "seaplan/views/remark/RemarkWindow.h"
#include "testsupport/ManualClock.h"

namespace {

using namespace Tarvik::Seaplan;
namespace Bus = Tarvik::Interface::Bus;
namespace Skin = Tarvik::Skin;

int Usage() {
    std::fputs(
        "seaplan-views-preview [--png OUT.png] [--theme light|dark|night] [--lang en-US|zh-CN|zh-TW]\n"
        "                      [--scene "
        "tree|category|empty|voyage|edit|matches|purposes|calendar|rename|bin|vessel|book|book-typing|\n"
        "                      book-track|book-calendar|book-passed|remarks|figures|search]\n",
        stderr);
    return 2;
}

std::string Option(const QStringList& arguments, const char* name, const char* fallback) {
    const auto at = arguments.indexOf(QString::fromLatin1(name));
    return (at < 0 ? QString::fromLatin1(fallback) : arguments.value(at + 1)).toStdString();
}

TreeRow RowOf(TreeRows& rows, const std::string& text) {
    for (TreeRow row = rows.GetRootItem(); row != kNoRow; row = rows.GetNextSiblingItem(row)) {
        if (rows.GetItemText(row) == text) {
            return row;
        }
        for (TreeRow child = rows.GetChildItem(row); child != kNoRow;
             child = rows.GetNextSiblingItem(child)) {
            if (rows.GetItemText(child) == text) {
                return child;
            }
        }
    }
    return kNoRow;
}

void Press(VoyageViews& views, const std::string& text) {
    TreeRows& rows = views.VoyageWindow()->Tree().Rows();
    const TreeRow row = RowOf(rows, text);
    if (rows.GetParentItem(row) == kNoRow) {
        rows.Expand(row, true);
    }
    views.Tree().OnRowPressed(row);
}

void Click(VoyageViews& views, const std::string& text, const std::string& item) {
    views.Tree().OnItemClicked(RowOf(views.VoyageWindow()->Tree().Rows(), text), item);
    QApplication::processEvents();
}

void PlayPortCalls(VoyageViews& views, const std::string& scene) {
    CPortCallPanelDlg& panel = views.PortCalls();
    if (scene == "edit") {
        panel.Cells().OnCellClicked(2, ColSpeed);
    }
    if (scene == "matches") {
        panel.Cells().OnCellClicked(5, ColPort);
        views.PortCallsWindow()->findChild<QLineEdit*>("portEditor")->setText("RO");
    }
    if (scene == "purposes") {
        panel.Cells().OnCellClicked(1, ColPurpose);
    }
    if (scene == "calendar") {
        panel.Cells().OnCellClicked(1, ColEtd);
    }
    if (scene == "voyage") {
        panel.Rows().OnItemImage(3, "itemMoveUp");
    }
}

/// The position book with its first leg cut into a great circle, and what the scene is about.
void PlayBook(VoyageViews& views, const std::string& scene) {
    views.PortCalls().Commands().OnPositionBook();
    CPosBookDlg& book = views.Book();
    book.Commands().OnExpand(0);
    book.Cells().OnCellClicked(2, BookCourse);
    book.Commands().OnInsert();
    if (scene == "book-typing") {
        book.Cells().OnCellClicked(1, BookLatitude);
        views.BookWindowMade()->findChild<QLineEdit*>("bookEditor")->setText("51 54.5N");
    }
    if (scene == "book-track") {
        book.Cells().OnCellClicked(2, BookTrack);
    }
    if (scene == "book-calendar") {
        book.Cells().OnCellClicked(book.Sheet().RowCount() - 1, BookEtd);
    }
}

/// One remark more, and a third one under way.
void PlayRemarks(QWidget& window) {
    auto* subject = window.findChild<QLineEdit*>("remarkSubject");
    auto* body = window.findChild<QPlainTextEdit*>("remarkBody");
    auto* add = window.findChild<QAbstractButton*>("addRemarkButton");
    for (const char* text :
         {"Draft at Shanghai \xE5\x90\x83\xE6\xB0\xB4", "A title that does not fit the list"}) {
        add->click();
        subject->setText(QString::fromUtf8(text));
        emit subject->textEdited(subject->text());
        body->setPlainText("11.5 m at high water.\nAsk the agent again two days before arrival.");
        if (subject->text().startsWith("Draft")) {
            window.findChild<QAbstractButton*>("saveRemarkButton")->click();
        }
    }
}

void PlayFigures(QWidget& window) {
    auto* field = window.findChild<QLineEdit*>("fuelLaden");
    field->selectAll();
    field->insert("28500");
    emit field->textEdited(field->text());
    QApplication::processEvents();
}

void Play(VoyageViews& views, const std::string& scene) {
    const Tarvik::Interface::PanelShow show{3, 0};
    Tarvik::Interface::Raise(Bus::ShowPanel, &show);
    QApplication::processEvents();
    if (scene == "empty") {
        return;
    }
    if (scene == "search") {
        views.Panel().Search().Open();
        views.VoyageWindow()->findChild<QLineEdit*>("searchField")->setText("rotterdam");
        QApplication::processEvents();
        views.Panel().Search().OnStep(1);
        return;
    }
    if (scene == "bin") {
        views.Tree().SetShowDeleted(true);
    }
    Press(views, "Container 2024");
    QApplication::processEvents();
    if (scene == "category") {
        return;
    }
    Press(views, scene == "bin" ? "Baltic feeder" : "Far East 12");
    QApplication::processEvents();
    if (scene == "rename") {
        Click(views, "Far East 12", "Voyage_child_rename");
    }
    if (scene == "vessel") {
        Click(views, "Far East 12", "Voyage_ReplaceShip");
    }
    if (scene == "remarks") {
        Click(views, "Far East 12", "Voyage.child.svr3.exist");
        PlayRemarks(*views.RemarksWindow());
        return;
    }
    if (scene == "figures") {
        Click(views, "Far East 12", "Voyage.child.svr5");
        PlayFigures(*views.FiguresWindow());
        return;
    }
    if (scene == "tree" || scene == "bin" || scene == "rename" || scene == "vessel") {
        return;
    }
    Click(views, "Far East 12", "Voyage.child.svr4");
    if (scene.starts_with("book")) {
        return PlayBook(views, scene);
    }
    PlayPortCalls(views, scene);
}

QImage Picture() {
    QImage image(1280, 760, QImage::Format_RGB32);
    image.fill(Skin::Colour(Skin::Role::Window));
    QPainter painter(&image);
    QWidgetList windows = QApplication::topLevelWidgets();
    // Pop-ups lie on top, and what cannot be used behind what it waits for.
    const auto level = [](const QWidget* window) {
        return window->windowType() == Qt::Popup ? 2 : window->isEnabled() ? 1 : 0;
    };
    std::stable_sort(windows.begin(), windows.end(),
                     [&level](const QWidget* a, const QWidget* b) { return level(a) < level(b); });
    for (QWidget* window : windows) {
        if (window->isVisible()) {
            painter.drawPixmap(window->pos() - QPoint(60, 120), window->grab());
        }
    }
    return image;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains("--help")) {
        return Usage();
    }
    QFont font("Noto Sans");
    font.setPixelSize(Skin::kTextPixels);
    QApplication::setFont(font);
    const std::string language = Option(arguments, "--lang", "en-US");
    const FileTexts texts(std::string(SEAPLAN_LANG_DIR) + "/seaplan." + language + ".json");
    if (texts.Empty()) {
        return Usage();
    }
    Skin::SetTheme(Skin::ThemeNamed(Option(arguments, "--theme", "light")));
    PanelDesk desk;
    const std::string scene = Option(arguments, "--scene", "voyage");
    if (scene != "empty") {
        AddSampleVoyages(desk);
    }
    if (scene == "book-passed") {
        constexpr int kSecondsAtSea = 30 * 86400;
        desk.clock.AdvanceSeconds(kSecondsAtSea);
    }
    PortDirectory ports = SamplePorts();
    VoyageViews views({desk.store, desk.catalog, desk.voyages, ports, nullptr});
    Play(views, scene);
    if (!arguments.contains("--png")) {
        return QApplication::exec();
    }
    QApplication::processEvents();
    return Picture().save(QString::fromStdString(Option(arguments, "--png", ""))) ? 0 : 1;
}
