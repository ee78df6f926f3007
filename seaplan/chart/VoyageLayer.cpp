// SPDX-License-Identifier: MIT
#include "seaplan/chart/VoyageLayer.h"

#include <array>
#include <utility>

#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/PlanContract.h>
#include <tarvik/util/FileUtl.h>

#include "seaplan/chart/ChartLines.h"

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

constexpr const char* kLayer = "VOYAGE";
constexpr const char* kRouteLineType = "VOYLINETYPE";
constexpr const char* kBookLineType = "VOYPOSTBOOKLINETYPE";
constexpr const char* kRoutePointType = "VOYAGETYPE";
constexpr const char* kAlternativeType = "RPOINTTYPE";
constexpr const char* kShipType = "AISSHIPTYPE";
constexpr const char* kShipImage = "AIS_Ship";
constexpr const char* kShipFile = "seaplan/ship.png";
constexpr int kRouteColour = 0x6464E9;
constexpr int kBookColour = 0xC832E9;
constexpr int kRoutePointColour = 0x9664FF;
constexpr int kAlternativeColour = 0xFF00FF;
constexpr int kLineWidth = 2;
constexpr int kLabelSize = 3;
constexpr int kNumberedPieces = 10;
constexpr int kClearRounds = 5;
constexpr int kRemainingFirst = 5;

void StyleLine(Interface::TrvMapLineParams& line, const char* type, const char* style, int colour) {
    line.ref.layer = kLayer;
    line.ref.type = type;
    line.style = style;
    line.colour = colour;
    line.width = kLineWidth;
}

void StyleLabel(Interface::TrvMapPointParams& label, const char* type, int colour) {
    label.ref.layer = kLayer;
    label.ref.type = type;
    label.shape = "circle";
    label.colour = colour;
    label.size = kLabelSize;
}

void StyleRecords(VoyageLayer& layer) {
    StyleLine(layer.mainLine, kRouteLineType, "solid", kRouteColour);
    StyleLine(layer.remainingLine, kBookLineType, "solid", kBookColour);
    StyleLine(layer.sailedLine, kBookLineType, "dashed", kBookColour);
    StyleLine(layer.spareLine, kBookLineType, "dashed", kBookColour);
    StyleLabel(layer.routePointLabel, kRoutePointType, kRoutePointColour);
    StyleLabel(layer.alternativeLabel, kAlternativeType, kAlternativeColour);
    layer.shipIcon.ref.layer = kLayer;
    layer.shipIcon.ref.type = kShipType;
    layer.shipIcon.image = kShipImage;
}

/// Removes whatever a voyage may have of one type: its numbered pieces and the object that bears its own id.
void DeleteObjectsOf(const std::string& vi, const char* type) {
    std::array<Interface::TrvMapObjectRef, kNumberedPieces + 1> objects;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        objects[i].id = i < kNumberedPieces ? vi + "_" + std::to_string(i) : vi;
        objects[i].type = type;
    }
    const Interface::TrvMapObjectList list{kLayer, objects.data(), static_cast<std::int32_t>(objects.size())};
    Interface::Call(Bus::MapDeleteObjects, &list);
}

/// The chart forgets when the plan has a voyage where; with an empty id those of all voyages.
void ForgetPlan(const std::string& vi) {
    const Interface::TrvMapPlan none{kLayer, vi, kShipType, {}, {}, {}};
    Interface::Call(Bus::MapSetPlan, &none);
}

}  // namespace

VoyageLayer::VoyageLayer() {
    layer_.layer = kLayer;
    StyleRecords(*this);
}

int VoyageLayer::SetupLayer() {
    layer_.layer = kLayer;
    Interface::Call(Bus::MapAddLayer, &std::as_const(layer_));
    StyleRecords(*this);
    return 0;
}

void VoyageLayer::ClearType(const char* type) {
    const Interface::TrvMapObjectRef ref{kLayer, "", type};
    Interface::Call(Bus::MapDeleteObjectsByType, &ref);
}

int VoyageLayer::ClearRouteObjects() {
    ClearType(kRoutePointType);
    ClearType(kRouteLineType);
    ClearType(kAlternativeType);
    return 0;
}

int VoyageLayer::ClearAllObjects() {
    ClearRouteObjects();
    ClearType(kShipType);
    ClearType(kBookLineType);
    ForgetPlan({});
    return 0;
}

int VoyageLayer::ClearVoyageObjects(const std::string& vi) {
    if (vi.empty()) {
        return -1;
    }
    for (int round = 0; round < kClearRounds; ++round) {
        DeleteObjectsOf(vi, kBookLineType);
        DeleteObjectsOf(vi, kShipType);
    }
    ForgetPlan(vi);
    return 0;
}

int VoyageLayer::PlaceShip(Interface::TrvMapImageParams& record, const std::string& position) {
    if (position.empty()) {
        return -1;
    }
    const Interface::TrvMapImageReg image{kShipImage, Util::FileUtl::BusinessData(kShipFile)};
    Interface::Call(Bus::MapRegisterImage, &image);
    record.position = position;
    Interface::Call(Bus::MapAddImage, &std::as_const(record));
    return 0;
}

int VoyageLayer::DrawLine(Interface::TrvMapLineParams& line, const PointTexts& points, int mode) {
    line.points.clear();
    std::vector<PointTexts> pieces;
    if (const int code = SplitAtDateLine(points, pieces); code != 0) {
        return code;
    }
    if (mode != 0 && mode != 1) {
        return -4;
    }
    int number = mode == 0 ? 0 : kRemainingFirst;
    const std::string baseId = line.ref.id;
    for (auto& piece : pieces) {
        line.points = std::move(piece);
        line.ref.id = baseId + "_" + std::to_string(number++);
        Interface::Call(Bus::MapAddLine, &std::as_const(line));
        line.ref.id = baseId;
        line.points.clear();
    }
    return 0;
}

int VoyageLayer::SetExtent(const PointTexts& points) {
    if (!autoExtent) {
        return 0;
    }
    if (const auto extent = ExtentOf(points)) {
        Interface::Call(Bus::MapSetExtent, &*extent);
    }
    return 0;
}

void VoyageLayer::ClearAlternatives() {
    ClearType(kAlternativeType);
}

}  // namespace Tarvik::Seaplan
