// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/collections/frm_symbol_selection.h"

#include "engine/core/shell.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane {

using namespace Qt::StringLiterals;

frmSymbolSelection::frmSymbolSelection(Workspace& workspace, AnimationCache& animations,
                                       Shell& shell, QWidget* parent)
    : QDialog(parent),
      shell_(shell),
      pane_(new CollectionPane(workspace, animations, shell, CollectionPane::Boxes::None, this)) {
    setObjectName("frmSymbolSelection");
    setWindowTitle(tr("Load a symbol"));
    auto* buttons = new QDialogButtonBox(this);
    auto* cmdOK = buttons->addButton(QDialogButtonBox::Ok);
    auto* cmdClose = buttons->addButton(QDialogButtonBox::Close);
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    cmdClose->setObjectName("cmdClose");
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdClose, &QPushButton::clicked, this, [this] {
        FileName_ = QString();
        QDialog::reject();
    });
    auto* column = new QVBoxLayout(this);
    column->addWidget(pane_, 1);
    column->addWidget(buttons);

    connect(pane_->listImageSymbols(), &ListImage::fileActivated, this,
            &frmSymbolSelection::accept);
    pane_->fillCollectionList();
    pane_->listImageSymbols()->setFocus();
    resize(sizeHint().expandedTo({100 * fontMetrics().averageCharWidth(), 0}));
}

void frmSymbolSelection::accept() {
    if (pane_->selectedFile().isEmpty()) {
        shell_.messageBox(
            {tr("Select a symbol from the list"), Icon::Exclamation, Buttons::Ok, {}});
        return;
    }
    FileName_ = pane_->selectedFile();
    QDialog::accept();
}

}  // namespace nubivane
