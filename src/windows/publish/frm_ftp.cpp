// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/publish/frm_ftp.h"

#include "engine/core/shell.h"
#include "engine/model/workspace.h"
#include "engine/upload/protocol.h"
#include "engine/upload/server_memory.h"
#include "engine/upload/stored_password.h"
#include "windows/publish/upload_list.h"
#include "windows/widgets/at_once.h"
#include "windows/widgets/combo_ex.h"
#include "windows/widgets/icons.h"
#include "windows/widgets/named_label.h"
#include "windows/widgets/one_line.h"
#include "windows/widgets/select_on_focus.h"

#include <QButtonGroup>
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

/// Of the server of the settings: what is there has to be known, or all is sent anyway.
ServerMemory memoryOf(const SettingsStore& store) {
    return ServerMemory(ServerMemory::placeOf(uploadServer(store), store));
}

QWidget* makeFrame(const char* name) {
    auto* frame = new QWidget;
    frame->setObjectName(name);
    return frame;
}

}  // namespace

frmFtp::frmFtp(Workspace& workspace, Shell& shell, QWidget* parent)
    : QDialog(parent),
      store_(workspace.settings),
      shell_(shell),
      tabFtp_(new QTabWidget),
      uploadList_(new UploadList(workspace)) {
    setObjectName("frmFtp");
    setWindowTitle(tr("Ftp settings"));
    tabFtp_->setObjectName("tabFtp");
    tabFtp_->setAccessibleName(windowTitle());
    tabFtp_->addTab(makeServerFrame(), tr("&Server"));
    tabFtp_->addTab(makeFolderFrame(), tr("&Folders"));
    tabFtp_->addTab(uploadList_, tr("&Upload list"));
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
    lblUrl_ = makeLabel("lblUrl", {}, txtUrl_);
    lblPort_ = makeLabel("lblPort", tr("&Port:"), txtPort_);
    auto* grid = new QGridLayout(frame);
    makeProtocols();
    grid->addWidget(makeLabel("lblProtocol", tr("Pro&tocol:"), cboProtocol_), 0, 0);
    grid->addWidget(cboProtocol_, 0, 1, Qt::AlignLeft);
    grid->addWidget(lblUrl_, 1, 0);
    grid->addWidget(txtUrl_, 1, 1);
    grid->addWidget(lblPort_, 2, 0);
    grid->addWidget(txtPort_, 2, 1, Qt::AlignLeft);
    auto* encryption = makeEncryption();
    lblEncryption_ = makeLabel("lblEncryption", tr("&Encryption:"), cboEncryption_);
    grid->addWidget(lblEncryption_, 3, 0);
    grid->addLayout(encryption, 3, 1);
    grid->addLayout(makeLogins(), 4, 1);
    txtUserName_ = makeTextBox("txtUserName");
    txtPassword_ = makeTextBox("txtPassword");
    txtPassword_->setEchoMode(QLineEdit::Password);
    lblUserName_ = makeLabel("lblUserName", tr("User&name:"), txtUserName_);
    lblPassword_ = makeLabel("lblPassword", tr("Pass&word:"), txtPassword_);
    lblPasswordPlace_ = makeLabel("lblPasswordPlace", {});
    lblPasswordPlace_->setWordWrap(true);
    grid->addWidget(lblUserName_, 5, 0);
    grid->addWidget(txtUserName_, 5, 1);
    grid->addWidget(lblPassword_, 6, 0);
    grid->addWidget(txtPassword_, 6, 1);
    grid->addWidget(lblPasswordPlace_, 7, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(8, 1);
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
    imgLock_->setPixmap(programIcon(u"unlock"_s).pixmap(SmallIcon));
    lblInClear_ = makeLabel("lblInClear", tr("the password travels in clear"));
    auto* row = new QHBoxLayout;
    row->addWidget(cboEncryption_);
    row->addWidget(imgLock_);
    row->addWidget(lblInClear_);
    row->addStretch();
    return row;
}

void frmFtp::makeProtocols() {
    cboProtocol_ = new comboEx;
    cboProtocol_->setObjectName("cboProtocol");
    for (const auto& [protocol, caption] :
         {std::pair(Protocol::Ftp, tr("FTP")),
          std::pair(Protocol::FtpOverTls, tr("FTP over TLS from the first byte on")),
          std::pair(Protocol::Sftp, tr("SFTP")),
          std::pair(Protocol::Folder, tr("Folder of this machine")),
          std::pair(Protocol::Rclone, tr("rclone"))}) {
        cboProtocol_->addItem(caption, static_cast<int>(protocol));
    }
}

Protocol frmFtp::protocol() const {
    return static_cast<Protocol>(cboProtocol_->currentData().toInt());
}

void frmFtp::chooseProtocol(Protocol protocol) {
    cboProtocol_->setCurrentIndex(cboProtocol_->findData(static_cast<int>(protocol)));
}

/// What the others need no longer can be typed; a port that was another's own becomes this one's.
void frmFtp::changeProtocol() {
    const Protocol now = protocol();
    const QString port = txtPort_->text().trimmed();
    if (hasLogin(now) && port == QString::number(portOf(lastServer_))) {
        txtPort_->setText(QString::number(portOf(now)));
    }
    lastServer_ = hasLogin(now) ? now : lastServer_;
    switch (now) {
        case Protocol::Folder:
            lblUrl_->setText(tr("F&older:"));
            break;
        case Protocol::Rclone:
            lblUrl_->setText(tr("&Remote and folder:"));
            break;
        default:
            lblUrl_->setText(tr("Ftp host &address:"));
            break;
    }
    for (QWidget* part : std::initializer_list<QWidget*>{lblPort_, txtPort_, optLogin_->button(0),
                                                         optLogin_->button(1)}) {
        part->setEnabled(hasLogin(now));
    }
    lblEncryption_->setEnabled(now == Protocol::Ftp);
    cboEncryption_->setEnabled(now == Protocol::Ftp);
    enableLogin();
    showLock();
}

/// Puts the parts of an address into the fields that they belong to. What fits nowhere stays, and
/// is refused when it is saved.
void frmFtp::takeTypedApart() {
    const auto typed = takeApart(protocol(), txtUrl_->text());
    if (!typed) {
        return;
    }
    const bool portFits =
        !typed->port || typed->protocol != Protocol::Ftp || *typed->port == portOf(Protocol::Ftp);
    const bool folderFits =
        typed->folder.isEmpty() ||
        (!typed->folder.contains(u'/') && !typed->folder.contains(u'\\') &&
         (txtRemoteDir_->text().isEmpty() || txtRemoteDir_->text() == typed->folder));
    if (!portFits || !folderFits) {
        return;
    }
    chooseProtocol(typed->protocol);
    txtUrl_->setText(typed->place);
    if (typed->port) {
        txtPort_->setText(QString::number(*typed->port));
    }
    if (!typed->user.isEmpty()) {
        txtUserName_->setText(typed->user);
    }
    if (!typed->folder.isEmpty()) {
        txtRemoteDir_->setText(typed->folder);
    }
}

/// Where the server may refuse to encrypt, the password may travel in clear.
void frmFtp::showLock() {
    const bool open = protocol() == Protocol::Ftp && cboEncryption_->currentData().toInt() !=
                                                         static_cast<int>(Encryption::Required);
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
    connect(cboProtocol_, &QComboBox::currentIndexChanged, this, changed);
    connect(cboProtocol_, &QComboBox::currentIndexChanged, this, &frmFtp::changeProtocol);
    connect(txtUrl_, &QLineEdit::editingFinished, this, &frmFtp::takeTypedApart);
    connect(uploadList_, &UploadList::changed, this, changed);
    connect(tabFtp_, &QTabWidget::currentChanged, this, &frmFtp::enterTab);
}

void frmFtp::load() {
    const FtpSettings settings = FtpSettings::read(store_);
    const Protocol stored = protocolOf(settings.url);
    const StoredPassword password = storedPassword(store_, settings.url, settings.userName);
    txtUrl_->setText(placeOf(settings.url));
    txtPort_->setText(settings.port);
    txtUserName_->setText(settings.userName);
    txtPassword_->setText(password.password);
    showPlaceOf(password);
    txtRemoteDir_->setText(settings.remoteFolder);
    txtnVaneDir_->setText(settings.nubivaneFolder);
    optLogin_->button(static_cast<int>(settings.login))->setChecked(true);
    cboEncryption_->setCurrentIndex(
        cboEncryption_->findData(static_cast<int>(settings.encryption)));
    lastServer_ = Protocol::Ftp;
    chooseProtocol(stored);
    changeProtocol();
    uploadList_->setGroups(settings.groups, memoryOf(store_).everything);
    cmdApply_->setEnabled(false);
}

FtpSettings frmFtp::values() const {
    return {
        .url = urlOf(protocol(), txtUrl_->text()),
        .port = txtPort_->text(),
        .userName = txtUserName_->text(),
        .password = txtPassword_->text(),
        .remoteFolder = txtRemoteDir_->text(),
        .nubivaneFolder = txtnVaneDir_->text(),
        .login = static_cast<FtpLogin>(optLogin_->checkedId()),
        .encryption = static_cast<Encryption>(cboEncryption_->currentData().toInt()),
        .groups = uploadList_->groups(),
    };
}

/// False when nothing was stored, which the user has been told.
bool frmFtp::save() {
    takeTypedApart();
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
    showPlaceOf(storedPassword(store_, settings.url, settings.userName));
    if (ServerMemory memory = memoryOf(store_);
        memory.known && memory.everything != uploadList_->everything()) {
        memory.everything = uploadList_->everything();
        memory.save();
    }
    return true;
}

/// People are told where a password lies that others could read.
void frmFtp::showPlaceOf(const StoredPassword& password) {
    lblPasswordPlace_->setText(
        password.place == PasswordPlace::Keyring
            ? tr("The desktop's keyring keeps the password.")
            : tr("The settings keep the password, readable: no keyring of the desktop keeps it."));
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
    const std::array<QWidget*, 3> first{txtUrl_, txtRemoteDir_, uploadList_->firstField()};
    first.at(static_cast<std::size_t>(tabFtp_->currentIndex()))->setFocus();
}

void frmFtp::enableLogin() {
    const bool named =
        optLogin_->checkedId() == static_cast<int>(FtpLogin::Normal) && hasLogin(protocol());
    for (QWidget* part : std::initializer_list<QWidget*>{lblUserName_, txtUserName_, lblPassword_,
                                                         txtPassword_, lblPasswordPlace_}) {
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
