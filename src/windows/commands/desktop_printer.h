// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/commands/page_printer.h"

#include <memory>

class QPrinter;

namespace nubivane {

/// The printers that the desktop knows, and printing into a PDF file.
class DesktopPrinter : public PagePrinter {
  public:
    DesktopPrinter();
    ~DesktopPrinter() override;

    void setUp(QWidget* over) override;
    void print(const QImage& picture) override;

  private:
    QPrinter& printer();

    std::unique_ptr<QPrinter>
        printer_;  ///< none before it is needed: asking for printers takes time
};

}  // namespace nubivane
