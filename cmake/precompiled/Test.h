// SPDX-License-Identifier: MIT
#pragma once

#include "Library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
