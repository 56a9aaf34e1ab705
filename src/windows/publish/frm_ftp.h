// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/ftp_settings.h"

#include <QDialog>

#include <array>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

namespace nubivane {

class SettingsStore;
class Shell;

/// "Ftp settings": the server, the folders on it, and the groups of files that an upload sends.
class frmFtp : public QDialog {
    Q_OBJECT

  public:
    frmFtp(SettingsStore& store, Shell& shell, QWidget* parent);

    /// Shows the settings at a tab and waits until the dialog is closed.
    void Init(FtpTab tab);

  Q_SIGNALS:
    void helpAsked(const QString& topic);

  private:
    QWidget* makeServerFrame();
    QBoxLayout* makeLogins();
    QBoxLayout* makeEncryption();
    QWidget* makeFolderFrame();
    QWidget* makeUploadList();
    QBoxLayout* makeButtons();
    QPushButton* makeButton(const char* name, const QString& caption, void (frmFtp::*click)());
    QLineEdit* makeTextBox(const char* name);
    void watchChanges();

    void load();
    FtpSettings values() const;
    bool save();
    void goTo(FtpField field);
    void enterTab();
    void enableLogin();
    void showLock();

    void cmdOK_Click();
    void cmdApply_Click();
    void cmdHelp_Click();

    SettingsStore& store_;
    Shell& shell_;
    QTabWidget* tabFtp_;
    QLineEdit* txtUrl_;
    QLineEdit* txtPort_;
    QComboBox* cboEncryption_;  ///< its data are the numbers of `Encryption`
    QLabel* imgLock_;
    QLabel* lblInClear_;
    QButtonGroup* optLogin_;  ///< by the numbers of `FtpLogin`
    QLabel* lblUserName_;
    QLineEdit* txtUserName_;
    QLabel* lblPassword_;
    QLineEdit* txtPassword_;
    QLineEdit* txtRemoteDir_;
    QLineEdit* txtnVaneDir_;
    std::array<QCheckBox*, 3> chkUpload_;  ///< symbols, maps, page
    QPushButton* cmdApply_;
};

}  // namespace nubivane
