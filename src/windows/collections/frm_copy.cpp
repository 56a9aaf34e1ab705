// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/collections/frm_copy.h"

#include "engine/collections/picture_check.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/parallel.h"
#include "engine/core/path_text.h"
#include "engine/core/shell.h"

#include <QCloseEvent>
#include <QVBoxLayout>

namespace nubivane {

using namespace Qt::StringLiterals;

frmCopy::frmCopy(const Workspace& workspace, Shell& shell, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      workspace_(workspace),
      shell_(shell),
      lblFile_(new QLabel(this)),
      gifCopy_(new GifAnimator(this)),
      pBar_(new QProgressBar(this)) {
    setObjectName("frmCopy");
    lblFile_->setObjectName("lblFile");
    lblFile_->setTextFormat(Qt::PlainText);
    lblFile_->setWordWrap(true);
    lblFile_->setMinimumWidth(48 * fontMetrics().averageCharWidth());
    gifCopy_->setObjectName("gifCopy");
    gifCopy_->setBordered(false);
    pBar_->setObjectName("pBar");
    pBar_->setAccessibleName(tr("Progress of the copy"));
    pBar_->setTextVisible(false);
    auto* column = new QVBoxLayout(this);
    column->addWidget(gifCopy_, 0, Qt::AlignHCenter);
    column->addWidget(lblFile_);
    column->addWidget(pBar_);
    column->setSizeConstraint(QLayout::SetFixedSize);
    Timer1_.setSingleShot(true);
    connect(&Timer1_, &QTimer::timeout, this, &frmCopy::Timer1_Timer);
}

void frmCopy::Init(const QString& source, const QString& target) {
    source_ = source;
    target_ = target;
    setWindowTitle(tr("Importing map"));
    lblFile_->setText(tr("Copying file %1 to maps folder").arg(getFileName(source)));
    gifCopy_->playFile(workspace_.folder.entry(u"Media\\fileCopy.gif"_s));
    Timer1_.start(0);
    exec();
}

void frmCopy::Timer1_Timer() {
    constexpr int PauseMs = 300;
    constexpr int LastPauseMs = 500;
    pBar_->setValue(1);
    shell_.wait(PauseMs);
    pBar_->setValue(30);
    shell_.wait(PauseMs);
    pBar_->setValue(70);
    copyFile();
    pBar_->setValue(100);
    shell_.wait(LastPauseMs);
    accept();
    shell_.setPointer(Pointer::Default);
}

/// On another thread: a disk that sleeps or a network must not freeze the window.
void frmCopy::copyFile() {
    try {
        parallelFor(
            1,
            [this](std::size_t) {
                host_files::write(target_, host_files::read(source_, MaxImportBytes));
            },
            [this](std::size_t) { shell_.processEvents(); });
    } catch (const Error&) {
        // Seen in the folder.
    }
}

void frmCopy::closeEvent(QCloseEvent* event) {
    event->ignore();
}

}  // namespace nubivane
