// SPDX-License-Identifier: MIT
#include "host/client/shell/ZoneBox.h"

#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QCompleter>
#include <QDateTime>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <utility>
#include <vector>

#include <tarvik/util/DateTimeUtl.h>

#include "host/client/services/ZoneList.h"

namespace Tarvik::Client {

namespace {

constexpr int kLinesOnShow = 12;
constexpr int kListWidth = 420;  ///< pixels, for a zone's whole line

/// Zones as lines to read, whose value to edit is the zone's name.
class ZoneModel : public QAbstractListModel {
  public:
    ZoneModel(std::vector<ZoneLine> lines, QObject* parent)
        : QAbstractListModel(parent), lines_(std::move(lines)) {}
    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(lines_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        const ZoneLine& line = lines_[static_cast<std::size_t>(index.row())];
        if (role == Qt::DisplayRole) {
            return QString::fromStdString(line.Text());
        }
        return role == Qt::EditRole ? QVariant(QString::fromStdString(line.name)) : QVariant();
    }
    const ZoneLine& Line(int row) const { return lines_[static_cast<std::size_t>(row)]; }

  private:
    std::vector<ZoneLine> lines_;
};

}  // namespace

/// The zones that answer to what is typed.
class ZonesLeft : public QSortFilterProxyModel {
  public:
    ZonesLeft(const ZoneModel& zones, QObject* parent) : QSortFilterProxyModel(parent), zones_(zones) {}
    void Narrow(const QString& typed) {
        typed_ = typed.toStdString();
        invalidateFilter();
    }

  protected:
    bool filterAcceptsRow(int row, const QModelIndex& /*parent*/) const override {
        return zones_.Line(row).Answers(typed_);
    }

  private:
    const ZoneModel& zones_;
    std::string typed_;
};

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
