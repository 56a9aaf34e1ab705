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
    void print(const QImage& picture, const QString& title) override;

  private:
    struct Choice;

    /// A printer as the set-up has chosen it, or the desktop's own.
    std::unique_ptr<QPrinter> newPrinter() const;

    std::unique_ptr<Choice> choice_;  ///< none before a set-up
};

}  // namespace nubivane
