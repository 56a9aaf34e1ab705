// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/frm_utility.h"

#include "engine/core/shell.h"
#include "windows/widgets/at_once.h"
#include "windows/widgets/combo_ex.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane {

using namespace Qt::StringLiterals;

frmUtility::frmUtility(const Workspace& workspace, Shell& shell, QString& CopyInfo, QWidget* parent)
    : QDialog(parent),
      shell_(shell),
      CopyInfo_(CopyInfo),
      cboSourceMap_(new comboEx(this)),
      cboDestMap_(new comboEx(this)),
      chkOverwrite_(new QCheckBox(tr("C&ut symbols and labels from source map"), this)) {
    setObjectName("frmUtility");
    setWindowTitle(tr("Copy special"));
    const HourglassGuard hourglass(shell_);
    CopyInfo_.clear();
    cboSourceMap_->setObjectName("cboSourceMap");
    cboDestMap_->setObjectName("cboDestMap");
    chkOverwrite_->setObjectName("chkOverwrite");
    for (QComboBox* list : {cboSourceMap_, cboDestMap_}) {
        for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
            list->addItem(workspace.Frames().Item(i).Texts().Label, i);
        }
    }
    cboSourceMap_->setCurrentIndex(0);
    cboDestMap_->setCurrentIndex(cboDestMap_->count() > 1 ? 1 : 0);
    buildLayout();
}

void frmUtility::buildLayout() {
    auto* box = new QGroupBox(tr("Copy all symbols and labels"), this);
    auto* form = new QFormLayout(box);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&from map"), cboSourceMap_);
    form->addRow(tr("&to map"), cboDestMap_);
    form->addRow(chkOverwrite_);
    constexpr int FewestLetters = 24;  // of a Frame's name, before it is cut with an ellipsis
    for (QComboBox* list : {cboSourceMap_, cboDestMap_}) {
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        list->setMinimumContentsLength(FewestLetters);
    }

    auto* buttons = new QDialogButtonBox(this);
    auto* cmdOK = buttons->addButton(QDialogButtonBox::Ok);
    auto* cmdCancel = buttons->addButton(QDialogButtonBox::Cancel);
    cmdOK->setObjectName("cmdOk");
    cmdOK->setDefault(true);
    cmdCancel->setObjectName("cmdCancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(box);
    column->addStretch();
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    answerKeysAtOnce(*this);
}

void frmUtility::refuse(const QString& text, QComboBox* list) {
    shell_.messageBox({text, Icon::Exclamation, Buttons::Ok, {}});
    list->setFocus();
}

void frmUtility::accept() {
    if (cboSourceMap_->currentIndex() < 0) {
        refuse(tr("Select the source map."), cboSourceMap_);
    } else if (cboDestMap_->currentIndex() < 0) {
        refuse(tr("Select the destination map."), cboDestMap_);
    } else if (cboSourceMap_->currentIndex() == cboDestMap_->currentIndex()) {
        refuse(tr("Source and destination map cannot be the same."), cboDestMap_);
    } else {
        CopyInfo_ = cboSourceMap_->currentData().toString() + u'|' +
                    cboDestMap_->currentData().toString() + u'|' +
                    (chkOverwrite_->isChecked() ? u'1' : u'0');
        QDialog::accept();
    }
}

}  // namespace nubivane
