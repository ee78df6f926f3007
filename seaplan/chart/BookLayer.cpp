// SPDX-License-Identifier: MIT
#include "seaplan/chart/BookLayer.h"

#include <string>
#include <utility>
#include <vector>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

#include "seaplan/chart/ChartLines.h"

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

constexpr const char* kBookLayer = "VOYAGE_BOOK";
constexpr const char* kWayType = "BOOKLINETYPE";
constexpr const char* kPointType = "BOOKPOINTTYPE";
constexpr const char* kFrontType = "BOOKFRONTTYPE";
constexpr int kWayColour = 0x1478E6;  // 0x00BBGGRR, an orange
constexpr int kFrontColour = 0x2020C8;
constexpr int kPointSize = 3;
constexpr int kFrontSize = 6;

void ClearType(const char* type) {
    const Interface::TrvMapObjectRef ref{kBookLayer, "", type};
    Interface::Call(Bus::MapDeleteObjectsByType, &ref);
}

void DrawWay(const PointTexts& way) {
    std::vector<PointTexts> pieces;
    ClearType(kWayType);
    if (SplitAtDateLine(way, pieces) != 0) {
        return;
    }
    Interface::TrvMapLineParams line;
    line.ref = {kBookLayer, "", kWayType};
    line.colour = kWayColour;
    line.width = 2;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        line.ref.id = std::to_string(i);
        line.points = std::move(pieces[i]);
        Interface::Call(Bus::MapAddLine, &std::as_const(line));
    }
}

void DrawRow(const BookPicture& picture, int row, bool front) {
    Interface::TrvMapPointParams point;
    point.label = std::to_string(row + 1);
    point.ref = {kBookLayer, point.label, front ? kFrontType : kPointType};
    point.position = picture.rows[static_cast<std::size_t>(row)];
    point.colour = front ? kFrontColour : kWayColour;
    point.size = front ? kFrontSize : kPointSize;
    Interface::Call(Bus::MapAddPointLabel, &std::as_const(point));
}

}  // namespace

void BookLayer::Draw(const BookPicture& picture) {
    if (drawn_.way.empty() && !picture.way.empty()) {
        Interface::TrvMapLayerParams layer;
        layer.layer = kBookLayer;
        Interface::Call(Bus::MapAddLayer, &std::as_const(layer));
    }
    if (picture.way != drawn_.way) {
        DrawWay(picture.way);
    }
    const bool otherRows = picture.rows != drawn_.rows;
    if (otherRows) {
        ClearType(kPointType);
        for (int row = 0; row < static_cast<int>(picture.rows.size()); ++row) {
            DrawRow(picture, row, false);
        }
    }
    if (otherRows || picture.front != drawn_.front) {
        ClearType(kFrontType);
        if (picture.front >= 0 && picture.front < static_cast<int>(picture.rows.size())) {
            DrawRow(picture, picture.front, true);
        }
    }
    drawn_ = picture;
}

void BookLayer::Clear() {
    if (!drawn_.way.empty()) {
        for (const char* type : {kWayType, kPointType, kFrontType}) {
            ClearType(type);
        }
        drawn_ = {};
    }
}

}  // namespace Tarvik::Seaplan
