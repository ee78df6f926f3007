// SPDX-License-Identifier: MIT
#include "host/plugins/seamap/core/ChartObjects.h"

#include <algorithm>
#include <cmath>

#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/core/PolylineClip.h"

namespace Tarvik::Seamap {

namespace {

constexpr int kWidestLine = 20;
constexpr int kLargestPoint = 40;

void Measure(ChartLine& line) {
    line.minX = line.maxX = line.points.front().x;
    line.minY = line.maxY = line.points.front().y;
    for (const WorldPoint& point : line.points) {
        line.minX = std::min(line.minX, point.x);
        line.maxX = std::max(line.maxX, point.x);
        line.minY = std::min(line.minY, point.y);
        line.maxY = std::max(line.maxY, point.y);
    }
}

/// Pixels by which a straightened line may leave its way.
constexpr double kStray = 0.3;

std::vector<WorldPoint> Straightened(const std::vector<WorldPoint>& points, double worldSize) {
    std::vector<PixelPoint> line;
    line.reserve(points.size());
    for (const WorldPoint& point : points) {
        line.push_back({point.x * worldSize, point.y * worldSize});
    }
    Straighten(line, kStray);
    std::vector<WorldPoint> kept;
    kept.reserve(line.size());
    for (const PixelPoint& point : line) {
        kept.push_back({point.x / worldSize, point.y / worldSize});
    }
    return kept;
}

/// Whether a line's id is that of a voyage, or that, "_" and a number.
bool IsOf(const std::string& voyage, const std::string& id) {
    return id.starts_with(voyage) && (id.size() == voyage.size() || id[voyage.size()] == '_');
}

std::vector<WorldPoint> Unwrapped(const std::vector<std::string>& texts) {
    std::vector<WorldPoint> points;
    for (const std::string& text : texts) {
        const auto position = ParsePosition(text);
        if (!position) {
            continue;
        }
        WorldPoint point = Project(*position);
        // A step of more than half a turn is the short way over the date line.
        if (!points.empty()) {
            point.x += std::round(points.back().x - point.x);
        }
        points.push_back(point);
    }
    return points;
}

}  // namespace

const std::vector<WorldPoint>& ChartLine::PointsFor(std::int64_t worldSize) const {
    for (std::size_t level = 0; level < kStraightened.size(); ++level) {
        if (worldSize <= kStraightened[level]) {
            return straightened[level];
        }
    }
    return points;
}

void ChartObjects::AddLayer(const Interface::TrvMapLayerParams& layer) {
    layers_[layer.layer] = layer;
}

bool ChartObjects::RemoveLayer(const std::string& layer) {
    const bool known = layers_.erase(layer) != 0;
    return RemoveFrom({layer, "", ""}, [&](const ObjectKey& key) { return key.layer == layer; }) > 0 || known;
}

bool ChartObjects::AddLine(const Interface::TrvMapLineParams& line) {
    ChartLine shape;
    shape.points = Unwrapped(line.points);
    if (shape.points.size() < 2) {
        Remove({line.ref.layer, line.ref.type, line.ref.id});
        return false;
    }
    shape.colour = line.colour;
    shape.width = std::clamp(line.width, 1, kWidestLine);
    shape.dashed = line.style == "dashed";
    for (std::size_t level = 0; level < ChartLine::kStraightened.size(); ++level) {
        shape.straightened[level] =
            Straightened(shape.points, static_cast<double>(ChartLine::kStraightened[level]));
    }
    Measure(shape);
    Put(line.ref, std::move(shape));
    return true;
}

bool ChartObjects::AddLabel(const Interface::TrvMapPointParams& point) {
    const auto position = ParsePosition(point.position);
    if (!position) {
        return false;
    }
    Put(point.ref,
        ChartLabel{*position, point.label, point.colour, std::clamp(point.size, 1, kLargestPoint)});
    return true;
}

bool ChartObjects::AddImage(const Interface::TrvMapImageParams& image) {
    const auto position = ParsePosition(image.position);
    if (!position) {
        return false;
    }
    Put(image.ref, ChartImage{*position, image.image});
    return true;
}

void ChartObjects::RegisterImage(const std::string& name, const std::string& path) {
    images_[name] = path;
    Changed();
}

std::string ChartObjects::ImagePath(const std::string& name) const {
    const auto found = images_.find(name);
    return found == images_.end() ? std::string() : found->second;
}

bool ChartObjects::Remove(const ObjectKey& key) {
    const auto place = places_.find(key);
    if (place == places_.end()) {
        return false;
    }
    objects_.erase(place->second);
    places_.erase(place);
    Changed();
    return true;
}

int ChartObjects::Remove(const Interface::TrvMapObjectList& list) {
    int removed = 0;
    for (std::int32_t i = 0; list.objects && i < list.count; ++i) {
        removed += Remove(ObjectKey{list.layer, list.objects[i].type, list.objects[i].id}) ? 1 : 0;
    }
    return removed;
}

int ChartObjects::RemoveType(const std::string& layer, const std::string& type) {
    return RemoveFrom({layer, type, ""},
                      [&](const ObjectKey& key) { return key.layer == layer && key.type == type; });
}

const ChartObject* ChartObjects::Find(const ObjectKey& key) const {
    const auto place = places_.find(key);
    return place == places_.end() ? nullptr : &objects_.at(place->second);
}

std::vector<GeoPoint> ChartObjects::Points() const {
    std::vector<GeoPoint> all;
    for (const auto& [place, object] : objects_) {
        if (const auto* line = std::get_if<ChartLine>(&object.shape)) {
            for (const WorldPoint& point : line->points) {
                all.push_back(Unproject(point));
            }
        }
        if (const auto* label = std::get_if<ChartLabel>(&object.shape)) {
            all.push_back(label->position);
        }
        if (const auto* image = std::get_if<ChartImage>(&object.shape)) {
            all.push_back(image->position);
        }
    }
    return all;
}

void ChartObjects::Put(const Interface::TrvMapObjectRef& ref,
                       std::variant<ChartLine, ChartLabel, ChartImage> shape) {
    const ObjectKey key{ref.layer, ref.type, ref.id};
    const auto [place, added] = places_.try_emplace(key, next_);
    if (added) {
        ++next_;
    }
    objects_.insert_or_assign(place->second, ChartObject{key, std::move(shape)});
    Changed();
}

int ChartObjects::RemoveFrom(const ObjectKey& first, const std::function<bool(const ObjectKey&)>& belongs) {
    int removed = 0;
    for (auto place = places_.lower_bound(first); place != places_.end() && belongs(place->first);) {
        objects_.erase(place->second);
        place = places_.erase(place);
        ++removed;
    }
    if (removed > 0) {
        Changed();
    }
    return removed;
}

void ChartObjects::StandOut(const std::string& id) {
    standsOut_ = id;
    plans_.Choose(id);
    Changed();
}

ChartObjects::Tone ChartObjects::ToneOf(const ObjectKey& key) const {
    if (standsOut_.empty()) {
        return Tone::Plain;
    }
    if (IsOf(standsOut_, key.id)) {
        return Tone::Loud;
    }
    // Objects are sorted by layer, type and id: those of the voyage follow its own name.
    for (auto at = places_.lower_bound({key.layer, key.type, standsOut_});
         at != places_.end() && at->first.layer == key.layer && at->first.type == key.type &&
         at->first.id.starts_with(standsOut_);
         ++at) {
        if (IsOf(standsOut_, at->first.id)) {
            return Tone::Quiet;
        }
    }
    return Tone::Plain;
}

void ChartObjects::Changed() {
    ++revision_;
    if (observer_) {
        observer_();
    }
}

}  // namespace Tarvik::Seamap
