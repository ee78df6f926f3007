// SPDX-License-Identifier: MIT
#include <QApplication>

#include <gtest/gtest.h>

#include "testsupport/OffscreenScreen.h"

int main(int argc, char** argv) {
    const Tarvik::TestSupport::OffscreenScreen screen;
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
