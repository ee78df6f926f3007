// SPDX-License-Identifier: MIT
// A panel that hears an event which carries a PanelShow and is not answered.
#include <string>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/HostContract.h>

using namespace Tarvik;

class Panel : public Core::TObject {
  public:
#if WRONG == 1
    void OnShow(const std::string& text);
#elif WRONG == 2
    void* OnShow(void* input);
#elif WRONG == 3
    const int* OnShow(const Interface::PanelShow& show);
#elif WRONG == 4
    void OnShow(Interface::PanelShow& show);
#elif WRONG == 5
    void OnShow();
#else
    void OnShow(const Interface::PanelShow& show);
#endif

  private:
    Interface::Binding show_ = Interface::Subscribe(Interface::Bus::ShowPanel, this, &Panel::OnShow);
};

Panel panel;
