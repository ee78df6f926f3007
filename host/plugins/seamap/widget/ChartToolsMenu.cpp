// SPDX-License-Identifier: MIT
/// The menu of a place on the chart.
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/skin/Words.h>

#include "host/plugins/seamap/widget/ChartTools.h"
#include "host/plugins/seamap/widget/ChartWidget.h"
#include "host/plugins/seamap/widget/TimeBar.h"

namespace Tarvik::Seamap {

namespace {

QString Word(const char* key) {
    return Skin::Word("Chart", key);
}

/// The word of a part: the key is its name in capitals.
QString PartWord(std::string_view name) {
    return Word(QByteArray(name.data(), static_cast<qsizetype>(name.size())).toUpper().constData());
}

}  // namespace

void ChartTools::OpenMenu(GeoPoint place, QPoint at) {
    auto* menu = new QMenu(&chart_);
    menu->setObjectName("chartMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddCopies(*menu->addMenu(Word("COPY_POSITION")), place);
    menu->addAction(Word("MEASURE_FROM_HERE"), &chart_, [this, place] { MeasureFrom(place); })
        ->setObjectName("measureFromHere");
    menu->addAction(Word("CENTRE_HERE"), &chart_, [this, place] { chart_.CentreOn(place); })
        ->setObjectName("centreHere");
    AddNearest(*menu, place);
    AddOwnPort(*menu, place);
    menu->addSeparator();
    menu->addAction(Word("GO_TO") + "…\tCtrl+G", &chart_, [this] { OpenGoTo(); })->setObjectName("goTo");
    menu->addSeparator();
    AddParts(*menu);
    QAction* time = menu->addAction(Word("TIME_SLIDER") + "\tT", &chart_, [this] { ToggleTime(); });
    time->setObjectName("timeSlider");
    time->setCheckable(true);
    time->setChecked(!time_->isHidden());
    menu->popup(at);
}

void ChartTools::AddCopies(QMenu& menu, GeoPoint place) {
    const PositionForms forms = PositionForms::Of(place);
    for (const auto& [name, form] :
         {std::pair("copyMinutes", forms.minutes), std::pair("copySeconds", forms.seconds),
          std::pair("copyDecimal", forms.decimal)}) {
        const QString text = QString::fromStdString(form);
        menu.addAction(text, &chart_, [text] { QApplication::clipboard()->setText(text); })
            ->setObjectName(name);
    }
}

void ChartTools::AddNearest(QMenu& menu, GeoPoint place) {
    const ChartName* port = finder_->Nearest(place);
    if (port == nullptr) {
        return;
    }
    const QString miles =
        QString::number(MeasureLeg(place, port->position, Track::GreatCircle).miles, 'f', 1);
    const QString text =
        Word("NEAREST_PORT").replace("%1", QString::fromStdString(port->text)).replace("%2", miles);
    menu.addAction(text, &chart_,
                   [this, found = *port] {
                       GoTo({found.position, found.text, &found});
                   })
        ->setObjectName("nearestPort");
}

void ChartTools::AddOwnPort(QMenu& menu, GeoPoint place) {
    if (Interface::IsOffered(Interface::Bus::AddOwnPort)) {
        menu.addAction(Word("ADD_PORT"), &chart_,
                       [place] {
                           const Interface::OwnPortPlace at{place.x, place.y};
                           Interface::Call(Interface::Bus::AddOwnPort, &at);
                       })
            ->setObjectName("addOwnPort");
    }
}

void ChartTools::AddParts(QMenu& menu) {
    for (const ChartPartName& part : kChartPartNames) {
        QAction* action = menu.addAction(PartWord(part.name), &chart_, [this, part] {
            ChartParts parts = chart_.Parts();
            parts.*part.part = !(parts.*part.part);
            chart_.ShowParts(parts);
            emit chart_.PartTurned(std::string(part.name), parts.*part.part);
        });
        action->setObjectName(
            QString::fromLatin1(part.name.data(), static_cast<qsizetype>(part.name.size())));
        action->setCheckable(true);
        action->setChecked(chart_.Parts().*part.part);
    }
}

}  // namespace Tarvik::Seamap
