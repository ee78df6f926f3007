// SPDX-License-Identifier: MIT
#pragma once

/// Marks what the SDK's shared library offers to plug-ins and to the client.
#define TARVIK_API __attribute__((visibility("default")))
