// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QEvent>
#include <QVariant>
#include <utility>

#include <tarvik/skin/Palette.h>

namespace Tarvik::Skin {

namespace {

constexpr const char* kThemeProperty = "tarvik.theme";

void TakePublishedTheme() {
    const QString name = qApp->property(kThemeProperty).toString();
    if (!name.isEmpty()) {
        SetTheme(ThemeNamed(name.toStdString()));
    }
}

}  // namespace

ThemeWatch::ThemeWatch(std::function<void()> changed) : changed_(std::move(changed)) {
    TakePublishedTheme();
    qApp->installEventFilter(this);
}

void ThemeWatch::Publish(Theme theme) {
    SetTheme(theme);
    const std::string_view name = ThemeName(theme);
    qApp->setProperty(kThemeProperty, QString::fromLatin1(name.data(), static_cast<int>(name.size())));
}

bool ThemeWatch::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
        TakePublishedTheme();
        changed_();
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace Tarvik::Skin
