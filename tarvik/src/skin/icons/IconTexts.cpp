// SPDX-License-Identifier: MIT
#include "tarvik/src/skin/icons/IconTexts.h"

namespace Tarvik::Skin {

namespace {

struct Drawing {
    const char* name;
    const char* text;
};

constexpr Drawing kDrawings[] = {
    {"add", R"(<path d="M8 3v10M3 8h10"/>)"},
    {"undo", R"(<path d="M6 3L3 6l3 3M3 6h6a3 3 0 0 1 0 6H6"/>)"},
    {"redo", R"(<path d="M10 3l3 3-3 3M13 6H7a3 3 0 0 0 0 6h3"/>)"},
    {"close", R"(<path d="M4 4l8 8M12 4l-8 8"/>)"},
    {"help", R"(<path d="M5.5 6a2.5 2.5 0 1 1 3.7 2.2C8.3 8.7 8 9.2 8 10.2"/><path d="M8 12.6v.4"/>)"},
    {"question",
     R"(<circle cx="8" cy="8" r="6.3"/><path d="M6.200 6.300a1.900 1.900 0 1 1 2.800 1.700C8.300 8.400 8 8.800 8 9.500M8 11.300v.200"/>)"},
    {"notice", R"(<circle cx="8" cy="8" r="6.3"/><path d="M8 7.300v4M8 4.700v.200"/>)"},
    {"search", R"(<circle cx="7" cy="7" r="4.2"/><path d="M10.2 10.2l3.6 3.6"/>)"},
    {"filter", R"(<path d="M2.5 3.5h11L9.5 8.5v4l-3 1.5V8.5z"/>)"},
    {"rename", R"(<path d="M3 13l.8-3L10.5 3.3l2.2 2.2L6 12.2z"/><path d="M9 4.8L11.2 7"/>)"},
    {"delete", R"(<path d="M3 4.5h10M6.2 4.5V3h3.6v1.5M4.3 4.5l.6 8.8h6.2l.6-8.8M6.8 7v4M9.2 7v4"/>)"},
    {"sort-up", R"(<path d="M4.5 13V3.5M2.3 5.7l2.2-2.2 2.2 2.2M8.5 4.5h2M8.5 8h3.5M8.5 11.5h5"/>)"},
    {"sort-down", R"(<path d="M4.5 3v9.5M2.3 10.3l2.2 2.2 2.2-2.2M8.5 4.5h5M8.5 8h3.5M8.5 11.5h2"/>)"},
    {"sort", R"(<path d="M3 4h10M3 8h7M3 12h4"/>)"},
    {"remark", R"(<path d="M3 3.5h10v7H7.5L5 13v-2.5H3z"/>)"},
    {"remark-full", R"(<path d="M3 3.5h10v7H7.5L5 13v-2.5H3z" fill="currentColor"/>)"},
    {"pin", R"(<path d="M6 2.5h4l-.6 4 2.1 2.3h-7L6.600 6.500zM8 8.800v4.700"/>)"},
    {"pinned",
     R"(<path d="M6 2.5h4l-.6 4 2.1 2.300h-7L6.600 6.500z" fill="currentColor"/><path d="M8 8.800v4.700"/>)"},
    {"portcalls",
     R"(<circle cx="4" cy="12" r="1.6"/><circle cx="12" cy="4" r="1.6"/><path d="M5.600 12H10a2 2 0 0 0 0-4H6a2 2 0 0 1 0-4h4.400"/>)"},
    {"consumption",
     R"(<path d="M8 2.500c2.500 3.200 3.800 5.200 3.800 7a3.800 3.800 0 0 1-7.600 0c0-1.800 1.300-3.800 3.800-7z"/>)"},
    {"noon",
     R"(<circle cx="8" cy="8" r="2.800"/><path d="M8 1.800v1.600M8 12.600v1.600M1.800 8h1.600M12.600 8h1.600M3.600 3.600l1.100 1.100M11.300 11.300l1.100 1.100M3.600 12.400l1.100-1.100M11.300 4.700l1.100-1.100"/>)"},
    {"ais",
     R"(<path d="M8 7l3 6.500H5z"/><path d="M5.400 5.800a3.200 3.200 0 0 1 5.200 0M3.400 4a5.800 5.800 0 0 1 9.200 0"/>)"},
    {"ais-on",
     R"(<path d="M8 7l3 6.500H5z" fill="currentColor"/><path d="M5.400 5.800a3.200 3.200 0 0 1 5.200 0M3.400 4a5.800 5.800 0 0 1 9.200 0"/>)"},
    {"modify", R"(<path d="M12.800 6.500A5 5 0 1 0 13 9"/><path d="M13 3v3.600H9.400"/>)"},
    {"replace", R"(<path d="M3 6h9.500M10 3.500L12.500 6 10 8.500M13 10.500H3.500M6 8l-2.500 2.500L6 13"/>)"},
    {"alert", R"(<path d="M8 2.500l6 10.500H2z"/><path d="M8 6.500v3M8 11.200v.3"/>)"},
    {"recover", R"(<path d="M3.300 8a4.700 4.700 0 1 0 1.600-3.500"/><path d="M4.500 2v3h3"/>)"},
    {"clear",
     R"(<path d="M3 4.500h10M6.200 4.500V3h3.600v1.500M4.300 4.500l.6 8.800h6.200l.6-8.800M6.300 7l3.400 4M9.700 7l-3.400 4"/>)"},
    {"save", R"(<path d="M3 3h8l2 2v8H3z"/><path d="M5.500 3v3.500h4V3M5.500 13V9.500h5V13"/>)"},
    {"up", R"(<path d="M8 13V3.500M4 7.500l4-4 4 4"/>)"},
    {"down", R"(<path d="M8 3v9.500M4 8.500l4 4 4-4"/>)"},
    {"chevron-right", R"(<path d="M6 4l4 4-4 4"/>)"},
    {"chevron-down", R"(<path d="M4 6l4 4 4-4"/>)"},
    {"chevron-left", R"(<path d="M10 4L6 8l4 4"/>)"},
    {"status", R"(<circle cx="8" cy="8" r="4.500" fill="currentColor"/>)"},
    {"plan", R"(<circle cx="8" cy="8" r="4.500"/>)"},
    {"underway", R"(<path d="M4 3.500l8.500 4.500L4 12.500z" fill="currentColor"/>)"},
    {"finish", R"(<path d="M3 8.500l3.500 3.500L13 4.500"/>)"},
    {"book",
     R"(<path d="M8 4.500C6.500 3.300 4.500 3 2.500 3.200v9c2-.2 4 .1 5.500 1.300 1.500-1.200 3.500-1.500 5.500-1.300v-9C11.500 3 9.500 3.300 8 4.500zM8 4.500v9"/>)"},
    {"vessel", R"(<path d="M2.500 9.500h11l-1.800 3.500H4.300zM5 9.500v-3h6v3M8 6.500V3"/>)"}};

}  // namespace

const std::map<std::string, std::string>& IconTexts() {
    static const std::map<std::string, std::string> texts = [] {
        std::map<std::string, std::string> made;
        for (const Drawing& drawing : kDrawings) {
            made.emplace(drawing.name, drawing.text);
        }
        return made;
    }();
    return texts;
}

}  // namespace Tarvik::Skin
