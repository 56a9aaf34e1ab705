// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/desktop_printer.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/version.h"
#include "engine/export/pdf_language.h"
#include "engine/export/print_export.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// A file beside the one that Qt proposes, which may be a folder alone, and refused then.
QString proposedFile(const QString& proposed) {
    const QFileInfo entry(proposed);
    const QDir folder = entry.isDir() ? QDir(proposed) : entry.dir();
    return folder.filePath(QStringLiteral("Nubivane.pdf"));
}

/// The page is printed by now: where its file cannot be written anew, or is a device, it stays
/// without a language.
void tellLanguage(const QString& hostFile) {
    QFile file(hostFile);
    if (!QFileInfo(hostFile).isFile() || !file.open(QIODevice::ReadOnly)) {
        return;
    }
    const QByteArray pdf = file.readAll();
    file.close();
    try {
        host_files::writeHostFile(hostFile, pdfWithLanguage(pdf, systemLanguage()));
    } catch (const Error&) {
    }
}

}  // namespace

/// What the set-up has decided. A printer that has failed once refuses everything afterwards, so
/// each job has a new one, which takes this over.
struct DesktopPrinter::Choice {
    explicit Choice(const QPrinter& printer)
        : name(printer.printerName()),
          file(printer.outputFileName()),
          page(printer.pageLayout()),
          pages(printer.pageOrder()),
          copies(printer.copyCount()),
          collated(printer.collateCopies()),
          duplex(printer.duplex()),
          color(printer.colorMode()) {}

    void apply(QPrinter& printer) const {
        if (!file.isEmpty()) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(file);
        } else if (!name.isEmpty()) {
            printer.setPrinterName(name);
        }
        printer.setPageLayout(page);
        printer.setPageOrder(pages);
        printer.setCopyCount(copies);
        printer.setCollateCopies(collated);
        printer.setDuplex(duplex);
        printer.setColorMode(color);
    }

    QString name;
    QString file;
    QPageLayout page;
    QPrinter::PageOrder pages;
    int copies;
    bool collated;
    QPrinter::DuplexMode duplex;
    QPrinter::ColorMode color;
};

DesktopPrinter::DesktopPrinter() = default;
DesktopPrinter::~DesktopPrinter() = default;

std::unique_ptr<QPrinter> DesktopPrinter::newPrinter() const {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setCreator(ProgramTitle);
    if (choice_) {
        choice_->apply(*printer);
    }
    return printer;
}

/// The dialog that prints serves as the one that only remembers: no other offers all printers and
/// their papers.
void DesktopPrinter::setUp(QWidget* over) {
    const auto printer = newPrinter();
    QPrintDialog dialog(printer.get(), over);
    dialog.setObjectName("printSetup");
    dialog.setWindowTitle(QPrintDialog::tr("Print setup"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    auto* file = dialog.findChild<QLineEdit*>(u"filename"_s);
    if (file && printer->outputFileName().isEmpty()) {
        file->setText(proposedFile(file->text()));
    }
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (auto* print = buttons->button(QDialogButtonBox::Ok)) {
            print->setText(QPrintDialog::tr("OK"));
        }
    }
    if (dialog.exec() == QDialog::Accepted) {
        choice_ = std::make_unique<Choice>(*printer);
    }
}

void DesktopPrinter::print(const QImage& picture, const QString& title) {
    const auto printer = newPrinter();
    printer->setDocName(title);
    try {
        printPicture(*printer, picture);
    } catch (const Error&) {
        printer->abort();
        throw;
    }
    if (printer->printerState() == QPrinter::Error) {
        throw Error(error_number::FileAccess, u"printing"_s, u"Cannot print."_s,
                    printer->printerName() + u": the printer tells of an error"_s);
    }
    if (printer->outputFormat() == QPrinter::PdfFormat) {
        tellLanguage(printer->outputFileName());
    }
}

}  // namespace nubivane
