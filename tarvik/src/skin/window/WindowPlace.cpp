// SPDX-License-Identifier: MIT
/// One line a window: its name, left, top, width and height while it floats, the name of its dock and its
/// depth there. The file is replaced in one step.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>
#include <QScreen>
#include <QStringList>
#include <algorithm>
#include <array>

#include <tarvik/skin/WindowPlace.h>
#include <tarvik/util/FileUtl.h>

namespace Tarvik::Skin {

namespace {

constexpr int kMostWindows = 100;
constexpr int kMostPixels = 20000;  ///< a figure beyond it is none of a screen
constexpr std::array<const char*, 6> kDockNames = {"none", "left", "right", "top", "bottom", "whole"};

QString File() {
    return QString::fromStdString(Util::FileUtl::BusinessData("windows.txt"));
}

QStringList ReadLines() {
    QFile file(File());
    QStringList lines;
    if (file.open(QIODevice::ReadOnly)) {
        while (lines.size() < kMostWindows && !file.atEnd()) {
            lines.append(QString::fromUtf8(file.readLine()).simplified());
        }
    }
    return lines;
}

std::optional<WindowPlace> Read(const QStringList& words) {
    enum Word { Name, Left, Top, Width, Height, Side, Depth, Count };
    if (words.size() != Count) {
        return std::nullopt;
    }
    std::array<int, Count> figures{};
    for (const Word word : {Left, Top, Width, Height, Depth}) {
        bool whole = false;
        figures[word] = words[word].toInt(&whole);
        if (!whole || std::abs(figures[word]) > kMostPixels) {
            return std::nullopt;
        }
    }
    const auto side = std::find(kDockNames.begin(), kDockNames.end(), words[Side]);
    if (figures[Width] <= 0 || figures[Height] <= 0 || figures[Depth] < 0 || side == kDockNames.end()) {
        return std::nullopt;
    }
    return WindowPlace{{figures[Left], figures[Top], figures[Width], figures[Height]},
                       static_cast<Dock>(side - kDockNames.begin()),
                       figures[Depth]};
}

bool IsOf(const QString& line, const QString& window) {
    return line.section(u' ', 0, 0) == window;
}

bool Replace(const QString& window, const QString& fresh) {
    QStringList lines = ReadLines();
    lines.removeIf(
        [&window](const QString& line) { return IsOf(line, window) || !Read(line.split(u' ')).has_value(); });
    if (!fresh.isEmpty()) {
        lines.append(fresh);
    }
    QDir().mkpath(QFileInfo(File()).path());
    QSaveFile file(File());
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    for (const QString& line : lines) {
        file.write(line.toUtf8() + '\n');
    }
    return file.commit();
}

}  // namespace

std::optional<WindowPlace> KeptPlace(const QString& window) {
    for (const QString& line : ReadLines()) {
        if (IsOf(line, window)) {
            return Read(line.split(u' '));
        }
    }
    return std::nullopt;
}

bool KeepPlace(const QString& window, const WindowPlace& place) {
    const QRect& at = place.floating;
    return Replace(window, QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
                               .arg(window)
                               .arg(at.x())
                               .arg(at.y())
                               .arg(at.width())
                               .arg(at.height())
                               .arg(QLatin1StringView(kDockNames[static_cast<std::size_t>(place.dock)]))
                               .arg(place.depth));
}

bool ForgetPlace(const QString& window) {
    return !KeptPlace(window) || Replace(window, {});
}

QRect KeptOnScreen(const QRect& wanted) {
    const QScreen* screen = QGuiApplication::screenAt(wanted.center());
    if (screen == nullptr) {
        screen = QGuiApplication::screenAt(wanted.topLeft());
    }
    const QRect room = (screen == nullptr ? QGuiApplication::primaryScreen() : screen)->availableGeometry();
    const int right = std::max(room.left(), room.right() + 1 - wanted.width());
    const int bottom = std::max(room.top(), room.bottom() + 1 - wanted.height());
    return {{std::clamp(wanted.x(), room.left(), right), std::clamp(wanted.y(), room.top(), bottom)},
            wanted.size()};
}

}  // namespace Tarvik::Skin
