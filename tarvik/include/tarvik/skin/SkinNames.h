// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include <tarvik/Export.h>

/// Looks by name: a window says what its controls are, and the look of the name dresses them.
namespace Tarvik::Skin {

/// What kind of control a name is for.
enum class ControlClass : int {
    Dialog = 100,
    PushButton = 103,
    CheckBox = 104,
    RadioButton = 105,
    StaticText = 106,
    EditField = 107,
    ListView = 109
};

/// A name that can be given to a control of its class.
struct SkinName {
    ControlClass control{};
    const char* name = "";
};

/// Every name that has a look, in the order of their classes.
TARVIK_API std::vector<SkinName> SkinNames();
/// Ties a control to the look of a name: what the style sheet of panels draws for it, and its icon. `flag` is
/// 1 on the dialogs that draw their own frame, and stays with the control. False, with the control as it was,
/// for a name that its class does not know.
TARVIK_API bool SkinWindow(QWidget& widget, ControlClass control, std::string_view name, int flag = 0);
/// The name that a control is tied to; empty without one.
TARVIK_API QString SkinOf(const QWidget& widget);
/// Gives every control in a window that is tied to a look its icon in the theme in force.
TARVIK_API void DressAgain(QWidget& window);

}  // namespace Tarvik::Skin
