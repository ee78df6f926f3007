// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <memory>

#include <gtest/gtest.h>

#include "host/plugins/seamap/widget/ChartServices.h"
#include "tarvik/src/core/BusTesting.h"

namespace Tarvik::Seamap {

/// A chart of 800 by 500 pixels without land and ports, shown and still, with its services on a bus of its
/// own.
class ChartFixture : public ::testing::Test {
  protected:
    ChartFixture() {
        Core::BusTesting::ForgetAll();
        services_ = std::make_unique<ChartServices>(ChartServices::Paths{"missing.db", "missing.bin"});
        chart_ = services_->Widget();
        chart_->setProperty("pictures", true);
        chart_->resize(800, 500);
        chart_->show();
    }
    ~ChartFixture() override {
        services_.reset();
        Core::BusTesting::ForgetAll();
    }
    QPoint At(GeoPoint place) const {
        const PixelPoint pixel = chart_->View().ToScreen(place);
        return {qRound(pixel.x), qRound(pixel.y)};
    }

    std::unique_ptr<ChartServices> services_;
    ChartWidget* chart_ = nullptr;
};

}  // namespace Tarvik::Seamap
