// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QSortFilterProxyModel>
#include <string>
#include <utility>
#include <vector>

#include "host/client/services/ZoneList.h"

namespace Tarvik::Client {

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

}  // namespace Tarvik::Client
