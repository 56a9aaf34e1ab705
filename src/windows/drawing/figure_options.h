// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/drawing/figure_choice.h"

#include <QFrame>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QSpinBox;
class QToolButton;

namespace nubivane {

class MapDrawing;

/// The row below the map with what can be chosen about a weather figure, and what ends its editing.
/// It is there while a weather tool is in hand, and has the fields that mean something for its kind
/// of figure.
class FigureOptions : public QFrame {
    Q_OBJECT

  public:
    FigureOptions(MapDrawing& drawing, QWidget* parent);

    /// What takes the keyboard, in order.
    QList<QWidget*> focusOrder() const;
    /// Gives the keyboard to the text, or to the first field that is there. False while the row is
    /// hidden.
    bool takeKeyboard();

  Q_SIGNALS:
    /// The row has come or gone.
    void shownChanged();

  private:
    template <class Field>
    Field* add(QHBoxLayout& row, const QString& label, const char* name, const QString& hint);
    void makeFields(QHBoxLayout& row);
    void makeButtons(QHBoxLayout& row);
    void connectFields();
    void refreshButtons();
    void refresh();
    void refreshKinds();
    void showFields();
    void show(QWidget* field, bool shown);
    void take();
    Tool tool() const;

    MapDrawing& drawing_;
    bool refreshing_ = false;
    Tool shownTool_ = Tool::cursor;  ///< whose kinds `cboKind_` has

    QComboBox* cboKind_ = nullptr;
    QLineEdit* txtText_ = nullptr;
    QSpinBox* spnRepeats_ = nullptr;
    QSpinBox* spnKnots_ = nullptr;
    QComboBox* cboStage_ = nullptr;
    QCheckBox* chkUpper_ = nullptr;
    QComboBox* cboFill_ = nullptr;
    QSpinBox* spnOpacity_ = nullptr;
    QCheckBox* chkFlipped_ = nullptr;
    QCheckBox* chkPenColor_ = nullptr;
    QToolButton* cmdEditAgain_ = nullptr;
    QToolButton* cmdDraw_ = nullptr;
    QToolButton* cmdDrop_ = nullptr;
    QList<QPair<QWidget*, QLabel*>> labels_;
};

}  // namespace nubivane
