// SPDX-License-Identifier: MIT
#include "seaplan/views/book/BookFrame.h"

#include <QHBoxLayout>
#include <QShortcut>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/panels/texts/BookTexts.h"
#include "seaplan/panels/texts/CommonTexts.h"
#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

namespace {

struct ButtonLook {
    const char* name;
    const char* icon;
    const char* keys = "";
};
constexpr ButtonLook kLooks[] = {{"saveButton", "save", "Ctrl+S"},
                                 {"cancelButton", "recover"},
                                 {"insertButton", "add", "Ins"},
                                 {"deleteButton", "delete", "Del"}};

}  // namespace

BookHead::BookHead(QWidget* parent) : QWidget(parent), undo_(new UndoButtons(this)), zone_(new QLabel(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Skin::kGrid);
    for (int part = Save; part < PartCount; ++part) {
        auto* made = new QToolButton(this);
        made->setObjectName(QString::fromLatin1(kLooks[part].name));
        made->setFixedSize(Skin::kControlHeight + 2, Skin::kControlHeight);
        made->setFocusPolicy(Qt::TabFocus);
        row->addWidget(made);
        if (part == Cancel) {
            row->addSpacing(2 * Skin::kGrid);
            row->addWidget(undo_);
            row->addSpacing(2 * Skin::kGrid);
        }
        buttons_.at(static_cast<std::size_t>(part)) = made;
    }
    const std::pair<Part, const char*> skins[] = {{Save, "trv_btn_59"},
                                                  {Cancel, "position_cancelBtn"},
                                                  {Insert, "VoyInsertBtn"},
                                                  {Remove, "trv_voyage_btn"}};
    for (const auto& [part, skin] : skins) {
        Skin::SkinWindow(*buttons_.at(part), Skin::ControlClass::PushButton, skin);
    }
    buttons_[Save]->setProperty("primary", true);
    row->addStretch(1);
    zone_->setObjectName(QStringLiteral("bookZone"));
    zone_->setProperty("secondary", true);
    row->addWidget(zone_);
    ApplySkin();
}

void BookHead::SetReports(const Reports& reports) {
    const std::function<void()> pressed[] = {reports.save, reports.cancel, reports.insert, reports.remove};
    for (std::size_t part = 0; part < buttons_.size(); ++part) {
        QObject::connect(buttons_.at(part), &QToolButton::clicked, this, pressed[part]);
    }
    // The key is the window's: a button takes two quick presses of its own for one.
    auto* save = new QShortcut(Qt::CTRL | Qt::Key_S, window());
    QObject::connect(save, &QShortcut::activated, this, reports.saveKey);
    undo_->SetReports(reports.undo, reports.redo);
}

void BookHead::Set(Part part, bool on, TextId tip, TextId whyNot) {
    QToolButton* button = buttons_.at(static_cast<std::size_t>(part));
    button->setEnabled(on);
    Skin::Describe(button, ViewText(tip));
    const QString keys = QString::fromLatin1(kLooks[part].keys);
    if (!on) {
        button->setToolTip(ViewText(tip) + QStringLiteral(": ") + ViewText(whyNot));
    } else if (!keys.isEmpty()) {
        button->setToolTip(QStringLiteral("%1 (%2)").arg(ViewText(tip), keys));
    }
}

void BookHead::ShowSheet(const BookSheet& sheet) {
    Set(Save, sheet.changed, TextIds::IDC_WP_BT_SAVE, TextIds::IDS_VIEW_NOCHANGES);
    Set(Cancel, sheet.changed, TextIds::IDC_WP_BT_CANCEL, TextIds::IDS_VIEW_NOCHANGES);
    undo_->ShowTexts(sheet.edits);
    Set(Insert, sheet.CanInsert(), TextIds::IDC_WP_BT_DOWN, TextIds::IDS_VIEW_NOINSERT);
    Set(Remove, sheet.CanDelete(), TextIds::IDC_WP_BT_DELETE, TextIds::IDS_VIEW_NODELETE);
    QString zone = sheet.zone.empty()
                       ? QString()
                       : ViewText(TextIds::IDS_VIEW_ZONE) + u' ' + QString::fromStdString(sheet.zone);
    if (!zone.isEmpty() && !sheet.tableZone.empty() && sheet.tableZone != sheet.zone) {
        zone += QStringLiteral(" (") + ViewText(TextIds::IDS_VIEW_TABLEZONE) + u' ' +
                QString::fromStdString(sheet.tableZone) + u')';
    }
    zone_->setText(zone);
    zone_->setAccessibleName(zone);
}

void BookHead::ApplySkin() {
    for (std::size_t part = 0; part < buttons_.size(); ++part) {
        buttons_.at(part)->setIcon(Skin::MakeIcon(kLooks[part].icon));
    }
    undo_->ApplySkin();
}

BookFoot::BookFoot(QWidget* parent)
    : UnitFigures(
          parent,
          {{{"bookSpeed", UnitKind::Speed, TextIds::IDC_WP_T_SPD, TextIds::IDS_VIEW_AVERAGEHINT},
            {"bookDistance", UnitKind::Distance, TextIds::IDC_WP_T_DIST, TextIds::IDS_VIEW_DISTANCEHINT},
            {"bookTime", UnitKind::Time, TextIds::IDC_WP_T_TIME, TextIds::IDS_VIEW_TIMEHINT}}},
          {.valueWidth = 64, .gap = 5 * Skin::kGrid}) {}

void BookFoot::ShowSheet(const BookSheet& sheet) {
    for (const UnitKind kind : {UnitKind::Speed, UnitKind::Distance, UnitKind::Time}) {
        ShowFigure(kind, sheet.Total(kind), sheet.UnitText(kind));
    }
}

}  // namespace Tarvik::Seaplan
