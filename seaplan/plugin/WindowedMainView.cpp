// SPDX-License-Identifier: MIT
#include <QCursor>

#include "seaplan/plugin/CompositionRoot.h"
#include "seaplan/plugin/Exports.h"
#include "seaplan/views/ViewsFactory.h"

namespace Tarvik::Seaplan {

bool CreateMainView() {
    CompositionRoot& root = CompositionRoot::Instance();
    root.Ports().ReadNames();
    if (!CreateViews({&root.Catalog(), &root.Voyages(), VoyageStore::Instance(), &root.Ports()})) {
        return false;
    }
    root.PortCallModule().SetCursorSource([] {
        const QPoint cursor = QCursor::pos();
        return std::make_pair(cursor.x(), cursor.y());
    });
    return true;
}

}  // namespace Tarvik::Seaplan
