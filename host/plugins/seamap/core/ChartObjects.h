// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include <tarvik/interface/ChartRecords.h>

#include "host/plugins/seamap/core/ChartShips.h"
#include "host/plugins/seamap/core/Projection.h"
#include "host/plugins/seamap/core/VoyagePlans.h"

namespace Tarvik::Seamap {

/// Name of an object: unique over layer, type and id together.
struct ObjectKey {
    std::string layer;
    std::string type;
    std::string id;
    auto operator<=>(const ObjectKey&) const = default;
};

/// A line over the projected world. Neighbouring points lie at most half a turn apart, so x may leave 0 to 1
/// where the line goes over the date line.
struct ChartLine {
    std::vector<WorldPoint> points;
    /// The same, straightened for worlds up to the sizes of kStraightened.
    std::array<std::vector<WorldPoint>, 2> straightened;
    double minX = 0, maxX = 0, minY = 0, maxY = 0;
    std::int32_t colour = 0;  ///< 0x00BBGGRR
    int width = 3;            ///< pixels
    bool dashed = false;

    static constexpr std::array<std::int64_t, 2> kStraightened{2600, 10400};
    /// The points that are told apart in a world of so many pixels.
    const std::vector<WorldPoint>& PointsFor(std::int64_t worldSize) const;
};

/// A point with its text.
struct ChartLabel {
    GeoPoint position;
    std::string text;
    std::int32_t colour = 0;  ///< 0x00BBGGRR
    int size = 3;             ///< radius in pixels
};

struct ChartImage {
    GeoPoint position;
    std::string image;
};

struct ChartObject {
    ObjectKey key;
    std::variant<ChartLine, ChartLabel, ChartImage> shape;
};

/// Everything drawn on the chart, without a window.
///
/// An object added under a key that is taken replaces the old one and keeps its place in the drawing order,
/// which is otherwise the order of adding. Images are known by their registered name.
class ChartObjects {
  public:
    /// Keeps the parameters of a layer; one that is there already gets the new ones and keeps its objects.
    void AddLayer(const Interface::TrvMapLayerParams& layer);
    /// Removes a layer and all its objects. False when it is unknown.
    bool RemoveLayer(const std::string& layer);
    bool HasLayer(const std::string& layer) const { return layers_.count(layer) != 0; }

    /// Points that cannot be read are left out; with fewer than two left nothing is drawn, an old line under
    /// the key goes, and the answer is false.
    bool AddLine(const Interface::TrvMapLineParams& line);
    /// False when the position cannot be read; an old object under the key then stays.
    bool AddLabel(const Interface::TrvMapPointParams& point);
    bool AddImage(const Interface::TrvMapImageParams& image);
    void RegisterImage(const std::string& name, const std::string& path);
    /// File of a registered image; empty when the name is unknown.
    std::string ImagePath(const std::string& name) const;

    bool Remove(const ObjectKey& key);
    /// Removes the listed objects, the layer being taken from the list. Answers how many there were.
    int Remove(const Interface::TrvMapObjectList& list);
    int RemoveType(const std::string& layer, const std::string& type);

    /// All objects in drawing order.
    const std::map<std::uint64_t, ChartObject>& InOrder() const { return objects_; }
    const ChartObject* Find(const ObjectKey& key) const;
    std::size_t Count() const { return objects_.size(); }
    /// All points of all objects.
    std::vector<GeoPoint> Points() const;

    /// Lets the lines of a voyage stand out, by its id; an empty one leaves all alike.
    void StandOut(const std::string& id);
    /// How a line stands among those of its layer and type.
    enum class Tone { Plain, Quiet, Loud };
    Tone ToneOf(const ObjectKey& key) const;

    /// Counts the changes of what is drawn, but for the ships: pictures of it are good while it stays.
    std::uint64_t Revision() const { return revision_; }

    /// The ships, which are drawn below all objects.
    ChartShips& Ships() { return ships_; }
    const ChartShips& Ships() const { return ships_; }

    /// The plans of the voyages among the objects.
    VoyagePlans& Plans() { return plans_; }
    const VoyagePlans& Plans() const { return plans_; }

    /// Called after each change, of ships too; an empty function ends it.
    void SetObserver(std::function<void()> observer) {
        ships_.SetObserver(observer);
        observer_ = std::move(observer);
    }

  private:
    void Put(const Interface::TrvMapObjectRef& ref, std::variant<ChartLine, ChartLabel, ChartImage> shape);
    /// Removes from the first object that does not lie before a key on, as long as they belong there.
    int RemoveFrom(const ObjectKey& first, const std::function<bool(const ObjectKey&)>& belongs);
    void Changed();

    std::map<std::string, Interface::TrvMapLayerParams> layers_;
    std::map<std::string, std::string> images_;
    std::map<ObjectKey, std::uint64_t> places_;
    std::map<std::uint64_t, ChartObject> objects_;
    std::uint64_t next_ = 0;
    std::uint64_t revision_ = 0;
    std::string standsOut_;
    ChartShips ships_;
    VoyagePlans plans_;
    std::function<void()> observer_;
};

}  // namespace Tarvik::Seamap
