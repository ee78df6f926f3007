// SPDX-License-Identifier: MIT
#pragma once

#include "seaplan/panels/tree/RemarkMark.h"
#include "seaplan/panels/tree/RowSelection.h"
#include "seaplan/panels/tree/TreeBuilder.h"
#include "seaplan/panels/tree/TreeCollaborators.h"
#include "seaplan/panels/tree/TreeContext.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/tree/TreeStatus.h"
#include "seaplan/panels/tree/VoyagesOnChart.h"

namespace Tarvik::Seaplan {

/// What the commands of the tree work with.
struct TreeParts {
    explicit TreeParts(const TreeCollaborators& given)
        : context(given.store, given.catalog, given.voyages, given.tree),
          status(context),
          builder(context, status),
          chart(context),
          selection(context, status, chart),
          rename(
              context, given.renameBox, [this](TreeRow row) { return selection.Unfold(row); },
              [this](TreeRow row) { selection.Press(row); }),
          remark(context) {}

    TreeContext context;
    TreeStatus status;
    TreeBuilder builder;
    VoyagesOnChart chart;
    RowSelection selection;
    TreeRename rename;
    RemarkMark remark;
    PortCallSource portCalls;

    /// The port call panel, null where there is none.
    PortCallOpener* PortCalls() const { return portCalls ? portCalls() : nullptr; }
};

}  // namespace Tarvik::Seaplan
