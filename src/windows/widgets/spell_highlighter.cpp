// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/spell_highlighter.h"

#include "engine/spelling/spelling.h"

namespace nubivane {

SpellHighlighter::SpellHighlighter(QTextDocument& document, Spelling& spelling)
    : QSyntaxHighlighter(&document), spelling_(spelling) {}

void SpellHighlighter::highlightBlock(const QString& text) {
    QTextCharFormat wave;
    wave.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    wave.setUnderlineColor(Qt::red);
    for (const WordPlace& word : spelling_.misspelt(text)) {
        setFormat(static_cast<int>(word.start), static_cast<int>(word.length), wave);
    }
}

}  // namespace nubivane
