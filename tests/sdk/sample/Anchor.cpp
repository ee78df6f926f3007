// SPDX-License-Identifier: MIT
// How much chain a ship at anchor should veer: a service for other plug-ins and a panel for a person.
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <memory>

#include <tarvik/core/PluginInfo.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/interface/BusContract.h>
#include <tarvik/skin/ToolWindow.h>

namespace {

using namespace Tarvik;

/// The panel's number in the event that opens panels; 3 and 21 are taken.
constexpr int kAnchorPanel = 100;
/// Takes a depth in metres, answers the length of chain in metres.
constexpr Interface::Service<const double, const double> kChain{"ANCHOR_S_CHAIN"};

double ChainFor(double depth) {
    return 6.0 * depth;
}

class AnchorWindow : public Skin::ToolWindow {
  public:
    explicit AnchorWindow(QWidget* mainWindow) : ToolWindow(mainWindow, "anchorPanel") {
        SetCaption("Anchor");
        QToolButton* close = AddCaptionButton("anchorClose", "close");
        Skin::Describe(close, "Close");
        connect(close, &QToolButton::clicked, this, &QWidget::hide);
        Body()->addWidget(
            new QLabel(QString("At 20 m of water veer %1 m of chain.").arg(ChainFor(20)), this));
    }

  protected:
    void CloseAsked() override { hide(); }
};

/// What the plug-in offers while it is loaded.
class Anchor : public Core::TObject {
  public:
    Anchor() {
        chainEvent_.Set<&Anchor::OnChain>(this);
        showEvent_.Set<&Anchor::OnShow>(this);
        Core::TrvKernel* bus = Core::TrvKernel::Instance();
        bus->CreateTrvService(kChain.name, this, "", "", &chainEvent_);
        bus->BindTrvEvent(Interface::Bus::ShowPanel.name, &showEvent_);
    }
    ~Anchor() override {
        Core::TrvKernel* bus = Core::TrvKernel::Instance();
        bus->UnBindTrvEvent(Interface::Bus::ShowPanel.name, &showEvent_);
        bus->DeleteTrvService(kChain.name, this);
        delete window_;
    }

  private:
    void* OnChain(void* depth) {
        if (depth == nullptr) {
            return nullptr;
        }
        answer_ = ChainFor(*static_cast<const double*>(depth));
        return &answer_;
    }
    void* OnShow(void* input) {
        const auto* show = static_cast<const Interface::PanelShow*>(input);
        if (show != nullptr && show->panel == kAnchorPanel) {
            if (!window_) {
                window_ = new AnchorWindow(static_cast<QWidget*>(Core::TrvKernel::MainViewHWnd()));
            }
            window_->setVisible(!window_->isVisible());
        }
        return nullptr;
    }

    Core::TEvent chainEvent_;
    Core::TEvent showEvent_;
    QPointer<AnchorWindow> window_;  ///< the main window may delete it first
    double answer_ = 0;              ///< stays valid until the next question
};

std::unique_ptr<Anchor> anchor;

}  // namespace

TARVIK_EXPORT Plugin::CPluginInfo* PluginInfo() {
    static Plugin::CPluginInfo info("TRV,1.1.4");
    info.name = "PlgAnchor";
    info.version = "1.0";
    return &info;
}

TARVIK_EXPORT bool CheckEnvironment() {
    return true;
}

TARVIK_EXPORT bool Load() {
    anchor = std::make_unique<Anchor>();
    return true;
}

TARVIK_EXPORT void InitPlugin() {}

TARVIK_EXPORT void SuiteLoaded() {}

TARVIK_EXPORT bool UnLoad() {
    anchor.reset();
    return true;
}
