// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QImage;
class QString;
class QWidget;

namespace nubivane {

/// Where pages go. The editor has the desktop's printers; tests have paper of their own.
class PagePrinter {
  public:
    virtual ~PagePrinter() = default;

    /// Lets the person choose printer and paper, in front of a window. What was chosen stays for
    /// the run of the program.
    virtual void setUp(QWidget* over) = 0;
    /// Prints one page with a picture at its upper left corner, as a job of that title. Raises
    /// `Error`; then the job is dropped.
    virtual void print(const QImage& picture, const QString& title) = 0;
};

}  // namespace nubivane
