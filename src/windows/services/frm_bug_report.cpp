// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/services/frm_bug_report.h"

#include "windows/widgets/combo_ex.h"
#include "windows/widgets/named_label.h"
#include "windows/widgets/prompt_edit.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane {

namespace {

constexpr int BoxCharacters = 60;
constexpr int BoxLines = 5;

PromptEdit* makeBox(const char* name, QWidget* parent) {
    auto* box = new PromptEdit(BugReportPlaceholder, parent);
    box->setObjectName(name);
    box->setMinimumSize(BoxCharacters * box->fontMetrics().averageCharWidth(),
                        BoxLines * box->fontMetrics().lineSpacing());
    return box;
}

}  // namespace

frmBugReport::frmBugReport(const ProgramFolder& folder, const FtpServer& server, Shell& shell,
                           QWidget* parent, FtpOptions options)
    : QDialog(parent),
      folder_(folder),
      server_(server),
      shell_(shell),
      ftpTransfer_(std::move(options)),
      cboWindows_(new comboEx(this)),
      txtErrorMessage_(makeBox("txtErrorMessage", this)),
      txtCircumstances_(makeBox("txtCircumstances", this)),
      cmdSend_(new QPushButton(tr("&Send"), this)),
      cmdCancel_(new QPushButton(tr("Cancel"), this)) {
    setObjectName("frmBugReport");
    setWindowTitle(tr("Report a bug"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(makeForm(), 1);
    column->addLayout(makeButtons());
    for (PromptEdit* box : {txtErrorMessage_, txtCircumstances_}) {
        box->setQuietNeighbours({cmdSend_, cmdCancel_});
    }
    cboWindows_->setFocus();
}

QLayout* frmBugReport::makeForm() {
    cboWindows_->setObjectName("cboWindows");
    cboWindows_->addItems(bugReportSystems());
    auto* column = new QVBoxLayout;
    column->addWidget(makeLabel("lblWindows", tr("&Windows operative system:"), cboWindows_));
    column->addWidget(cboWindows_, 0, Qt::AlignLeft);
    column->addWidget(
        makeLabel("lblErrorMessage", tr("Complete message &error text:"), txtErrorMessage_));
    column->addWidget(txtErrorMessage_, 1);
    column->addWidget(makeLabel(
        "lblCircumstances", tr("&Circumstances in which the error occurred:"), txtCircumstances_));
    column->addWidget(txtCircumstances_, 1);
    return column;
}

QLayout* frmBugReport::makeButtons() {
    cmdSend_->setObjectName("cmdSend");
    cmdSend_->setDefault(true);
    connect(cmdSend_, &QPushButton::clicked, this, &frmBugReport::cmdSend_Click);
    cmdCancel_->setObjectName("cmdCancel");
    connect(cmdCancel_, &QPushButton::clicked, this, &frmBugReport::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdSend_);
    row->addWidget(cmdCancel_);
    return row;
}

BugReport frmBugReport::report() const {
    return {cboWindows_->currentText(), txtErrorMessage_->toPlainText(),
            txtCircumstances_->toPlainText()};
}

QWidget* frmBugReport::widgetOf(BugReportField field) const {
    switch (field) {
        case BugReportField::System:
            return cboWindows_;
        case BugReportField::ErrorMessage:
            return txtErrorMessage_;
        case BugReportField::Circumstances:
            break;
    }
    return txtCircumstances_;
}

/// Cancel alone stays at hand: the server may let the window wait.
void frmBugReport::setSending(bool sending) {
    sending_ = sending;
    cmdCancel_->setFocus();
    for (QWidget* part : std::initializer_list<QWidget*>{cboWindows_, txtErrorMessage_,
                                                         txtCircumstances_, cmdSend_}) {
        part->setEnabled(!sending);
    }
}

void frmBugReport::cmdSend_Click() {
    const BugReport facts = report();
    if (const auto complaint = checkBugReport(facts)) {
        shell_.messageBox({complaint->text, Icon::Exclamation, Buttons::Ok, {}});
        widgetOf(complaint->field)->setFocus();
        return;
    }
    shell_.setPointer(Pointer::Hourglass);
    setSending(true);
    const bool sent = sendBugReport(facts, folder_, server_, ftpTransfer_);
    setSending(false);
    accept();
    shell_.processEvents();
    shell_.setPointer(Pointer::Default);
    if (sent || !givenUp_) {
        shell_.messageBox(bugReportOutcome(sent));
    }
}

void frmBugReport::reject() {
    if (!sending_) {
        QDialog::reject();
        return;
    }
    givenUp_ = true;
    ftpTransfer_.AbortTransfer();
}

}  // namespace nubivane
