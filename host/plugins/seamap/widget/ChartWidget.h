// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QPoint>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/plugins/seamap/widget/ChartCamera.h"
#include "host/plugins/seamap/widget/ChartScene.h"
#include "host/plugins/seamap/widget/ObjectDrag.h"

namespace Tarvik::Seamap {

class ChartTools;
class PortCard;

/// The chart as a window: shows the scene from the camera and lets a person pan, zoom, point and click.
///
/// Drag pans, or moves an object that is dragged; the wheel, a double click and + and - zoom; the arrows pan;
/// Home shows all objects; a right click or the menu key opens the menu of a place. The dynamic property
/// "pictures" of the widget or of the application, set to true, turns animation off.
class ChartWidget : public QWidget {
    Q_OBJECT

  public:
    /// The objects must live longer than the widget.
    explicit ChartWidget(ChartObjects& objects, QWidget* parent = nullptr);
    ~ChartWidget() override;

    /// Changes what is shown, land or names, and draws it anew.
    void Change(const std::function<void(ChartScene&)>& change);
    void SetTheme(ChartPalette::Theme theme);
    ChartPalette::Theme Theme() const { return scene_.Palette().theme; }
    const ChartPalette& Palette() const { return scene_.Palette(); }
    /// Names of waters and ports, in the order in which they find room, also for what is gone to.
    void SetNames(const std::vector<ChartName>& names);
    /// Shows and hides parts of the chart.
    void ShowParts(const ChartParts& parts);
    const ChartParts& Parts() const { return scene_.Parts(); }
    ChartTools& Tools() { return *tools_; }
    const VoyagePlans& Plans() const { return objects_.Plans(); }

    /// What is shown, or is about to be while a fit is animated. Before the widget has a size: what it will
    /// fit.
    Extent Shown() const { return camera_.Shown(); }
    /// Fits the extent with a margin. Does nothing while a person drags or zooms; a widget that is resized
    /// before a person moves the view fits it again. False when it was passed over.
    bool ShowExtent(const Extent& extent);
    /// Fits all objects; the whole world without any.
    void FitAll();
    /// Zooms half an octave for each step, in when positive, around the middle.
    void ZoomSteps(int steps);
    /// Brings a place into the middle, near enough for a world of so many pixels.
    void CentreOn(GeoPoint place, std::int64_t leastWorld = 0);
    const MercatorView& View() const { return camera_.View(); }
    /// Tells what is known of a port beside its place, until the chart is pressed or moved.
    void ShowCard(const ChartName& port);

    QSize sizeHint() const override { return {960, 600}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

    /// Asked when a drag begins on an object: whether the object is dragged, and not the chart.
    void SetDragged(std::function<bool(const ObjectKey&)> isDragged) {
        drag_.isDragged = std::move(isDragged);
    }

  signals:
    /// The pointer moved: longitude -180 to 180 and latitude in degrees.
    void CursorMoved(double lon, double lat);
    /// A left click met an object.
    void ObjectClicked(const Tarvik::Seamap::ObjectKey& key);
    /// An object was dragged from where it was pressed to where the button was let go; Escape takes it back.
    void ObjectDragged(const Tarvik::Seamap::ObjectKey& key, const Tarvik::Seamap::GeoPoint& from,
                       const Tarvik::Seamap::GeoPoint& to);
    /// A left click met a port of the chart itself.
    void PortClicked(const Tarvik::Seamap::ChartName& port);
    /// A person has shown or hidden a part of the chart.
    void PartTurned(const std::string& part, bool shown);

  protected:
    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    /// The left button from its press to its release.
    struct Press {
        QPoint start;
        QPoint last;
        bool down = false;
        bool drags = false;
    };
    void BeginDrag();
    void EndObjectDrag(bool tell);
    bool IsAnimated() const;
    void Point(std::optional<PixelPoint> pixel);
    void OnMoved();
    /// The part of the chart that no panel covers.
    LabelBox FreeOfPanels() const;

    ChartObjects& objects_;
    ChartScene scene_;
    ChartCamera camera_;
    PortCard* card_;
    ChartTools* tools_;
    ObjectDrag drag_;
    Press press_;
    std::optional<ObjectKey> highlighted_;
    bool byKeyboard_ = false;
    QBasicTimer nightfall_;
    int wheelRest_ = 0;  ///< eighths of a degree of the wheel not yet used
};

}  // namespace Tarvik::Seamap
