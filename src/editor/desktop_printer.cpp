#include "editor/desktop_printer.h"

#include "core/error.h"
#include "core/version.h"
#include "export/print_export.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace nubivane {

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
    // Qt proposes a folder alone, which it refuses then.
    auto* file = dialog.findChild<QLineEdit*>("filename");
    if (file && QFileInfo(file->text()).isDir()) {
        file->setText(QDir(file->text()).filePath(QStringLiteral("Nubivane.pdf")));
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
