// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/frm_ftp.h"

#include "engine/core/shell.h"
#include "windows/widgets/at_once.h"
#include "windows/widgets/combo_ex.h"
#include "windows/widgets/icons.h"
#include "windows/widgets/one_line.h"
#include "windows/widgets/select_on_focus.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include <array>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int TextBoxCharacters = 40;
constexpr int PortCharacters = 8;
constexpr int FieldGap = 8;
constexpr int LockSize = 16;

// Numbers of the check boxes.
constexpr std::size_t Symbols = 0;
constexpr std::size_t Maps = 1;
constexpr std::size_t HtmlPage = 2;

QLabel* makeLabel(const char* name, const QString& caption, QWidget* buddy = nullptr) {
    auto* label = new QLabel(caption);
    label->setObjectName(name);
    label->setBuddy(buddy);
    return label;
}

QWidget* makeFrame(const char* name) {
    auto* frame = new QWidget;
    frame->setObjectName(name);
    return frame;
}

}  // namespace

frmFtp::frmFtp(SettingsStore& store, Shell& shell, QWidget* parent)
    : QDialog(parent), store_(store), shell_(shell), tabFtp_(new QTabWidget) {
    setObjectName("frmFtp");
    setWindowTitle(tr("Ftp settings"));
    tabFtp_->setObjectName("tabFtp");
    tabFtp_->setAccessibleName(windowTitle());
    tabFtp_->addTab(makeServerFrame(), tr("&Server"));
    tabFtp_->addTab(makeFolderFrame(), tr("&Folders"));
    tabFtp_->addTab(makeUploadList(), tr("&Upload list"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(tabFtp_, 1);
    column->addLayout(makeButtons());
    watchChanges();
    answerKeysAtOnce(*this);
}

void frmFtp::Init(FtpTab tab) {
    load();
    tabFtp_->setCurrentIndex(static_cast<int>(tab) - 1);
    enterTab();
    exec();
}

QWidget* frmFtp::makeServerFrame() {
    QWidget* frame = makeFrame("fraFtpServer");
    txtUrl_ = makeTextBox("txtUrl");
    txtPort_ = makeTextBox("txtPort");
    txtPort_->setMinimumWidth(0);
    txtPort_->setFixedWidth(fontMetrics().averageCharWidth() * PortCharacters);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(makeLabel("lblUrl", tr("Ftp host &address:"), txtUrl_), 0, 0);
    grid->addWidget(txtUrl_, 0, 1);
    grid->addWidget(makeLabel("lblPort", tr("&Port:"), txtPort_), 1, 0);
    grid->addWidget(txtPort_, 1, 1, Qt::AlignLeft);
    auto* encryption = makeEncryption();
    grid->addWidget(makeLabel("lblEncryption", tr("&Encryption:"), cboEncryption_), 2, 0);
    grid->addLayout(encryption, 2, 1);
    grid->addLayout(makeLogins(), 3, 1);
    txtUserName_ = makeTextBox("txtUserName");
    txtPassword_ = makeTextBox("txtPassword");
    txtPassword_->setEchoMode(QLineEdit::Password);
    lblUserName_ = makeLabel("lblUserName", tr("User&name:"), txtUserName_);
    lblPassword_ = makeLabel("lblPassword", tr("Pass&word:"), txtPassword_);
    grid->addWidget(lblUserName_, 4, 0);
    grid->addWidget(txtUserName_, 4, 1);
    grid->addWidget(lblPassword_, 5, 0);
    grid->addWidget(txtPassword_, 5, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(6, 1);
    return frame;
}

QBoxLayout* frmFtp::makeEncryption() {
    cboEncryption_ = new comboEx;
    cboEncryption_->setObjectName("cboEncryption");
    for (const auto& [encryption, caption] : {std::pair(Encryption::Required, tr("Required")),
                                              std::pair(Encryption::Offered, tr("When offered")),
                                              std::pair(Encryption::None, tr("None"))}) {
        cboEncryption_->addItem(caption, static_cast<int>(encryption));
    }
    imgLock_ = new QLabel;
    imgLock_->setObjectName("imgLock");
    imgLock_->setPixmap(programIcon(u"unlock"_s).pixmap(LockSize));
    lblInClear_ = makeLabel("lblInClear", tr("the password travels in clear"));
    auto* row = new QHBoxLayout;
    row->addWidget(cboEncryption_);
    row->addWidget(imgLock_);
    row->addWidget(lblInClear_);
    row->addStretch();
    return row;
}

/// Where the server may refuse to encrypt, the password may travel in clear.
void frmFtp::showLock() {
    const bool open =
        cboEncryption_->currentData().toInt() != static_cast<int>(Encryption::Required);
    imgLock_->setVisible(open);
    lblInClear_->setVisible(open);
}

QBoxLayout* frmFtp::makeLogins() {
    optLogin_ = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    for (const auto& [login, caption] : {std::pair(FtpLogin::Normal, tr("Nor&mal")),
                                         std::pair(FtpLogin::Anonymous, tr("Anon&ymous"))}) {
        const int number = static_cast<int>(login);
        auto* button = new QRadioButton(caption);
        button->setObjectName(u"optLogin"_s + QString::number(number));
        // The Tab key stops at the checked button alone; arrows go on to the other.
        button->setFocusPolicy(Qt::ClickFocus);
        connect(button, &QRadioButton::toggled, button, [button](bool checked) {
            button->setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus);
        });
        optLogin_->addButton(button, number);
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

QWidget* frmFtp::makeFolderFrame() {
    QWidget* frame = makeFrame("fraFtpFolder");
    txtRemoteDir_ = makeTextBox("txtRemoteDir");
    txtnVaneDir_ = makeTextBox("txtnVaneDir");
    auto* column = new QVBoxLayout(frame);
    column->addWidget(makeLabel("lblRemoteDir", tr("&When connected switch to the remote folder:"),
                                txtRemoteDir_));
    column->addWidget(txtRemoteDir_);
    column->addSpacing(FieldGap);
    column->addWidget(makeLabel("lblnVaneDir", tr("&Nubivane folder:"), txtnVaneDir_));
    column->addWidget(txtnVaneDir_);
    column->addStretch();
    return frame;
}

QWidget* frmFtp::makeUploadList() {
    QWidget* frame = makeFrame("fraUploadList");
    auto* column = new QVBoxLayout(frame);
    column->addWidget(makeLabel("lblUpload", tr("Select files to upload to the ftp server")));
    for (const auto& [number, caption] :
         {std::pair(Symbols, tr("S&ymbols")), std::pair(Maps, tr("&Maps")),
          std::pair(HtmlPage, tr("Html &page"))}) {
        auto* box = new QCheckBox(caption);
        box->setObjectName(u"chkUpload"_s + QString::number(number));
        chkUpload_.at(number) = box;
        column->addWidget(box);
    }
    column->addStretch();
    return frame;
}

QBoxLayout* frmFtp::makeButtons() {
    auto* row = new QHBoxLayout;
    row->addStretch();
    auto* cmdOK = makeButton("cmdOK", tr("OK"), &frmFtp::cmdOK_Click);
    cmdOK->setDefault(true);
    row->addWidget(cmdOK);
    row->addWidget(makeButton("cmdCancel", tr("Cancel"), &frmFtp::reject));
    cmdApply_ = makeButton("cmdApply", tr("App&ly"), &frmFtp::cmdApply_Click);
    row->addWidget(cmdApply_);
    row->addWidget(makeButton("cmdHelp", tr("&Help"), &frmFtp::cmdHelp_Click));
    return row;
}

QPushButton* frmFtp::makeButton(const char* name, const QString& caption, void (frmFtp::*click)()) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, click);
    return button;
}

QLineEdit* frmFtp::makeTextBox(const char* name) {
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setMinimumWidth(fontMetrics().averageCharWidth() * TextBoxCharacters);
    new SelectOnFocus(box);
    keepOneLine(*box);
    return box;
}

void frmFtp::watchChanges() {
    const auto changed = [this] { cmdApply_->setEnabled(true); };
    for (const QLineEdit* box :
         {txtUrl_, txtPort_, txtUserName_, txtPassword_, txtRemoteDir_, txtnVaneDir_}) {
        connect(box, &QLineEdit::textChanged, this, changed);
    }
    connect(cboEncryption_, &QComboBox::currentIndexChanged, this, changed);
    connect(cboEncryption_, &QComboBox::currentIndexChanged, this, &frmFtp::showLock);
    connect(optLogin_, &QButtonGroup::idToggled, this, changed);
    connect(optLogin_, &QButtonGroup::idToggled, this, &frmFtp::enableLogin);
    for (const QCheckBox* box : chkUpload_) {
        connect(box, &QCheckBox::toggled, this, changed);
    }
    connect(tabFtp_, &QTabWidget::currentChanged, this, &frmFtp::enterTab);
}

void frmFtp::load() {
    const FtpSettings settings = FtpSettings::read(store_);
    txtUrl_->setText(settings.url);
    txtPort_->setText(settings.port);
    txtUserName_->setText(settings.userName);
    txtPassword_->setText(settings.password);
    txtRemoteDir_->setText(settings.remoteFolder);
    txtnVaneDir_->setText(settings.nubivaneFolder);
    optLogin_->button(static_cast<int>(settings.login))->setChecked(true);
    cboEncryption_->setCurrentIndex(
        cboEncryption_->findData(static_cast<int>(settings.encryption)));
    showLock();
    chkUpload_.at(Symbols)->setChecked(settings.groups.symbols);
    chkUpload_.at(Maps)->setChecked(settings.groups.maps);
    chkUpload_.at(HtmlPage)->setChecked(settings.groups.htmlPage);
    enableLogin();
    cmdApply_->setEnabled(false);
}

FtpSettings frmFtp::values() const {
    return {
        .url = txtUrl_->text(),
        .port = txtPort_->text(),
        .userName = txtUserName_->text(),
        .password = txtPassword_->text(),
        .remoteFolder = txtRemoteDir_->text(),
        .nubivaneFolder = txtnVaneDir_->text(),
        .login = static_cast<FtpLogin>(optLogin_->checkedId()),
        .encryption = static_cast<Encryption>(cboEncryption_->currentData().toInt()),
        .groups = {chkUpload_.at(Symbols)->isChecked(), chkUpload_.at(Maps)->isChecked(),
                   chkUpload_.at(HtmlPage)->isChecked()},
    };
}

/// False when nothing was stored, which the user has been told.
bool frmFtp::save() {
    const FtpSettings settings = values();
    if (const auto complaint = validateFtpSettings(settings)) {
        shell_.messageBox({complaint->text, Icon::Critical, Buttons::Ok, {}});
        goTo(complaint->field);
        return false;
    }
    if (!settings.save(store_)) {
        shell_.messageBox(
            {tr("The settings could not be saved."), Icon::Critical, Buttons::Ok, {}});
        return false;
    }
    return true;
}

void frmFtp::goTo(FtpField field) {
    QLineEdit* box = field == FtpField::Url            ? txtUrl_
                     : field == FtpField::Port         ? txtPort_
                     : field == FtpField::RemoteFolder ? txtRemoteDir_
                                                       : txtnVaneDir_;
    const bool server = field == FtpField::Url || field == FtpField::Port;
    const FtpTab tab = server ? FtpTab::Server : FtpTab::Folders;
    tabFtp_->setCurrentIndex(static_cast<int>(tab) - 1);
    box->setFocus();
    box->selectAll();
}

void frmFtp::enterTab() {
    const std::array<QWidget*, 3> first{txtUrl_, txtRemoteDir_, chkUpload_.at(Symbols)};
    first.at(static_cast<std::size_t>(tabFtp_->currentIndex()))->setFocus();
}

void frmFtp::enableLogin() {
    const bool named = optLogin_->checkedId() == static_cast<int>(FtpLogin::Normal);
    for (QWidget* part :
         std::initializer_list<QWidget*>{lblUserName_, txtUserName_, lblPassword_, txtPassword_}) {
        part->setEnabled(named);
    }
}

void frmFtp::cmdOK_Click() {
    if (save()) {
        accept();
    }
}

void frmFtp::cmdApply_Click() {
    if (save()) {
        cmdApply_->setEnabled(false);
    }
}

void frmFtp::cmdHelp_Click() {
    Q_EMIT helpAsked(QStringLiteral("ftpSettings.htm"));
}

}  // namespace nubivane
