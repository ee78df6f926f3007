// SPDX-License-Identifier: MIT
#include "seaplan/controllers/voycal/CVoyCal.h"

#include <utility>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/core/TObject.h>
#include <tarvik/interface/ValueDictionary.h>
#include <tarvik/util/StringUtl.h>

#include "seaplan/controllers/voycal/VoyCalDrawing.h"
#include "seaplan/controllers/voycal/VoyCalReply.h"
#include "seaplan/data/Position.h"

namespace Tarvik::Seaplan {

namespace {

namespace Bus = Interface::Bus;

constexpr const char* kChosen = "case3";
constexpr int kTraditionalChinese = 1028;
constexpr int kSimplifiedChinese = 2052;

VoyCalPoints PointsOf(PortDirectory& ports) {
    VoyCalPoints points;
    const PointMap* rows = ports.RoutePoints();
    if (rows == nullptr) {
        return points;
    }
    for (const auto& [id, row] : *rows) {
        GeoPoint position;
        ReadPosition(row.position, 0, position);
        points[id] = {position.x, position.y, id, row.name};
    }
    return points;
}

void ClearType(const char* type) {
    const Interface::TrvMapObjectRef ref{kVoyCalLayer, "", type};
    Interface::Call(Bus::MapDeleteObjectsByType, &ref);
}

void AddLabel(const VoyCalPoint& point, bool isAlternative) {
    const auto label = VoyCalLabel(point, isAlternative);
    Interface::Call(Bus::MapAddPointLabel, &label);
}

const VoyCalGroup* FindGroup(const std::vector<VoyCalPort>& ports, const std::string& id) {
    for (const auto& port : ports) {
        for (const auto& group : port.groups) {
            if (group.head.id == id) {
                return &group;
            }
        }
    }
    return nullptr;
}

}  // namespace

CVoyCal::CVoyCal(PortDirectory& ports, std::string reply)
    : points_(PointsOf(ports)), reply_(std::move(reply)) {
    bindings_.Keep(Interface::Offer(Bus::CalculateVoyage, this, &CVoyCal::OnCalculate));
    bindings_.Keep(Interface::Announce(Bus::ClickRPoint, this, &CVoyCal::OnPointClicked));
    bindings_.Keep(Interface::Announce(Bus::ClickRRPoint, this, &CVoyCal::OnAlternativeClicked));
    Interface::TrvMapLayerParams layer;
    layer.layer = kVoyCalLayer;
    Interface::Call(Bus::MapAddLayer, &std::as_const(layer));
}

CVoyCal::~CVoyCal() {
    bindings_.Withdraw();
    const std::string layer = kVoyCalLayer;
    Interface::Call(Bus::MapRemoveLayer, &layer);
}

const VoyCalResult* CVoyCal::OnCalculate(const std::string* text) {
    std::vector<std::string> ids;
    if (text != nullptr) {
        Util::StringUtl::split(*text, ",", ids);
    }
    Calculate(std::move(ids));
    return &result_;
}

void CVoyCal::Reset() {
    ports_.clear();
    ids_.clear();
    change_ = {};
    mode_.clear();
    selected_.clear();
    result_ = {};
}

void CVoyCal::Calculate(std::vector<std::string> ids) {
    Reset();
    if (ids.size() < 2) {
        return;
    }
    ids_ = std::move(ids);
    AskPorts();
    if (ports_.size() != ids_.size() || !ReadVoyCalReply(reply_, points_, ports_)) {
        ports_.clear();
        ids_.clear();
        return;
    }
    result_.crossesDateLine = MeetsDateLine(ports_) ? 1 : 0;
    Draw();
    LabelPoints();
    result_.valid = 1;
}

/// A port that the chart does not know is left out; the calculation then fails.
void CVoyCal::AskPorts() {
    for (const auto& id : ids_) {
        if (const auto* record = Interface::Call(Bus::MapGetPort, &id)) {
            VoyCalPort port;
            port.point = {record->x, record->y, id, record->name};
            ports_.push_back(std::move(port));
        }
    }
}

void CVoyCal::Draw() {
    VoyCalLines lines = LinesOf(ports_);
    extent_ = lines.extent;
    result_.mainLine = VoyCalLine(std::move(lines.main));
    Interface::Call(Bus::MapAddLine, &std::as_const(result_.mainLine));
    if (lines.crosses) {
        result_.eastLine = VoyCalLine(std::move(lines.east));
        Interface::Call(Bus::MapAddLine, &std::as_const(result_.eastLine));
    } else {
        SendExtent();
    }
}

void CVoyCal::LabelPoints() {
    for (const auto& port : ports_) {
        for (const auto& group : port.groups) {
            AddLabel(group.head, false);
        }
    }
}

/// The view changes only when something would lie outside it.
void CVoyCal::SendExtent() {
    Interface::TrvMapExtent* current = Interface::Call(Bus::MapGetExtent);
    if (current == nullptr) {
        return;
    }
    const bool shown = Holds(*current, extent_);
    Core::FreeBusBlock(current);
    if (!shown) {
        Interface::Call(Bus::MapSetExtent, &std::as_const(extent_));
    }
}

const char* CVoyCal::OnPointClicked(const std::string& id) {
    if (!selected_.empty()) {
        ClearType(kVoyCalAlternativeType);
    }
    selected_ = id != selected_ && ShowAlternatives(id) ? id : "";
    return nullptr;
}

bool CVoyCal::ShowAlternatives(const std::string& id) {
    const VoyCalGroup* group = FindGroup(ports_, id);
    if (group == nullptr) {
        return false;
    }
    for (const auto& point : group->alternatives) {
        if (point.id != id) {
            AddLabel(point, true);
            Widen(extent_, point.x, point.y);
        }
    }
    SendExtent();
    return true;
}

const char* CVoyCal::OnAlternativeClicked(const std::string& id) {
    ClearType(kVoyCalAlternativeType);
    ClearType(kVoyCalPointType);
    ClearType(kVoyCalLineType);
    ApplyChange(id);
    selected_.clear();
    return nullptr;
}

void CVoyCal::ApplyChange(const std::string& newId) {
    if (newId == selected_) {
        return;
    }
    if (const auto change = ChangeOf(ports_, selected_, newId)) {
        change_ = *change;
        mode_ = kChosen;
        const auto port = static_cast<std::size_t>(change_.port);
        if (const auto entry = EntryWithLock(ports_[port], change_, mode_ == kChosen)) {
            ids_[port] = *entry;
        }
    }
    if (change_.newId == newId) {
        CalculateAgain();
    } else {
        change_.port = -1;
    }
}

/// Asks for the ports alone; the locks stay in the list for the next request.
void CVoyCal::CalculateAgain() {
    const std::vector<std::string> entries = ids_;
    std::vector<std::string> ids;
    ids.reserve(entries.size());
    for (const auto& entry : entries) {
        ids.push_back(PortIdOfEntry(entry));
    }
    Calculate(std::move(ids));
    if (result_.valid != 0) {
        ids_ = entries;
    }
}

std::string CVoyCal::LanguageCode(int language) {
    switch (language) {
        case kTraditionalChinese:
            return "zh-TW";
        case kSimplifiedChinese:
            return "zh-CN";
        default:
            return "en-US";
    }
}

std::string CVoyCal::SiteAddress(const std::string& key, const std::string& fallback) {
    const std::string address = Interface::GetValueByName("/trvwebsites", key, Interface::kEnglishLanguage);
    return address.empty() ? fallback : address;
}

}  // namespace Tarvik::Seaplan
