// SPDX-License-Identifier: MIT
#include "host/client/shell/ZoneBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDateTime>
#include <QLineEdit>

#include <tarvik/util/DateTimeUtl.h>

#include "host/client/services/ZoneList.h"
#include "host/client/shell/ZoneModel.h"

namespace Tarvik::Client {

namespace {

constexpr int kLinesOnShow = 12;
constexpr int kListWidth = 420;  ///< pixels, for a zone's whole line

}  // namespace

ZoneBox::ZoneBox(const std::string& language, const std::string& current, QWidget* parent)
    : QComboBox(parent) {
    auto* zones = new ZoneModel(ListZones(language, QDateTime::currentSecsSinceEpoch()), this);
    left_ = new ZonesLeft(*zones, this);
    left_->setSourceModel(zones);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setModel(zones);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(kLinesOnShow);
    view()->setMinimumWidth(kListWidth);
    auto* completer = new QCompleter(left_, this);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setCompletionRole(Qt::EditRole);
    completer->setMaxVisibleItems(kLinesOnShow);
    completer->popup()->setMinimumWidth(kListWidth);
    setCompleter(completer);
    // The list is made smaller before the completer, which comes behind this signal, shows it.
    connect(lineEdit(), &QLineEdit::textEdited, left_, &ZonesLeft::Narrow);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &ZoneBox::TakeMatch);
    setCurrentIndex(findData(QString::fromStdString(current), Qt::EditRole));
    setEditText(QString::fromStdString(current));
}

std::string ZoneBox::Zone() const {
    return currentText().trimmed().toStdString();
}

bool ZoneBox::IsRight() const {
    return Util::DateTimeUtl::IsKnownZone(Zone());
}

void ZoneBox::TakeMatch() {
    if (IsRight()) {
        return;
    }
    const QString typed = currentText().trimmed();
    const int named = findData(typed, Qt::EditRole, Qt::MatchFixedString);
    left_->Narrow(typed);
    if (named >= 0) {
        setCurrentIndex(named);
    } else if (left_->rowCount() == 1) {
        setCurrentIndex(left_->mapToSource(left_->index(0, 0)).row());
    }
}

}  // namespace Tarvik::Client
