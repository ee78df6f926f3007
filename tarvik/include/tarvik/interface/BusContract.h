// SPDX-License-Identifier: MIT
#pragma once

/// Every name of the bus at once. A source that needs few of them includes their contract alone, and the
/// records that it fills.
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>
#include <tarvik/bus/DragContract.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/bus/PlacesContract.h>
#include <tarvik/bus/PlanContract.h>
#include <tarvik/bus/SiblingContract.h>
#include <tarvik/bus/VoyageContract.h>
#include <tarvik/interface/ChartRecords.h>
#include <tarvik/interface/PlanRecords.h>
#include <tarvik/interface/ServerRequest.h>
#include <tarvik/interface/SiblingRecords.h>
