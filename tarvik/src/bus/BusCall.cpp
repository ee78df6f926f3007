// SPDX-License-Identifier: MIT
#include <tarvik/bus/BusCall.h>
#include <tarvik/core/TrvKernel.h>

namespace Tarvik::Interface::Detail {

// The bus carries untyped pointers, so that what is read only crosses it without its mark; both ends put it
// back.
void* CallByName(const char* name, const void* input) {
    void* answer = nullptr;
    Core::TrvKernel::Instance()->CallTrvService(name, const_cast<void*>(input), answer);
    return answer;
}

std::vector<void*> RaiseByName(const char* name, const void* input) {
    return Core::TrvKernel::Instance()->RaiseTrvEvent(name, const_cast<void*>(input));
}

bool IsBound(const char* name) {
    return Core::TrvKernel::Instance()->IsBound(name);
}

}  // namespace Tarvik::Interface::Detail
