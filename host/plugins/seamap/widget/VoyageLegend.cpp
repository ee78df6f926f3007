// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/widget/VoyageLegend.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include <tarvik/skin/Words.h>

#include "host/plugins/seamap/widget/PortCard.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kBelow = 64;  ///< pixels from the chart's lower edge, where the time bar stands

QString Hex(std::uint32_t colour) {
    return QColor(colour).name();
}

QString NameOf(const Interface::TrvMapPlan& told) {
    return QString::fromStdString(told.vessel.empty() ? told.name : told.name + "  " + told.vessel);
}

/// A stroke in the voyage's colour and its name as a link to the number of its line.
QString Row(const VoyagePlan& plan, std::size_t line, const ChartPalette& palette) {
    return QStringLiteral(
               "<tr><td style=\"color:%1\"><b>\u2501\u2501</b>&nbsp;</td><td><a href=\"%2\" "
               "style=\"color:%3; "
               "text-decoration:none\">%4</a></td></tr>")
        .arg(Hex(Skin::TintOf(plan.tint, palette.theme)), QString::number(line), Hex(palette.text),
             NameOf(plan.told).toHtmlEscaped());
}

}  // namespace

VoyageLegend::VoyageLegend(QWidget* chart) : QFrame(chart), text_(new QLabel(this)) {
    setObjectName("voyageLegend");
    text_->setObjectName("legendText");
    text_->setTextFormat(Qt::RichText);
    text_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 6, 8, 6);
    column->addWidget(text_);
    connect(text_, &QLabel::linkActivated, this, &VoyageLegend::Choose);
    hide();
}

void VoyageLegend::Show(const VoyagePlans& plans, const ChartPalette& palette) {
    std::vector<const VoyagePlan*> voyages;
    voyages.reserve(plans.All().size());
    for (const auto& [id, plan] : plans.All()) {
        voyages.push_back(&plan);
    }
    std::sort(voyages.begin(), voyages.end(),
              [](const VoyagePlan* a, const VoyagePlan* b) { return a->tint < b->tint; });
    ships_.clear();
    QString rows;
    for (const VoyagePlan* voyage : voyages) {
        if (ships_.size() == kMost) {
            break;
        }
        rows += Row(*voyage, ships_.size(), palette);
        ships_.push_back({voyage->told.layer, voyage->told.shipType, voyage->told.id});
    }
    if (voyages.empty()) {
        rows = "<tr><td>" + Skin::Word("Chart", "LEGEND_NONE").toHtmlEscaped() + "</td></tr>";
    } else if (voyages.size() > kMost) {
        const QString more =
            Skin::Word("Chart", "LEGEND_MORE").replace("%1", QString::number(voyages.size() - kMost));
        rows += "<tr><td></td><td>" + more.toHtmlEscaped() + "</td></tr>";
    }
    text_->setText("<table>" + rows + "</table>");
    text_->setAccessibleName(Skin::Word("Chart", "VOYAGE_COLOURS"));
    setAccessibleName(text_->accessibleName());
    show();
    Place();
    raise();
}

void VoyageLegend::Choose(const QString& link) {
    const auto line = static_cast<std::size_t>(link.toUInt());
    if (line < ships_.size()) {
        emit Chosen(ships_[line]);
    }
}

void VoyageLegend::Place() {
    adjustSize();
    move(std::max(0, parentWidget()->width() - width() - kCardToEdge),
         std::max(0, parentWidget()->height() - height() - kBelow));
}

void VoyageLegend::ApplyTheme(const ChartPalette& palette) {
    setStyleSheet(CardSheet(objectName(), palette));
}

}  // namespace Tarvik::Seamap
