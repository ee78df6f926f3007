// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <array>
#include <functional>

class QLabel;
class QPushButton;

namespace Tarvik::Client {

/// How a person begins.
enum class FirstChoice { Sample, Empty, Connect };

/// A quiet card in the middle of the chart with the ways to begin. It takes neither the keyboard nor the
/// chart's place: who presses nothing works on beside it.
class FirstStartCard final : public QFrame {
    Q_OBJECT

  public:
    /// Gives the client's text of a key.
    using Words = std::function<QString(const char* key)>;

    explicit FirstStartCard(QWidget* chart);
    /// Texts in the language in force.
    void ApplyTexts(const Words& words);

  signals:
    void Chosen(Tarvik::Client::FirstChoice choice);

  protected:
    /// Keeps to the middle of the chart.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// A way to begin: its button and what it does.
    struct Way {
        QPushButton* button = nullptr;
        QLabel* note = nullptr;
    };

    void Place();

    QLabel* title_;
    std::array<Way, 3> ways_;
    QLabel* hint_;
};

}  // namespace Tarvik::Client
