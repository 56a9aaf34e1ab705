// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/path_label.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace nubivane {

namespace {

constexpr int WidthInCharacters = 56;

}  // namespace

PathLabel::PathLabel(int lines, QWidget* parent) : QLabel(parent), lines_(lines) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize PathLabel::sizeHint() const {
    return {WidthInCharacters * fontMetrics().averageCharWidth(),
            lines_ * fontMetrics().lineSpacing()};
}

QTextOption PathLabel::wrapping() {
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

bool PathLabel::fits(const QString& text) const {
    QTextLayout layout(text, font(), this);
    layout.setTextOption(wrapping());
    layout.beginLayout();
    int count = 0;
    for (QTextLine line = layout.createLine(); line.isValid() && count <= lines_; ++count) {
        line.setLineWidth(contentsRect().width());
        line = layout.createLine();
    }
    layout.endLayout();
    return count <= lines_;
}

QString PathLabel::shownText() const {
    const int width = contentsRect().width();
    const int step = std::max(1, width / 16);
    QString shown = text();
    // Where the lines break depends on the words, so the room that is lost there is tried out.
    for (int room = lines_ * width; room > step && !fits(shown); room -= step) {
        shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, room);
    }
    return shown;
}

void PathLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(QRectF(contentsRect()), shownText(), wrapping());
}

}  // namespace nubivane
