// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QString>
#include <algorithm>
#include <cstddef>
#include <string>

#include "seaplan/panels/language/LoadText.h"

/// A panel's texts as the window system takes them.
namespace Tarvik::Seaplan {

/// Text of a key in the language in force.
inline QString ViewText(TextId id) {
    return QString::fromStdString(Text(id));
}

/// Puts a text into a field whole. Typing makes it at most `limit` UTF-16 units long, or as long as a longer
/// text was.
inline void PutWhole(QLineEdit& field, const std::string& text, std::size_t limit) {
    const QString shown = QString::fromStdString(text);
    field.setMaxLength(std::max(static_cast<int>(limit), static_cast<int>(shown.size())));
    field.setText(shown);
}

}  // namespace Tarvik::Seaplan
