// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/map_viewport.h"
#include "windows/main/draw_strip.h"
#include "windows/main/tool_strip.h"
#include "windows/panes/frame_tabs.h"
#include "windows/panes/palette.h"

#include <QWidget>

#include <functional>

namespace nubivane {

/// Everything between menu bar and status bar: the strip of tool bars, the palette, the splitter,
/// the map on its ground, the drawing tools, the Frame tabs. `layoutMap` gives each its place.
class EditorPane : public QWidget {
    Q_OBJECT

  public:
    EditorPane(ToolStrip& strip, Palette& palette, MapViewport& viewport, DrawStrip& pctTlbDraw,
               FrameTabs& tabs);

    void layoutMap();
    /// A row across the window, below all else, while it is not hidden.
    void setOptions(QWidget& row);

    QWidget* splitter() const { return pctSplitter_; }
    /// `pctSplitter.Left`, pixels.
    int splitterLeft() const { return splitterLeft_; }
    void setSplitterLeft(int left);

    /// Folds everything away but the map and the tabs of Frames, or brings it back.
    void setFolded(bool folded);
    bool isFolded() const { return folded_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    int withinReach(int left) const;
    void dragSplitter(int x);

    ToolStrip& strip_;
    Palette& palette_;
    MapViewport& viewport_;
    DrawStrip& pctTlbDraw_;
    FrameTabs& tabs_;
    QWidget* options_ = nullptr;
    QFrame* lineUp_;
    QWidget* pctSplitter_;
    int splitterLeft_ = 360;
    bool inLayout_ = false;
    bool folded_ = false;
};

}  // namespace nubivane
