// SPDX-License-Identifier: MIT
#pragma once

#include <tarvik/core/PluginInfo.h>

/// Stands before the definition of each of the six functions below: the C linkage by which a client finds
/// them, and a place among what the library shows.
#define TARVIK_EXPORT extern "C" __attribute__((visibility("default")))

/// The border between client and plug-in: the six functions that every plug-in's library exports. A plug-in
/// includes this header where it defines them, each marked TARVIK_EXPORT, so that one with other types does
/// not compile; the client's loader takes their types from here.
///
/// C++ objects, texts and lists cross this border and the bus, so client, SDK and plug-in agree in
/// - the compiler's binary interface (the same family, g++ or clang++ on Linux),
/// - the standard library and its text layout (libstdc++ with its present, C++11, layout),
/// - the language: C++20,
/// - the SDK: headers and libraries of one version.
///
/// A plug-in says in its dependency text from which version of the client on it works, "TRV,1.1.4"; the
/// client holds that against kHostVersion before it calls anything but PluginInfo.
///
/// The client calls in this order: PluginInfo of all, then CheckEnvironment and Load of each, dependencies
/// first, InitPlugin of all, SuiteLoaded of all; at the end UnLoad in the opposite order. All calls come on
/// the user-interface thread. An exception that leaves one of them counts as its failure.
namespace Tarvik::Plugin {

static_assert(__cplusplus >= 202002L, "client and plug-ins are built as C++20");

/// Name by which a dependency text asks for the client itself.
inline constexpr const char* kHostName = "TRV";
/// The version of the client and its SDK, against which a dependency on kHostName is held. The build reads it
/// here for the libraries and the package.
inline constexpr const char* kHostVersion = "1.1.4";

}  // namespace Tarvik::Plugin

/// The description record: the library's own, the same at every call. Called before anything else is known,
/// so it uses neither the bus nor other plug-ins. Null leaves the plug-in out.
TARVIK_EXPORT Tarvik::Plugin::CPluginInfo* PluginInfo();
/// Whether the plug-in can work here, asked before Load. False leaves the plug-in out.
TARVIK_EXPORT bool CheckEnvironment();
/// Puts the plug-in to work: it offers its services and subscribes to events. What it depends on has been
/// loaded. False leaves the plug-in out, with all that depend on it.
TARVIK_EXPORT bool Load();
/// Called when every plug-in has been loaded: services of those that it depends on may be used.
TARVIK_EXPORT void InitPlugin();
/// Called when every plug-in has been initialised: everything may be used, windows too.
TARVIK_EXPORT void SuiteLoaded();
/// Takes back all that was offered. The library's code stays in the process; the result is not read.
TARVIK_EXPORT bool UnLoad();
