// SPDX-License-Identifier: MIT
#include "seaplan/plugin/Exports.h"

namespace Tarvik::Seaplan {

namespace {

class Record : public Plugin::CPluginInfo {
  public:
    Record() : CPluginInfo("TRV,1.1.4|PlgSeamap,1.1") {
        name = "Seaplan";
        version = "2.0.1.0";
        SetDisplayName(u"Seaplan");
        SetDescription(u"Voyage Management");
        SetCompany(u"Seaplan project");
        SetCopyright(u"Copyright Seaplan project, MIT licence");
    }
};

}  // namespace

Plugin::CPluginInfo* PluginRecord() {
    static Record record;
    return &record;
}

}  // namespace Tarvik::Seaplan
