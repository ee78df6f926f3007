// SPDX-License-Identifier: MIT
#include <tarvik/bus/BusCall.h>
#include <tarvik/bus/ChartContract.h>

namespace Tarvik::Interface {

void RaiseClick(const std::string& type, const std::string& id) {
    const std::string name = kClickEventPrefix + type;
    Raise(ClickEvent{name.c_str()}, &id);
}

}  // namespace Tarvik::Interface
