#include "editor/editor_pane.h"

#include <QFrame>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

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
    pctSplitter_->setCursor(Qt::SplitHCursor);
    pctSplitter_->setFocusPolicy(Qt::TabFocus);
    pctSplitter_->installEventFilter(this);
    strip_.heightChanged = [this] { layoutMap(); };
}

void EditorPane::layoutMap() {
    if (inLayout_ || height() <= SmallestHeight) {
        return;
    }
    inLayout_ = true;
    strip_.setGeometry(0, 0, width(), strip_.height());
    lineUp_->setGeometry(0, strip_.height(), width(), 2);
    const int top = strip_.height() + 4;
    const int bottom = height();

    const bool paletteFits = splitterLeft_ > SmallestPalette;
    palette_.setVisible(paletteFits);
    if (paletteFits) {
        palette_.setGeometry(0, top, splitterLeft_ - PaletteGap / 2, std::max(0, bottom - top - 2));
    }
    pctSplitter_->setGeometry(splitterLeft_, top, SplitterWidth, std::max(0, bottom - top));

    const int left = splitterLeft_ + SplitterWidth;
    const int tabsHeight = tabs_.tabDay()->sizeHint().height() + 2;
    const int toolsWidth = pctTlbDraw_.sizeHint().width();
    const int mapWidth = std::max(0, width() - left - toolsWidth);
    viewport_.setGeometry(left, top, mapWidth, std::max(0, bottom - top - tabsHeight));
    pctTlbDraw_.setGeometry(left + mapWidth, top, toolsWidth, std::max(0, bottom - top));
    tabs_.setGeometry(left, std::max(0, bottom - tabsHeight), mapWidth, tabsHeight);
    viewport_.setScrollBars();
    inLayout_ = false;
}

void EditorPane::setSplitterLeft(int left) {
    splitterLeft_ = left;
    layoutMap();
}

void EditorPane::dragSplitter(int x) {
    if (!inLayout_) {
        setSplitterLeft(std::clamp(splitterLeft_ + x, SmallestSplitterLeft,
                                   std::max(SmallestSplitterLeft, width() / 2)));
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
