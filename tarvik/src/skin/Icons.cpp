// SPDX-License-Identifier: MIT
#include <QFile>
#include <QIconEngine>
#include <QPixmap>
#include <QSvgRenderer>
#include <map>
#include <tuple>
#include <utility>

#include <tarvik/skin/Icons.h>

#include "tarvik/src/skin/icons/IconTexts.h"

namespace Tarvik::Skin {

namespace {

/// The SVG text of a drawing; empty for an unknown one.
QByteArray DrawingOf(const std::string& name) {
    if (const auto it = IconTexts().find(name); it != IconTexts().end()) {
        return QByteArray(
                   R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><g fill="none" stroke="currentColor" )"
                   R"(stroke-width="1.4" stroke-linecap="round" stroke-linejoin="round">)") +
               QByteArray::fromStdString(it->second) + "</g></svg>";
    }
    QFile file(QString::fromStdString(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Render(QPainter& painter, const QRect& place, QByteArray drawing, const QColor& colour) {
    QSvgRenderer renderer(drawing.replace("currentColor", colour.name().toLatin1()));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, place);
    painter.restore();
}

/// A drawing as an icon: rendered at the size that is asked for, so that it is sharp on a screen of any
/// scale.
class DrawnIcon : public QIconEngine {
  public:
    DrawnIcon(QByteArray drawing, std::initializer_list<int> sizes)
        : drawing_(std::move(drawing)), normal_(Colour(Role::Text)), disabled_(Colour(Role::Disabled)) {
        for (const int size : sizes) {
            sizes_.append({size, size});
        }
    }
    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State /*state*/) override {
        Render(*painter, place, drawing_, InkOf(mode));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap& made = made_[{size.width(), size.height(), InkOf(mode) == disabled_}];
        if (made.isNull()) {
            made = QPixmap(size);
            made.fill(Qt::transparent);
            QPainter painter(&made);
            paint(&painter, made.rect(), mode, state);
        }
        return made;
    }
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override { return sizes_; }
    QIconEngine* clone() const override { return new DrawnIcon(*this); }

  private:
    QColor InkOf(QIcon::Mode mode) const { return mode == QIcon::Disabled ? disabled_ : normal_; }

    QByteArray drawing_;
    QColor normal_;
    QColor disabled_;
    QList<QSize> sizes_;
    std::map<std::tuple<int, int, bool>, QPixmap> made_;  ///< by width, height and whether disabled
};

}  // namespace

std::vector<std::string> IconNames() {
    std::vector<std::string> names;
    for (const auto& [name, text] : IconTexts()) {
        names.push_back(name);
    }
    return names;
}

bool HasIcon(const std::string& name) {
    return IconTexts().contains(name);
}

void PaintIcon(QPainter& painter, const QRect& place, const std::string& name, const QColor& colour) {
    const QByteArray drawing = DrawingOf(name);
    if (!drawing.isEmpty()) {
        Render(painter, place, drawing, colour);
    }
}

QIcon MakeIcon(const std::string& name, std::initializer_list<int> sizes) {
    const QByteArray drawing = DrawingOf(name);
    return drawing.isEmpty() ? QIcon() : QIcon(new DrawnIcon(drawing, sizes));
}

}  // namespace Tarvik::Skin
