// SPDX-License-Identifier: MIT
/// The look of a control is compared with and without the keyboard, pixel by pixel, on a picture of it with a
/// few pixels around it, where some styles draw the mark of focus. Cost: two pictures a control.
#include "tests/windows/WindowFaults.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QToolButton>

namespace Tarvik::WindowTesting {

namespace {

constexpr int kAround = 3;       ///< pixels around a control that belong to its look
constexpr int kLeastPixels = 8;  ///< that must look different with the keyboard

QString NameOf(const QWidget& widget) {
    const QString name = widget.objectName();
    return name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name;
}

QString Line(const QWidget& window, const QWidget& control, const QString& what) {
    return QStringLiteral("%1/%2: %3").arg(NameOf(window), NameOf(control), what);
}

int WidthOf(const QWidget& widget, const QString& text) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

/// Whether a control that has no room for its text tells it elsewhere.
bool IsToldInTip(const QWidget& widget, const QString& text) {
    return widget.toolTip().contains(text);
}

bool IsCut(const QLabel& label) {
    const QString text = label.text();
    if (text.isEmpty() || label.textFormat() == Qt::RichText || !label.pixmap().isNull()) {
        return false;
    }
    const QRect room = label.contentsRect();
    if (label.wordWrap()) {
        const QRect needed =
            label.fontMetrics().boundingRect(QRect(0, 0, room.width(), 100'000), Qt::TextWordWrap, text);
        return needed.height() > room.height() + 1 || needed.width() > room.width();
    }
    return WidthOf(label, text) > room.width();
}

bool IsCut(const QAbstractButton& button) {
    if (button.text().isEmpty()) {
        return false;
    }
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    if (tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull()) {
        return false;
    }
    int icon = 0;
    const bool below = tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonTextUnderIcon;
    if (!button.icon().isNull() && !below) {
        icon = button.iconSize().width();
    }
    return WidthOf(button, button.text()) + icon > button.width();
}

QStringList CutHeads(const QWidget& window, const QHeaderView& header) {
    QStringList faults;
    for (int i = 0; i < header.count(); ++i) {
        const QString text = header.model()->headerData(i, header.orientation()).toString();
        if (header.isSectionHidden(i) || text.isEmpty()) {
            continue;
        }
        int widest = 0;
        for (const QString& word : text.split(QRegularExpression(QStringLiteral("\\s+")))) {
            widest = std::max(widest, WidthOf(header, word));
        }
        const bool told =
            header.model()->headerData(i, header.orientation(), Qt::ToolTipRole).toString().contains(text);
        // The hint knows the size of the titles' letters, and not that they are wrapped.
        const int margins = 2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
        const int needed = std::min(widest, header.sectionSizeHint(i) - margins);
        if (needed > header.sectionSize(i) && !told) {
            faults << Line(window, header, QStringLiteral("title \"%1\" is cut").arg(text));
        }
    }
    return faults;
}

QImage LookOf(QWidget& window, const QWidget& control) {
    const QRect at(control.mapTo(&window, QPoint(0, 0)), control.size());
    return window.grab(at.adjusted(-kAround, -kAround, kAround, kAround)).toImage();
}

int Differences(const QImage& a, const QImage& b) {
    int count = a.size() == b.size() ? 0 : kLeastPixels;
    for (int y = 0; count < kLeastPixels && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

bool TakesKeyboard(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0 &&
           widget.focusProxy() == nullptr;
}

}  // namespace

QStringList WindowFaults::OffScreen(const QWidget& window) {
    const QRect room = window.screen()->availableGeometry();
    // At 150 % the edge of a frame may come out a pixel off.
    const QRect allowed = room.adjusted(-1, -1, 1, 1);
    const QRect at = window.frameGeometry();
    if (allowed.contains(at)) {
        return {};
    }
    return {QStringLiteral("%1 at %2,%3 %4x%5 is not on the screen of %6x%7")
                .arg(NameOf(window))
                .arg(at.x())
                .arg(at.y())
                .arg(at.width())
                .arg(at.height())
                .arg(room.width())
                .arg(room.height())};
}

QStringList WindowFaults::CutTexts(const QWidget& window) {
    QStringList faults;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->isVisible() || control->window() != &window) {
            continue;
        }
        QString cut;
        if (const auto* label = qobject_cast<const QLabel*>(control); label != nullptr && IsCut(*label)) {
            cut = label->text();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(control);
                   button != nullptr && IsCut(*button)) {
            cut = button->text();
        } else if (const auto* field = qobject_cast<const QLineEdit*>(control);
                   field != nullptr && field->text().isEmpty() &&
                   WidthOf(*field, field->placeholderText()) > field->width()) {
            cut = field->placeholderText();
        } else if (const auto* header = qobject_cast<const QHeaderView*>(control)) {
            faults << CutHeads(window, *header);
        }
        if (!cut.isEmpty() && !IsToldInTip(*control, cut)) {
            faults << Line(window, *control, QStringLiteral("\"%1\" is cut").arg(cut));
        }
    }
    return faults;
}

QStringList WindowFaults::UnseenFocus(QWidget& window) {
    QStringList faults;
    // As Tab does, without which some styles draw no mark.
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    QList<QWidget*> controls;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (control->window() == &window && TakesKeyboard(*control)) {
            controls.append(control);
        }
    }
    for (QWidget* control : controls) {
        if (!TakesKeyboard(*control)) {
            continue;
        }
        control->setFocus(Qt::TabFocusReason);
        QApplication::processEvents();
        // A control that hands the keyboard on shows it elsewhere.
        if (!control->hasFocus()) {
            continue;
        }
        const QImage with = LookOf(window, *control);
        control->clearFocus();
        QApplication::processEvents();
        if (control->isVisible() && Differences(with, LookOf(window, *control)) < kLeastPixels) {
            faults << Line(window, *control, QStringLiteral("looks the same with the keyboard"));
        }
    }
    return faults;
}

}  // namespace Tarvik::WindowTesting
