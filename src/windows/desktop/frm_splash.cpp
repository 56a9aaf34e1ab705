// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/frm_splash.h"

#include "engine/core/version.h"
#include "windows/widgets/icons.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QScreen>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize SplashSize(520, 300);

}  // namespace

frmSplash::frmSplash(int shownMs)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      lblTitle_(QString(ProgramTitle) + u' ' + Version + u" Beta"_s) {
    setObjectName("frmSplash");
    setWindowTitle(ProgramTitle);
    setFixedSize(SplashSize);
    move(screen()->availableGeometry().center() - rect().center());
    picture_ = programIcon(u"splash"_s).pixmap(SplashSize, devicePixelRatioF());
    Timer1_.setSingleShot(true);
    Timer1_.setInterval(shownMs);
    connect(&Timer1_, &QTimer::timeout, this, &frmSplash::Timer1_Timer);
}

void frmSplash::showEvent(QShowEvent*) {
    Timer1_.start();
}

void frmSplash::Timer1_Timer() {
    Q_EMIT init();
    close();
    QApplication::processEvents();
    Q_EMIT done();
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(rect(), picture_);
    QFont font = painter.font();
    font.setPixelSize(26);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor(0x1f, 0x3c, 0x5a));
    painter.drawText(rect().adjusted(28, 0, -28, -26), Qt::AlignLeft | Qt::AlignBottom, lblTitle_);
}

}  // namespace nubivane
