// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/editor_pane.h"

#include "windows/widgets/accessible_role.h"

#include <QFrame>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

// Pixels.
constexpr int SplitterWidth = 6;
constexpr int SmallestSplitterLeft = 130;
constexpr int SmallestPalette = 18;
constexpr int SmallestHeight = 24;
constexpr int PaletteGap = 10;

}  // namespace

EditorPane::EditorPane(ToolStrip& strip, Palette& palette, MapViewport& viewport,
                       DrawStrip& pctTlbDraw, FrameTabs& tabs)
    : strip_(strip),
      palette_(palette),
      viewport_(viewport),
      pctTlbDraw_(pctTlbDraw),
      tabs_(tabs),
      lineUp_(new QFrame(this)),
      pctSplitter_(new QWidget(this)) {
    for (QWidget* part :
         std::initializer_list<QWidget*>{&strip_, &palette_, &viewport_, &pctTlbDraw_, &tabs_}) {
        part->setParent(this);
    }
    lineUp_->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    pctSplitter_->setObjectName("pctSplitter");
    pctSplitter_->setAccessibleName(tr("Width of the symbol list"));
    setAccessibleRole(*pctSplitter_, QAccessible::Splitter);
    pctSplitter_->setCursor(Qt::SplitHCursor);
    pctSplitter_->setFocusPolicy(Qt::TabFocus);
    pctSplitter_->installEventFilter(this);
    connect(&strip_, &ToolStrip::heightChanged, this, &EditorPane::layoutMap);
}

void EditorPane::layoutMap() {
    if (inLayout_ || height() <= SmallestHeight) {
        return;
    }
    inLayout_ = true;
    for (QWidget* part :
         std::initializer_list<QWidget*>{&strip_, lineUp_, pctSplitter_, &pctTlbDraw_}) {
        part->setVisible(!folded_);
    }
    const int stripHeight = folded_ ? 0 : strip_.height();
    strip_.setGeometry(0, 0, width(), strip_.height());
    lineUp_->setGeometry(0, stripHeight, width(), 2);
    const int top = folded_ ? 0 : stripHeight + 4;
    int bottom = height();
    // At the bottom, so that the map does not move under the pointer when a tool is chosen.
    if (options_ && !options_->isHidden()) {
        bottom -= options_->sizeHint().height();
        options_->setGeometry(0, bottom, width(), options_->sizeHint().height());
    }

    const int splitter = folded_ ? -SplitterWidth : withinReach(splitterLeft_);
    const bool paletteFits = splitter > SmallestPalette;
    palette_.setVisible(paletteFits);
    if (paletteFits) {
        palette_.setGeometry(0, top, splitter - PaletteGap / 2, std::max(0, bottom - top - 2));
    }
    pctSplitter_->setGeometry(splitter, top, SplitterWidth, std::max(0, bottom - top));

    const int left = splitter + SplitterWidth;
    const int tabsHeight = tabs_.tabDay()->sizeHint().height() + 2;
    const int toolsWidth = folded_ ? 0 : pctTlbDraw_.sizeHint().width();
    const int mapWidth = std::max(0, width() - left - toolsWidth);
    viewport_.setGeometry(left, top, mapWidth, std::max(0, bottom - top - tabsHeight));
    pctTlbDraw_.setGeometry(left + mapWidth, top, toolsWidth, std::max(0, bottom - top));
    tabs_.setGeometry(left, std::max(0, bottom - tabsHeight), mapWidth, tabsHeight);
    viewport_.setScrollBars();
    inLayout_ = false;
}

void EditorPane::setOptions(QWidget& row) {
    options_ = &row;
    row.setParent(this);
}

void EditorPane::setSplitterLeft(int left) {
    splitterLeft_ = left;
    layoutMap();
}

void EditorPane::setFolded(bool folded) {
    if (std::exchange(folded_, folded) != folded) {
        layoutMap();
    }
}

/// Where a splitter can stand in a window of this width, whatever was stored in a wider one.
int EditorPane::withinReach(int left) const {
    return std::clamp(left, 0, std::max(SmallestSplitterLeft, width() / 2));
}

void EditorPane::dragSplitter(int x) {
    if (!inLayout_) {
        setSplitterLeft(
            std::max(SmallestSplitterLeft, withinReach(withinReach(splitterLeft_) + x)));
    }
}

bool EditorPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == pctSplitter_ && event->type() == QEvent::MouseMove) {
        const auto* move = static_cast<QMouseEvent*>(event);
        if (move->buttons() & Qt::LeftButton) {
            dragSplitter(move->position().toPoint().x());
        }
        return true;
    }
    if (watched == pctSplitter_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            dragSplitter(key == Qt::Key_Left ? -10 : 10);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void EditorPane::resizeEvent(QResizeEvent*) {
    layoutMap();
}

}  // namespace nubivane
