// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/desktop_shell.h"

#include "engine/core/host_files.h"
#include "engine/core/sentence.h"
#include "engine/core/version.h"
#include "engine/gif/color_value.h"
#include "windows/help/frm_help.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QNetworkInterface>
#include <QProgressBar>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Wide enough for names, sizes and dates side by side.
constexpr QSize FileDialogSize(780, 480);

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
        case Icon::Critical:
            return QMessageBox::Critical;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
        case Buttons::YesNoSaveAs:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Buttons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

Answer answerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Ok:
            return Answer::Ok;
        default:
            return Answer::Cancel;
    }
}

/// A name without blanks makes a box as wide as it is long. It may be broken where it is too long.
QString breakable(const QString& text) {
    constexpr int LongestWord = 60;
    constexpr QChar MayBreakHere(0x200b);
    QString broken;
    int letters = 0;
    for (const QChar c : text) {
        letters = c.isSpace() ? 0 : letters + 1;
        if (letters > LongestWord && !c.isLowSurrogate()) {
            broken += MayBreakHere;
            letters = 1;
        }
        broken += c;
    }
    return broken;
}

/// In sight, unless it is as long as what only a report wants. What follows an empty line is for
/// whoever asks for details.
void showCause(QMessageBox& box, const QString& cause) {
    constexpr qsizetype Longest = 400;
    if (const qsizetype end = cause.indexOf("\n\n"_L1); end >= 0 && end <= Longest) {
        box.setDetailedText(cause.mid(end + 2));
        showCause(box, cause.left(end));
    } else if (cause.size() > Longest || cause.count(u'\n') > 2) {
        box.setDetailedText(cause);
    } else if (!cause.isEmpty()) {
        box.setInformativeText(breakable(sentence(cause)));
    }
}

/// Where no window is under a box, not every window manager brings it to the middle by itself.
void centreOnScreen(QWidget& box) {
    box.ensurePolished();
    box.adjustSize();
    box.move(box.screen()->availableGeometry().center() - box.rect().center());
}

/// "Caption (*.x)|*.x|" becomes "Caption (*.x)" with the pattern in the last brackets.
QStringList qtFilters(const QString& filter) {
    const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString caption = parts[i].section(u'(', 0, 0).trimmed();
        filters << caption + u" ("_s + QString(parts[i + 1]).replace(u';', u' ').trimmed() + u')';
    }
    return filters;
}

/// An installed program keeps its folder where file dialogs do not show it; what people keep
/// themselves goes among their documents then.
QString startFolder(const FileRequest& request) {
    const QString folder = host_files::toHost(request.folder);
    const QStringList parts = folder.split(u'/', Qt::SkipEmptyParts);
    const bool hidden = std::any_of(parts.begin(), parts.end(), [](const QString& part) {
        return part.size() > 1 && part.startsWith(u'.') && part != u"..";
    });
    if (!request.peoplesOwn || !hidden) {
        return folder;
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString askForFile(QFileDialog& dialog, const FileRequest& request) {
    dialog.setNameFilters(qtFilters(request.filter));
    dialog.resize(FileDialogSize);
    return dialog.exec() == QDialog::Accepted
               ? host_files::toModel(QDir::cleanPath(dialog.selectedFiles().value(0)))
               : QString();
}

}  // namespace

DesktopShell::DesktopShell() = default;

DesktopShell::~DesktopShell() = default;

QWidget* DesktopShell::dialogParent() const {
    QWidget* active = QApplication::activeWindow();
    if (active && active == help_.get()) {
        active = QApplication::activeModalWidget();  // the help only stands beside what goes on
    }
    return active || !progressBar_ ? active : progressBar_->window();
}

Answer DesktopShell::messageBox(const Message& message) {
    QString text = message.text;
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    QMessageBox box(iconOf(message.icon), ProgramTitle, breakable(text), buttonsOf(message.buttons),
                    dialogParent());
    box.setTextFormat(Qt::PlainText);
    showCause(box, message.cause);
    if (message.destroys) {
        box.setDefaultButton(QMessageBox::No);
    }
    const QAbstractButton* saveAs =
        message.buttons == Buttons::YesNoSaveAs
            ? box.addButton(QObject::tr("Save as…"), QMessageBox::ActionRole)
            : nullptr;
    if (!box.parentWidget()) {
        centreOnScreen(box);
    }
    // The hourglass must not stay over the buttons.
    const QCursor* waiting = QApplication::overrideCursor();
    if (waiting) {
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    const int button = box.exec();
    const Answer answer =
        saveAs && box.clickedButton() == saveAs ? Answer::SaveAs : answerOf(button);
    if (waiting) {
        QApplication::restoreOverrideCursor();
    }
    return answer;
}

QString DesktopShell::openFileName(const FileRequest& request) {
    QFileDialog dialog(dialogParent(), request.title, startFolder(request));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return askForFile(dialog, request);
}

QString DesktopShell::saveFileName(const FileRequest& request) {
    QFileDialog dialog(dialogParent(), request.title, startFolder(request));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.confirmOverwrite);
    return askForFile(dialog, request);
}

QString DesktopShell::chooseFolder(const FileRequest& request) {
    QFileDialog dialog(dialogParent(), request.title, host_files::toHost(request.folder));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.resize(FileDialogSize);
    return dialog.exec() == QDialog::Accepted ? host_files::toModel(dialog.selectedFiles().value(0))
                                              : QString();
}

std::optional<qint32> DesktopShell::chooseColor(qint32 initial) {
    const QColor start = initial < 0 ? QColor(Qt::black) : colorOf(initial);
    const QColor chosen = QColorDialog::getColor(start, dialogParent());
    if (!chosen.isValid()) {
        return std::nullopt;
    }
    return valueOf(chosen);
}

void DesktopShell::setProgress(int percent) {
    if (progressBar_) {
        progressBar_->setValue(percent);
        progressBar_->show();
    }
}

void DesktopShell::hideProgress() {
    if (progressBar_) {
        progressBar_->hide();
    }
}

void DesktopShell::setPointer(Pointer pointer) {
    while (QApplication::overrideCursor()) {
        QApplication::restoreOverrideCursor();
    }
    if (pointer == Pointer::Hourglass) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (pointer == Pointer::ArrowWithHourglass) {
        QApplication::setOverrideCursor(Qt::BusyCursor);
    }
}

void DesktopShell::processEvents() {
    QApplication::processEvents();
}

void DesktopShell::wait(int milliseconds) {
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(milliseconds);
    loop.exec();
}

void DesktopShell::openInBrowser(const QString& hostFile) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(hostFile));
}

bool DesktopShell::openHelp(const QString& hostFile, const QString& topic) {
    if (!help_) {
        help_ = std::make_unique<frmHelp>();
        QObject::connect(help_.get(), &frmHelp::addressFollowed, help_.get(),
                         [this](const QString& url) { openAddress(url); });
    }
    return help_->openTopic(hostFile, topic);
}

void DesktopShell::openAddress(const QString& url) {
    QDesktopServices::openUrl(QUrl::fromUserInput(url));
}

bool DesktopShell::networkPresent() {
    for (const QNetworkInterface& net : QNetworkInterface::allInterfaces()) {
        const auto flags = net.flags();
        if (flags.testFlag(QNetworkInterface::IsRunning) &&
            !flags.testFlag(QNetworkInterface::IsLoopBack) && !net.addressEntries().isEmpty()) {
            return true;
        }
    }
    return false;
}

}  // namespace nubivane
