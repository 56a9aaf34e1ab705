// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/frm_versions.h"

#include "windows/widgets/screen_room.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QPixmap emptyPicture() {
    QPixmap picture(frmVersions::PictureSize);
    picture.fill(Qt::transparent);
    return picture;
}

/// In the middle of a picture of the list's own size, so that all rows are alike.
QPixmap fitted(const QImage& image) {
    QPixmap picture = emptyPicture();
    const QImage scaled =
        image.scaled(frmVersions::PictureSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&picture);
    painter.drawImage((picture.width() - scaled.width()) / 2,
                      (picture.height() - scaled.height()) / 2, scaled);
    return picture;
}

}  // namespace

frmVersions::frmVersions(const QString& name, QList<KeptVersion> versions, QWidget* parent)
    : QDialog(parent),
      versions_(std::move(versions)),
      list_(new QListWidget(this)),
      differences_(new QPlainTextEdit(this)) {
    setObjectName(u"frmVersions"_s);
    setWindowTitle(tr("Earlier versions"));
    buildLayout(name);
    for (const KeptVersion& version : versions_) {
        addRow(version);
    }
    idle_.setInterval(0);
    connect(&idle_, &QTimer::timeout, this, &frmVersions::fillNextRow);
    idle_.start();
    connect(list_, &QListWidget::currentRowChanged, this, [this] {
        differences_->hide();
        refreshButtons();
    });
    list_->setCurrentRow(0);
    refreshButtons();
}

void frmVersions::buildLayout(const QString& name) {
    auto* heading = new QLabel(this);
    heading->setObjectName(u"lblHeading"_s);
    heading->setTextFormat(Qt::PlainText);
    heading->setWordWrap(true);
    const QString project = name.isEmpty() ? tr("projects without a name") : name;
    heading->setText(versions_.isEmpty()
                         ? tr("No earlier version is kept of %1. One is kept before each save, "
                              "and when work is left without saving.")
                               .arg(project)
                         : tr("Kept of %1, the newest first:").arg(project));
    list_->setObjectName(u"lstVersions"_s);
    list_->setAccessibleName(tr("Versions"));
    list_->setIconSize(PictureSize);
    list_->setSpacing(2);
    differences_->setObjectName(u"txtDifferences"_s);
    differences_->setAccessibleName(tr("Differences"));
    differences_->setReadOnly(true);
    differences_->setMaximumHeight(PictureSize.height() + PictureSize.height() / 2);
    differences_->hide();

    auto* buttons = new QHBoxLayout;
    buttons_ = {addButton("cmdOpen", tr("&Open as new project"), &frmVersions::openWanted),
                addButton("cmdCompare", tr("&Compare"), &frmVersions::compareWanted),
                addButton("cmdSaveAs", tr("&Save as…"), &frmVersions::saveWanted)};
    for (QPushButton* button : buttons_) {
        buttons->addWidget(button);
    }
    buttons_[0]->setToolTip(tr("Opens it without a name; nothing on the disk changes"));
    buttons_[1]->setToolTip(tr("Tells what differs from what is open now"));
    buttons_[2]->setToolTip(tr("Writes both files as they were"));
    buttons->addStretch();
    auto* close = new QPushButton(tr("Close"), this);
    close->setObjectName(u"cmdClose"_s);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    buttons->addWidget(close);

    auto* column = new QVBoxLayout(this);
    column->addWidget(heading);
    column->addWidget(list_, 1);
    column->addWidget(differences_);
    column->addLayout(buttons);
    resize(withinScreen(*this, {560, 560}));
}

QPushButton* frmVersions::addButton(const char* name, const QString& caption,
                                    void (frmVersions::*wanted)(const KeptVersion&)) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, wanted] {
        if (const int row = list_->currentRow(); row >= 0) {
            Q_EMIT(this->*wanted)(versions_[row]);
        }
    });
    return button;
}

void frmVersions::addRow(const KeptVersion& version) {
    const QString time = QLocale().toString(version.time.date(), QLocale::LongFormat) + u", "_s +
                         version.time.toString(u"HH:mm:ss"_s);
    const DocumentCount count = countDocument(version.document);
    auto* row =
        new QListWidgetItem(QIcon(emptyPicture()), tr("%1\n%2\nMaps: %3\nSymbols and labels: %4")
                                                       .arg(time, causeText(version.cause))
                                                       .arg(count.frames)
                                                       .arg(count.sprites));
    list_->addItem(row);
}

void frmVersions::fillNextRow() {
    if (filled_ == versions_.size()) {
        idle_.stop();
        return;
    }
    const int row = filled_++;
    Q_EMIT pictureWanted(row, versions_[row]);
}

void frmVersions::setPicture(int row, const QImage& picture) {
    if (QListWidgetItem* item = list_->item(row); item && !picture.isNull()) {
        item->setIcon(QIcon(fitted(picture)));
    }
}

void frmVersions::showDifferences(const QString& text) {
    differences_->setPlainText(text);
    differences_->show();
}

void frmVersions::refreshButtons() {
    for (QPushButton* button : buttons_) {
        button->setEnabled(list_->currentRow() >= 0);
    }
}

}  // namespace nubivane
