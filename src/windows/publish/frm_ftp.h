// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/ftp_settings.h"
#include "engine/upload/protocol.h"

#include <QDialog>

class QBoxLayout;
class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

namespace nubivane {

class SettingsStore;
class Shell;
class UploadList;
class Workspace;
struct StoredPassword;

/// "Ftp settings": the server, the folders on it, and the groups of files that an upload sends.
class frmFtp : public QDialog {
    Q_OBJECT

  public:
    frmFtp(Workspace& workspace, Shell& shell, QWidget* parent);

    /// Shows the settings at a tab and waits until the dialog is closed.
    void Init(FtpTab tab);

  Q_SIGNALS:
    void helpAsked(const QString& topic);

  private:
    QWidget* makeServerFrame();
    QBoxLayout* makeLogins();
    QBoxLayout* makeEncryption();
    void makeProtocols();
    QWidget* makeFolderFrame();
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
    void showPlaceOf(const StoredPassword& password);
    Protocol protocol() const;
    void chooseProtocol(Protocol protocol);
    void changeProtocol();
    void takeTypedApart();

    void cmdOK_Click();
    void cmdApply_Click();
    void cmdHelp_Click();

    SettingsStore& store_;
    Shell& shell_;
    QTabWidget* tabFtp_;
    UploadList* uploadList_;
    QComboBox* cboProtocol_;               ///< its data are the numbers of `Protocol`
    Protocol lastServer_ = Protocol::Ftp;  ///< the last one chosen that has a port
    QLabel* lblUrl_;
    QLineEdit* txtUrl_;
    QLabel* lblPort_;
    QLineEdit* txtPort_;
    QLabel* lblEncryption_;
    QComboBox* cboEncryption_;  ///< its data are the numbers of `Encryption`
    QLabel* imgLock_;
    QLabel* lblInClear_;
    QButtonGroup* optLogin_;  ///< by the numbers of `FtpLogin`
    QLabel* lblUserName_;
    QLineEdit* txtUserName_;
    QLabel* lblPassword_;
    QLineEdit* txtPassword_;
    QLabel* lblPasswordPlace_;
    QLineEdit* txtRemoteDir_;
    QLineEdit* txtnVaneDir_;
    QPushButton* cmdApply_;
};

}  // namespace nubivane
