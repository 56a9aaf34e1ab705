// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace nubivane {

class Shell;
struct Publisher;

/// "About Nubivane": title, version, and where to learn and ask more.
class frmAbout : public QDialog {
    Q_OBJECT

  public:
    frmAbout(const Publisher& publisher, Shell& shell, QWidget* parent);

  private:
    QWidget* makeTexts(const Publisher& publisher);
    QWidget* makeLink(const char* captionName, const QString& caption, const char* linkName,
                      const QString& text, const QString& address);

    Shell& shell_;
};

}  // namespace nubivane
