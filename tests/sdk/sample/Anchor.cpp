// SPDX-License-Identifier: MIT
// How much chain a ship at anchor should veer: a service for other plug-ins and a panel for a person.
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <memory>

#include <tarvik/bus/Binding.h>
#include <tarvik/bus/HostContract.h>
#include <tarvik/core/Exports.h>
#include <tarvik/core/TrvKernel.h>
#include <tarvik/skin/ToolWindow.h>

namespace {

using namespace Tarvik;

/// The panel's number in the event that opens panels; 3, 21 and 22 are taken.
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

/// What the plug-in offers while it is loaded; each binding ends with its member.
class Anchor : public Core::TObject {
  public:
    ~Anchor() override { delete window_; }

  private:
    const double* OnChain(const double& depth) {
        answer_ = ChainFor(depth);
        return &answer_;
    }
    void OnShow(const Interface::PanelShow& show) {
        if (show.panel != kAnchorPanel) {
            return;
        }
        if (!window_) {
            window_ = new AnchorWindow(static_cast<QWidget*>(Core::TrvKernel::MainViewHWnd()));
        }
        window_->setVisible(!window_->isVisible());
    }

    QPointer<AnchorWindow> window_;  ///< the main window may delete it first
    double answer_ = 0;              ///< stays valid until the next question
    Interface::Binding chain_ = Interface::Offer(kChain, this, &Anchor::OnChain);
    Interface::Binding show_ = Interface::Subscribe(Interface::Bus::ShowPanel, this, &Anchor::OnShow);
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
