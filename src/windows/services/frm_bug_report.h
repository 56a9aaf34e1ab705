// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_transfer.h"
#include "engine/services/bug_report.h"

#include <QDialog>

class QComboBox;
class QPushButton;

namespace nubivane {

class PromptEdit;

/// "Report a bug": three facts from the user, sent to the publisher.
class frmBugReport : public QDialog {
    Q_OBJECT

  public:
    frmBugReport(const ProgramFolder& folder, const FtpServer& server, Shell& shell,
                 QWidget* parent, FtpOptions options = {});

    /// While a report is on its way this gives it up.
    void reject() override;

  private:
    QLayout* makeForm();
    QLayout* makeButtons();
    BugReport report() const;
    QWidget* widgetOf(BugReportField field) const;
    void setSending(bool sending);
    void cmdSend_Click();

    const ProgramFolder& folder_;
    const FtpServer server_;
    Shell& shell_;
    ftpTransfer ftpTransfer_;
    QComboBox* cboWindows_;
    PromptEdit* txtErrorMessage_;
    PromptEdit* txtCircumstances_;
    QPushButton* cmdSend_;
    QPushButton* cmdCancel_;
    bool sending_ = false;
    bool givenUp_ = false;
};

}  // namespace nubivane
