// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/desktop_printer.h"

#include "engine/core/error.h"
#include "engine/core/version.h"
#include "engine/export/print_export.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace nubivane {

namespace {

/// A file beside the one that Qt proposes, which may be a folder alone, and refused then.
QString proposedFile(const QString& proposed) {
    const QFileInfo entry(proposed);
    const QDir folder = entry.isDir() ? QDir(proposed) : entry.dir();
    return folder.filePath(QStringLiteral("Nubivane.pdf"));
}

}  // namespace

DesktopPrinter::DesktopPrinter() = default;
DesktopPrinter::~DesktopPrinter() = default;

QPrinter& DesktopPrinter::printer() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer_->setCreator(ProgramTitle);
    }
    return *printer_;
}

/// The dialog that prints serves as the one that only remembers: no other offers all printers and
/// their papers.
void DesktopPrinter::setUp(QWidget* over) {
    QPrintDialog dialog(&printer(), over);
    dialog.setObjectName("printSetup");
    dialog.setWindowTitle(QPrintDialog::tr("Print setup"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    auto* file = dialog.findChild<QLineEdit*>("filename");
    if (file && printer().outputFileName().isEmpty()) {
        file->setText(proposedFile(file->text()));
    }
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (auto* print = buttons->button(QDialogButtonBox::Ok)) {
            print->setText(QPrintDialog::tr("OK"));
        }
    }
    dialog.exec();
}

void DesktopPrinter::print(const QImage& picture) {
    printer().setDocName(ProgramTitle);
    try {
        printPicture(printer(), picture);
    } catch (const Error&) {
        printer().abort();
        throw;
    }
    if (printer().printerState() == QPrinter::Error) {
        throw Error(error_number::FileAccess, "printing", "Cannot print.",
                    printer().printerName() + ": the printer tells of an error");
    }
}

}  // namespace nubivane
