// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>

namespace nubivane {

class Shell;

/// The window of "Copy special...". What it was left with by OK stands in `CopyInfo`.
class frmUtility : public QDialog {
    Q_OBJECT

  public:
    frmUtility(const Workspace& workspace, Shell& shell, QString& CopyInfo, QWidget* parent);

    void accept() override;

  private:
    void buildLayout();
    /// Says what is missing and leads to the list that lacks it.
    void refuse(const QString& text, QComboBox* list);

    Shell& shell_;
    QString& CopyInfo_;
    QComboBox* cboSourceMap_;
    QComboBox* cboDestMap_;
    QCheckBox* chkOverwrite_;
};

}  // namespace nubivane
