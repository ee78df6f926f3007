// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTextBrowser>
#include <QTextCursor>
#include <vector>

namespace Tarvik::Client {

/// The words of a search: what stands between blanks.
QStringList SearchWords(const QString& text);
/// The plain text of a page.
QString PlainText(const QString& markdown);
/// How often the words stand in a text, upper and lower case alike; 0 unless each of them does.
int CountHits(const QString& text, const QStringList& words);

/// A page of the guide, in the colours of the theme, with the hits of a search marked.
class GuideView final : public QTextBrowser {
    Q_OBJECT

  public:
    explicit GuideView(QWidget* parent);

    /// Shows a page from its start; its pictures are named from `folder` on.
    void ShowPage(const QString& markdown, const QString& folder);
    /// Shows the heading before which `number` others stand.
    void ShowHeading(std::size_t number);
    /// Marks where the words stand; no hit is the one that is looked at then.
    void MarkWords(const QStringList& words);
    std::size_t Hits() const { return hits_.size(); }
    /// Looks at a hit, counted from 0: it is in sight and stands out from the others.
    void ShowHit(std::size_t number);

    /// Pictures no wider than the page.
    QVariant loadResource(int type, const QUrl& name) override;

  private:
    void LayTables();
    void SpaceBlocks();
    void ShowMarks(std::size_t current);

    QString folder_;
    std::vector<QTextCursor> hits_;
};

}  // namespace Tarvik::Client
