// SPDX-License-Identifier: MIT
#include "tests/gui/Person.h"

#include <algorithm>
#include <utility>

#include "tests/gui/ChildProcess.h"

namespace Tarvik::Programs {

namespace {

ChildProcess::Start On(const std::string& display, std::vector<std::string> words) {
    ChildProcess::Start start;
    start.words = std::move(words);
    start.environment["DISPLAY"] = display;
    return start;
}

std::string FirstLine(const std::string& text) {
    return text.substr(0, text.find('\n'));
}

/// What stands behind "name=" in one of the lines, empty without such a line.
std::string FieldOf(const std::string& lines, const std::string& name) {
    const std::string before = name + "=";
    const std::size_t at = ("\n" + lines).find("\n" + before);
    return at == std::string::npos ? "" : FirstLine(lines.substr(at + before.size()));
}

}  // namespace

std::string Person::Xdotool(std::vector<std::string> words) const {
    words.insert(words.begin(), XDOTOOL_PROGRAM);
    return RunToEnd(On(display_, std::move(words))).out;
}

std::string Person::AwaitWindow(const std::string& title) const {
    std::string found;
    const auto look = [&] {
        found = FirstLine(Xdotool({"search", "--onlyvisible", "--name", "^" + title + "$"}));
        return !found.empty();
    };
    AwaitOrThrow(look, "no window " + title);
    return found;
}

void Person::AwaitWindows(const std::string& title, long count) const {
    const auto counted = [&] {
        const std::string found = Xdotool({"search", "--onlyvisible", "--name", "^" + title + "$"});
        return std::count(found.begin(), found.end(), '\n') == count;
    };
    AwaitOrThrow(counted, "there are not " + std::to_string(count) + " windows " + title);
}

void Person::PressAt(const std::string& window, int x, int y) const {
    Xdotool({"mousemove", "--window", window, std::to_string(x), std::to_string(y), "click", "1"});
}

void Person::Click(const std::string& window, int x, int y) const {
    PressAt(window, x, y);
    const auto focused = [&] { return FirstLine(Xdotool({"getwindowfocus"})) == window; };
    AwaitOrThrow(focused,
                 "the window pressed at " + std::to_string(x) + ", " + std::to_string(y) + " takes no keys");
}

std::string Person::WindowAtPointer() const {
    return FieldOf(Xdotool({"getmouselocation", "--shell"}), "WINDOW");
}

void Person::ChooseInMenu(const std::string& window, int x, int y, double part) const {
    constexpr const char* kIntoTheMenu = "5";
    Xdotool({"mousemove", "--window", window, std::to_string(x), std::to_string(y)});
    const std::string below = WindowAtPointer();
    Xdotool({"click", "3", "mousemove_relative", kIntoTheMenu, kIntoTheMenu});
    std::string menu;
    const auto opened = [&] {
        menu = WindowAtPointer();
        return menu != below;
    };
    AwaitOrThrow(opened, "no menu opens");
    const std::string place = Xdotool({"getwindowgeometry", "--shell", menu});
    const int height = std::stoi("0" + FieldOf(place, "HEIGHT"));
    const int width = std::stoi("0" + FieldOf(place, "WIDTH"));
    PressAt(menu, width / 2, static_cast<int>(part * height));
}

void Person::AwaitKeys(const std::string& window) const {
    AwaitOrThrow([&] { return FirstLine(Xdotool({"getwindowfocus"})) == window; },
                 "the window takes no keys");
}

void Person::Drag(const std::string& window, int x, int y) const {
    constexpr int kGripX = 140;
    constexpr int kGripY = 15;
    const auto text = [](int number) { return std::to_string(number); };
    Xdotool({"mousemove", "--window", window, text(kGripX), text(kGripY), "mousedown", "1", "mousemove",
             text(x + kGripX), text(y + kGripY), "mouseup", "1"});
    const std::string wanted = "Position: " + text(x) + "," + text(y) + " ";
    AwaitOrThrow(
        [&] {
            return Xdotool({"getwindowgeometry", window}).find(wanted) != std::string::npos;
        },
        "the window cannot be dragged");
}

void Person::Type(const std::string& text) const {
    Xdotool({"type", "--delay", "2", text});
}

void Person::Press(const std::vector<std::string>& keys) const {
    std::vector<std::string> words{"key"};
    words.insert(words.end(), keys.begin(), keys.end());
    Xdotool(std::move(words));
}

std::string Person::Look(const std::string& window) const {
    return RunToEnd(On(display_, {IMPORT_PROGRAM, "-silent", "-window", window, "-depth", "8", "ppm:-"})).out;
}

std::string Person::LookForChange(const std::string& window, const std::string& before) const {
    std::string last = before;
    const auto changedAndStill = [&] {
        const std::string now = Look(window);
        const bool still = now == last;
        last = now;
        return still && now != before;
    };
    AwaitOrThrow(changedAndStill, "nothing changed in the window");
    return last;
}

void Person::Photograph(const std::string& file) const {
    RunToEnd(On(display_, {IMPORT_PROGRAM, "-silent", "-window", "root", file}));
}

}  // namespace Tarvik::Programs
