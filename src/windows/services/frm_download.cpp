// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/services/frm_download.h"

#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"
#include "windows/widgets/path_label.h"

#include <QDir>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QVBoxLayout>

namespace nubivane {

namespace {

constexpr int ConnectLimit = 20;  // seconds
constexpr int InfoLines = 2;

}  // namespace

QString frmDownload::standardFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
}

frmDownload::frmDownload(Shell& shell, QWidget* parent, const QString& folder, int stallLimit)
    : QDialog(parent),
      shell_(shell),
      folder_(folder),
      downloader_(ConnectLimit, stallLimit),
      lblInfo_(new PathLabel(InfoLines, this)),
      ProgressBar_(new QProgressBar(this)),
      lblProgress_(new QLabel(this)),
      cmdOpenFolder_(new QPushButton(tr("&Open folder"), this)),
      cmdCancelClose_(new QPushButton(tr("Cancel"), this)) {
    setObjectName("frmDownload");
    setWindowTitle(tr("Download"));
    lblInfo_->setObjectName("lblInfo");
    ProgressBar_->setObjectName("ProgressBar");
    ProgressBar_->setAccessibleName(tr("Progress of the download"));
    ProgressBar_->setTextVisible(false);
    lblProgress_->setObjectName("lblProgress");
    cmdOpenFolder_->setObjectName("cmdOpenFolder");
    cmdOpenFolder_->setAutoDefault(false);
    cmdOpenFolder_->hide();
    connect(cmdOpenFolder_, &QPushButton::clicked, this, [this] { shell_.openInBrowser(folder_); });
    cmdCancelClose_->setObjectName("cmdCancelClose");
    cmdCancelClose_->setAutoDefault(false);
    connect(cmdCancelClose_, &QPushButton::clicked, this, &frmDownload::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOpenFolder_);
    buttons->addWidget(cmdCancelClose_);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lblInfo_);
    column->addWidget(ProgressBar_);
    column->addWidget(lblProgress_);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    downloader_.progress = [this](qint64 bytes, qint64 total) { showProgress(bytes, total); };
}

void frmDownload::Init(const QString& url) {
    QTimer::singleShot(0, this, [this, url] { fetch(url); });
    exec();
}

void frmDownload::fetch(const QString& url) {
    const QString name = Downloader::fileNameOf(url);
    lblInfo_->setText(tr("Downloading %1").arg(name));
    ProgressBar_->setRange(0, 0);  // moves to and fro until the first bytes come
    QDir().mkpath(folder_);
    QString target;
    fetching_ = true;
    bool fetched = false;
    if (!name.isEmpty()) {
        target = freeName(name);
        fetched = downloader_.fetch(url, host_files::toModel(QDir(folder_).filePath(target)));
    }
    fetching_ = false;
    if (fetched) {
        showEnd(target);
        return;
    }
    QDialog::reject();
    if (!givenUp_) {
        shell_.messageBox({tr("The installation file could not be downloaded."), Icon::Critical,
                           Buttons::Ok, downloader_.failure()});
    }
}

void frmDownload::showProgress(qint64 bytes, qint64 total) {
    const QLocale locale;
    if (total > 0) {
        ProgressBar_->setRange(0, 100);
        ProgressBar_->setValue(static_cast<int>(bytes * 100 / total));
        lblProgress_->setText(
            tr("%1 of %2").arg(locale.formattedDataSize(bytes), locale.formattedDataSize(total)));
    } else {
        lblProgress_->setText(locale.formattedDataSize(bytes));
    }
}

void frmDownload::showEnd(const QString& name) {
    lblInfo_->setText(tr("%1 is in the folder %2").arg(name, QDir::toNativeSeparators(folder_)));
    ProgressBar_->setRange(0, 100);
    ProgressBar_->setValue(100);
    cmdOpenFolder_->show();
    cmdCancelClose_->setText(tr("Close"));
    cmdCancelClose_->setDefault(true);
}

/// A download before this one keeps its file.
QString frmDownload::freeName(const QString& name) const {
    QString free = name;
    for (int n = 1; QFile::exists(QDir(folder_).filePath(free)); ++n) {
        free = name.contains(u'.') ? uniqueFileName(name, n) : name + u'_' + QString::number(n);
    }
    return free;
}

void frmDownload::reject() {
    if (!fetching_) {
        QDialog::reject();
        return;
    }
    givenUp_ = true;
    downloader_.abort();
}

}  // namespace nubivane
