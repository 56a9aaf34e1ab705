// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/status.h"
#include "windows/drawing/swatch_button.h"

#include <QButtonGroup>
#include <QFrame>
#include <QLineEdit>
#include <QToolButton>

#include <optional>

namespace nubivane {

class Commands;
class MapDrawing;
class ScrSpn;

/// `pctTlbDraw`: the strip beside the map with the tools, the pen's width and colour, and the
/// button that clears the map.
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

  Q_SIGNALS:
    /// How the tool in hand is used; empty for the cursor.
    void toolShown(const QString& use);

  private:
    QWidget* makeTools();
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
    std::optional<Tool> shownTool_;  ///< whose use has been told
};

}  // namespace nubivane
