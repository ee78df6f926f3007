// SPDX-License-Identifier: MIT
#pragma once

#include "host/server/storage/contract/CatalogStorage.h"
#include "host/server/storage/contract/RemarkStorage.h"
#include "host/server/storage/contract/ScheduleStorage.h"

namespace Tarvik::Server {

/// Everything that the voyage server keeps.
///
/// Every operation takes the owner first and reaches nothing of anybody else. An operation is one
/// transaction: it is on disk when it succeeds and has changed nothing when it does not. Ids are decimal
/// texts from 1000001 upward, unique over all owners and kinds of record, and never given out twice.
/// Operations may be called from any thread and never throw.
class Storage {
  public:
    virtual ~Storage() = default;

    virtual CatalogStorage& Catalog() = 0;
    virtual ScheduleStorage& Schedule() = 0;
    virtual RemarkStorage& Remarks() = 0;
};

}  // namespace Tarvik::Server
