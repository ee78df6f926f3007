// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>
#include <optional>

#include "host/plugins/seamap/core/ChartObjects.h"
#include "host/plugins/seamap/core/ChartPalette.h"
#include "host/plugins/seamap/core/MercatorView.h"
#include "host/plugins/seamap/widget/BaseLayer.h"
#include "host/plugins/seamap/widget/HaloTexts.h"
#include "host/plugins/seamap/widget/ImageStore.h"
#include "host/plugins/seamap/widget/ViewMotion.h"

namespace Tarvik::Seamap {

/// The chart as a window: draws land and objects and lets a person pan, zoom, point and click.
///
/// Drag pans; the wheel, a double click and + and - zoom; the arrows pan; Home shows all objects. The dynamic
/// property "pictures" of the widget or of the application, set to true, turns animation off.
class ChartWidget : public QWidget {
    Q_OBJECT

  public:
    /// The objects must live longer than the widget.
    explicit ChartWidget(ChartObjects& objects, QWidget* parent = nullptr);
    ~ChartWidget() override;

    void SetLand(CoastData land);
    void SetTheme(ChartPalette::Theme theme);
    ChartPalette::Theme Theme() const { return palette_->theme; }

    /// What is shown, or is about to be while a fit is animated. Before the widget has a size: what it will
    /// fit.
    Extent Shown() const;
    /// Fits the extent with a margin. Does nothing while a person drags or zooms; a widget that is resized
    /// before a person moves the view fits it again. False when it was passed over.
    bool ShowExtent(const Extent& extent);
    /// Fits all objects; the whole world without any.
    void FitAll();
    /// Zooms half an octave for each step, in when positive, around the middle.
    void ZoomSteps(int steps);
    const MercatorView& View() const { return view_; }

    QSize sizeHint() const override { return {960, 600}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

  signals:
    /// The pointer moved: longitude -180 to 180 and latitude in degrees.
    void CursorMoved(double lon, double lat);
    /// A left click met an object.
    void ObjectClicked(const Tarvik::Seamap::ObjectKey& key);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool IsAnimated() const;
    bool IsPersonMoving() const;
    void Fit(bool animated);
    void ZoomAround(PixelPoint anchor, int steps);
    void Pan(int dx, int dy);
    void Point(std::optional<PixelPoint> pixel);
    const ChartObject* ObjectAt(PixelPoint pixel);
    QString TipOf(const ChartObject& object) const;

    ChartObjects& objects_;
    const ChartPalette* palette_;
    MercatorView view_;
    BaseLayer base_;
    ImageStore images_;
    HaloTexts texts_;
    ViewMotion motion_;
    std::optional<Extent> fitted_;  ///< empty once a person has moved the view
    std::optional<ObjectKey> highlighted_;
    QPoint pressedAt_;
    QPoint draggedFrom_;
    bool pressed_ = false;
    bool dragging_ = false;
    bool zooming_ = false;  ///< the motion under way was started by a person
    bool byKeyboard_ = false;
    int wheelRest_ = 0;  ///< eighths of a degree of the wheel not yet used
};

}  // namespace Tarvik::Seamap
