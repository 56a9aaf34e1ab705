// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "windows/properties/symbol_chooser.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace nubivane {

/// The window that replaces a text, a symbol or a font in all Frames. It stays open, tells in how
/// many places it has done so, and each time is one edit.
class frmReplace : public QDialog {
    Q_OBJECT

  public:
    /// `chooser` lets the person choose the picture that comes in.
    frmReplace(Workspace& workspace, SymbolChooser chooser, QWidget* parent);

  private:
    QWidget* makeTextPage();
    QWidget* makePicturePage();
    QWidget* makeFontPage();
    void choosePicture();
    void fill();
    void replace();
    void refresh();

    Workspace& workspace_;
    SymbolChooser chooser_;
    QString picture_;  ///< that comes in; full path
    QTabWidget* pages_;
    QLineEdit* txtFind_;
    QLineEdit* txtReplacement_;
    QCheckBox* chkLetters_;
    QComboBox* cboPicture_;
    QPushButton* cmdPicture_;
    QComboBox* cboFont_;
    QFontComboBox* cboNewFont_;
    QLabel* lblResult_;
    QPushButton* cmdReplace_;
};

}  // namespace nubivane
