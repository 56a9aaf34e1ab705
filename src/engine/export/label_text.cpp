// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/label_text.h"

#include <QFontMetrics>
#include <QGlyphRun>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QString withPlainLineEnds(QString text) {
    return text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
}

bool isAscii(const QString& text) {
    return std::all_of(text.cbegin(), text.cend(),
                       [](QChar letter) { return letter.unicode() < 0x80; });
}

/// Blanks, joiners, marks of direction and the like, which have no form of their own.
bool isSeen(const QString& cluster) {
    const QList<uint> letters = cluster.toUcs4();
    return std::any_of(letters.cbegin(), letters.cend(), [](uint letter) {
        const QChar::Category category = QChar::category(letter);
        return !QChar::isSpace(letter) && category != QChar::Other_Format &&
               category != QChar::Other_Control;
    });
}

/// Whether a font, with those that Qt asks where it lacks a letter, has a form for all of a text.
bool hasForms(const QString& text, const QFont& font) {
    static constexpr quint32 Missing = 0;
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::none_of(runs.cbegin(), runs.cend(),
                        [](const QGlyphRun& run) { return run.glyphIndexes().contains(Missing); });
}

/// The font and its plainer looks, the plainest last.
std::vector<QFont> looksOf(const QFont& font) {
    std::vector<QFont> looks{font};
    QFont upright = font;
    upright.setItalic(false);
    if (font.italic()) {
        looks.push_back(upright);
    }
    if (font.bold()) {
        upright.setBold(false);
        looks.push_back(upright);
    }
    return looks;
}

}  // namespace

LabelText::LabelText(const QString& text, const QFont& font)
    : text_(withPlainLineEnds(text)), font_(font) {
    // Every font for text has these, and most labels are figures.
    if (!isAscii(text_) && !hasForms(QString(text_).replace(u'\n', u' '), font_)) {
        choose();
    }
}

void LabelText::choose() {
    const std::vector<QFont> looks = looksOf(font_);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text_);
    bool usual = false;
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        const QString cluster = text_.mid(start, end - start);
        if (isSeen(cluster)) {
            const auto look = std::find_if(looks.cbegin(), looks.cend(), [&](const QFont& font) {
                return hasForms(cluster, font);
            });
            usual = usual || look == looks.cend() || look == looks.cbegin();
            if (look == looks.cend()) {
                missing_ += missing_.contains(cluster) ? QString() : cluster;
            } else if (look != looks.cbegin()) {
                take(static_cast<int>(start), static_cast<int>(cluster.size()), *look);
            }
        }
        start = end;
    }
    if (!usual && parts_.size() == 1) {
        font_ = parts_.front().font;
        parts_.clear();
    }
}

/// Parts with nothing but blanks between them stay together, so that letters join as they should.
void LabelText::take(int start, int length, const QFont& font) {
    if (!parts_.empty() && parts_.back().font == font) {
        Part& last = parts_.back();
        const int end = last.start + last.length;
        if (!isSeen(text_.mid(end, start - end))) {
            last.length = start + length - last.start;
            return;
        }
    }
    parts_.push_back({start, length, font});
}

QSize LabelText::size() const {
    if (isPlain()) {
        return QFontMetrics(font_).size(Qt::TextExpandTabs, text_).expandedTo({1, 1});
    }
    QTextLayout layout;
    const QSizeF size = layOut(layout, false);
    return QSize(static_cast<int>(std::ceil(size.width())),
                 static_cast<int>(std::ceil(size.height())))
        .expandedTo({1, 1});
}

void LabelText::draw(QPainter& painter, const QRect& rect, const QColor& color,
                     bool strikeOut) const {
    painter.setPen(color);
    if (isPlain()) {
        QFont font = font_;
        font.setStrikeOut(strikeOut);
        painter.setFont(font);
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignTop | Qt::TextExpandTabs | Qt::TextDontClip,
                         text_);
        return;
    }
    QTextLayout layout;
    layOut(layout, strikeOut);
    layout.draw(&painter, rect.topLeft());
}

/// Lines below each other, each from the left as those of one font are; returns what they take.
QSizeF LabelText::layOut(QTextLayout& layout, bool strikeOut) const {
    constexpr qreal AnyWidth = 1 << 24;
    const auto withStrike = [strikeOut](QFont font) {
        font.setStrikeOut(strikeOut);
        return font;
    };
    layout.setFont(withStrike(font_));
    layout.setText(QString(text_).replace(u'\n', QChar(QChar::LineSeparator)));
    QList<QTextLayout::FormatRange> formats;
    for (const Part& part : parts_) {
        QTextCharFormat format;
        format.setFont(withStrike(part.font));
        formats.append({part.start, part.length, format});
    }
    layout.setFormats(formats);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    QSizeF size;
    const qreal leading = QFontMetricsF(font_).leading();
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(AnyWidth);
        size.rheight() += line.lineNumber() == 0 ? 0 : leading;
        line.setPosition({0, size.height()});
        size.rheight() += line.height();
        size.setWidth(std::max(size.width(), line.naturalTextWidth()));
    }
    layout.endLayout();
    return size;
}

QString LabelText::withoutFont() const {
    return missing_;
}

}  // namespace nubivane
