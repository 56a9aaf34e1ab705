// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSyntaxHighlighter>

namespace nubivane {

class Spelling;

/// Draws a red wave under each misspelt word of a document.
class SpellHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

  public:
    /// Belongs to the document.
    SpellHighlighter(QTextDocument& document, Spelling& spelling);

  protected:
    void highlightBlock(const QString& text) override;

  private:
    Spelling& spelling_;
};

}  // namespace nubivane
