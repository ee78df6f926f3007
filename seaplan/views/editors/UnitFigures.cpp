// SPDX-License-Identifier: MIT
#include "seaplan/views/editors/UnitFigures.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QStyle>
#include <QToolButton>

#include <tarvik/skin/Icons.h>
#include <tarvik/skin/Palette.h>
#include <tarvik/skin/SkinNames.h>
#include <tarvik/skin/ToolWindow.h>

#include "seaplan/views/window/ViewText.h"

namespace Tarvik::Seaplan {

UnitFigures::UnitFigures(QWidget* parent, const Looks& looks, const Measures& measures)
    : QWidget(parent), line_(new QHBoxLayout(this)) {
    line_->setContentsMargins(0, 0, 0, 0);
    line_->setSpacing(Skin::kGrid);
    for (const Look& look : looks) {
        if (!figures_.empty()) {
            line_->addSpacing(measures.gap);
        }
        const Figure figure = MakeFigure(look, measures.valueWidth);
        line_->addWidget(figure.caption);
        line_->addWidget(figure.value);
        line_->addWidget(figure.unit);
        QObject::connect(figure.unit, &QToolButton::clicked, this, [this, figure] { OpenMenu(figure); });
        figures_.push_back(figure);
    }
    line_->addStretch(1);
    ApplySkin();
}

UnitFigures::Figure UnitFigures::MakeFigure(const Look& look, int valueWidth) {
    Figure figure{.look = look};
    figure.caption = new QLabel(this);
    figure.caption->setProperty("secondary", true);
    figure.value = new QLabel(this);
    figure.value->setObjectName(QString::fromLatin1(look.name));
    figure.value->setMinimumWidth(valueWidth);
    figure.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure.unit = new QToolButton(this);
    figure.unit->setObjectName(QString::fromLatin1(look.name) + QStringLiteral("Unit"));
    for (QLabel* text : {figure.caption, figure.value}) {
        Skin::SkinWindow(*text, Skin::ControlClass::StaticText, "VoyPortCallStatic");
    }
    Skin::SkinWindow(*figure.unit, Skin::ControlClass::PushButton, "trv_down_arrow_btn");
    figure.unit->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    // The arrow stands behind the unit.
    figure.unit->setLayoutDirection(Qt::RightToLeft);
    figure.unit->setFocusPolicy(Qt::TabFocus);
    return figure;
}

void UnitFigures::OpenMenu(const Figure& figure) {
    if (!reports_.menuOpens) {
        return;
    }
    const std::vector<std::string> units = reports_.menuOpens(figure.look.kind);
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("unitMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (std::size_t i = 0; i < units.size(); ++i) {
        menu->addAction(QString::fromStdString(units[i]), this,
                        [this, kind = figure.look.kind, i, unit = units[i]] {
                            if (reports_.unitChosen) {
                                reports_.unitChosen(kind, static_cast<int>(i), unit);
                            }
                        });
    }
    menu->popup(figure.unit->mapToGlobal(QPoint(0, figure.unit->height())));
}

void UnitFigures::ShowFigure(UnitKind kind, const std::string& value, const std::string& unit) {
    for (const Figure& figure : figures_) {
        if (figure.look.kind == kind) {
            figure.value->setText(QString::fromStdString(value));
            figure.unit->setText(QString::fromStdString(unit));
        }
    }
}

void UnitFigures::ShowStale(const QString& why) {
    stale_ = why;
    ApplyTexts();
    for (const Figure& figure : figures_) {
        figure.value->setProperty("warning", !why.isEmpty());
        figure.value->style()->polish(figure.value);
    }
}

void UnitFigures::ApplyTexts() {
    for (const Figure& figure : figures_) {
        const QString caption = ViewText(figure.look.caption);
        figure.caption->setText(caption);
        Skin::Describe(figure.value, stale_.isEmpty() ? caption : caption + QStringLiteral(": ") + stale_);
        Skin::Describe(figure.unit, ViewText(figure.look.hint));
    }
}

void UnitFigures::ApplySkin() {
    for (const Figure& figure : figures_) {
        figure.unit->setIcon(Skin::MakeIcon("chevron-down"));
    }
}

}  // namespace Tarvik::Seaplan
