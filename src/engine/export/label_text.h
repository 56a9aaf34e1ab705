// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

#include <vector>

class QPainter;
class QTextLayout;

namespace nubivane {

/// A text with a font for each of its parts.
///
/// A family may have a script upright alone, or in one weight: what it lacks in the slant or weight
/// asked for comes out as boxes, although the letters are there. Such parts are drawn in the next
/// plainer look that has them.
class LabelText {
  public:
    /// Line ends are those of any system.
    LabelText(const QString& text, const QFont& font);

    /// Pixels, at least one each way.
    QSize size() const;
    /// Draws it from the upper left corner of a rectangle of that size on, which does not cut it.
    void draw(QPainter& painter, const QRect& rect, const QColor& color, bool strikeOut) const;
    /// The letters for which no installed font has a form in any look, each once.
    QString withoutFont() const;

  private:
    struct Part {
        int start;
        int length;
        QFont font;
    };

    void choose();
    void take(int start, int length, const QFont& font);
    bool isPlain() const { return parts_.empty(); }
    QSizeF layOut(QTextLayout& layout, bool strikeOut) const;

    QString text_;
    QFont font_;
    std::vector<Part> parts_;  ///< those that need another font than the usual one
    QString missing_;
};

}  // namespace nubivane
