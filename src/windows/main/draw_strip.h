// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/swatch_button.h"
#include "windows/drawing/tool_table.h"

#include <QButtonGroup>
#include <QFrame>
#include <QLineEdit>
#include <QToolButton>

namespace nubivane {

class Commands;
class MapDrawing;
class ScrSpn;

/// `pctTlbDraw`: the strip beside the map with the tools, the pen's width and colour, and the
/// button that clears the map. Below it are the tools for the figures of weather maps, a button
/// for each group, with a fly-out of its kinds.
class DrawStrip : public QFrame {
    Q_OBJECT

  public:
    DrawStrip(MapDrawing& drawing, const Commands& commands, QWidget* parent);

    /// What takes the keyboard, in order. Of the tools only the one that is down does; the arrow
    /// keys lead to the others.
    QList<QWidget*> focusOrder() const;

    QToolButton* btnDraw(int index) const;
    QLineEdit* txtValue() const { return txtValue_; }
    ScrSpn* scrspn1() const { return scrspn1_; }
    SwatchButton* pctSelectedColor() const { return pctSelectedColor_; }
    QToolButton* btnClear() const { return btnClear_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* makeTools(bool weather);
    void connectTools();
    QToolButton* makeToolButton(const ToolRow& row, QWidget* box);
    void makeFlyOut(const ToolRow& row, QToolButton& button);
    void refreshGroups();
    void offerWidth(Tool tool);
    QWidget* makeWidthField();
    void makeSwatch();
    void makeClearButton(const Commands& commands);
    void refresh();
    void refreshWidth();

    MapDrawing& drawing_;
    QButtonGroup* tools_;
    QLineEdit* txtValue_;
    ScrSpn* scrspn1_;
    SwatchButton* pctSelectedColor_;
    QToolButton* btnClear_;
    QString offeredWidth_;  ///< as it stood in the field before anybody asked for another
};

}  // namespace nubivane
