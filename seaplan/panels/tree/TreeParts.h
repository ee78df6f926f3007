// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "seaplan/panels/tree/RemarkMark.h"
#include "seaplan/panels/tree/RowSelection.h"
#include "seaplan/panels/tree/TreeBuilder.h"
#include "seaplan/panels/tree/TreeRename.h"
#include "seaplan/panels/vessel/VesselView.h"
#include "seaplan/panels/window/ChoicePopup.h"

namespace Tarvik::Seaplan {

/// What the tree stands on; all of it outlives it.
struct TreeCollaborators {
    VoyageStore& store;
    VoyCatalogController& catalog;
    VoyController& voyages;
    TreeWidget& tree;
    TextBox& renameBox;
    VesselView& vesselView;
    ChoicePopup& sortPopup;
};

/// What the commands of the tree work with.
struct TreeParts {
    explicit TreeParts(const TreeCollaborators& given)
        : context(given.store, given.catalog, given.voyages, given.tree),
          status(context),
          builder(context, status),
          chart(context),
          selection(context, status, chart),
          rename(context, given.renameBox, [this](TreeRow row) { return selection.Unfold(row); }),
          remark(context) {}

    TreeContext context;
    TreeStatus status;
    TreeBuilder builder;
    VoyagesOnChart chart;
    RowSelection selection;
    TreeRename rename;
    RemarkMark remark;
};

/// Commands by the name of their item. A command works on the current rows and answers 0 or the negative
/// number of the failed step.
using TreeCommands = std::map<std::string, std::function<int()>>;

}  // namespace Tarvik::Seaplan
