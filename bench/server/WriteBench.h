// SPDX-License-Identifier: MIT
#pragma once

namespace Bench {

/// Small changes of 32 connections, each answered when it is on disk, with files and with PostgreSQL, beside
/// the disk's syncs and the data base's own benchmark with the same statements. Prints one line a figure.
void MeasureWrites();

/// Small reads over TLS beside the same without it.
void MeasureTls();

}  // namespace Bench
