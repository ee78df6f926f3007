// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace Tarvik::Client {

/// Colours of the client's windows, by role. The one place where colours are named.
struct ThemeColors {
    QColor window, panel, caption, list;
    QColor text, secondary, disabled;
    QColor accent, onAccent, warning, error, border;
};

/// A look of the whole client: "light", "dark" or "night" (red on black, for the dark bridge).
class Theme {
  public:
    /// An unknown name gives the light theme.
    explicit Theme(const QString& name);
    const QString& Name() const { return name_; }
    const ThemeColors& Colors() const { return colors_; }
    QPalette Palette() const;
    QString StyleSheet() const;
    /// The theme that follows when the person steps through them.
    QString Next() const;
    /// Puts palette, font and style sheet in force for the whole application; plug-ins find the name in the
    /// application's property "tarvik.theme", set before the palette changes.
    void Apply() const;

  private:
    QString name_;
    ThemeColors colors_;
};

}  // namespace Tarvik::Client
