// SPDX-License-Identifier: MIT
// A service that takes a depth and answers a length, offered and called.
#include <string>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/BusCall.h>

using namespace Tarvik;

constexpr Interface::Service<const double, const double> kChain{"ANCHOR_S_CHAIN"};

class Anchor : public Core::TObject {
  public:
#if WRONG == 1
    const double* OnChain(const std::string& depth);
#elif WRONG == 2
    void OnChain(const double& depth);
#elif WRONG == 3
    const float* OnChain(const double& depth);
#elif WRONG == 4
    void* OnChain(const double& depth);
#else
    const double* OnChain(const double& depth);
#endif

  private:
    Interface::Binding chain_ = Interface::Offer(kChain, this, &Anchor::OnChain);
};

double Ask() {
#if WRONG == 5
    const std::string depth = "20";
#else
    const double depth = 20;
#endif
#if WRONG == 6
    const std::string* length = Interface::Call(kChain, &depth);
#elif WRONG == 7
    const double* length = Interface::Call(kChain);
#else
    const double* length = Interface::Call(kChain, &depth);
#endif
    return length != nullptr ? 1 : 0;
}

Anchor anchor;
