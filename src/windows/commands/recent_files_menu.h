// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QMenu;

namespace nubivane {

class SettingsStore;

/// The recent files in the menu `mnuFile`, above `mnuEsci`. An entry is made once and keeps its
/// path until the next start, while the list in the settings moves on.
class RecentFilesMenu : public QObject {
    Q_OBJECT

  public:
    RecentFilesMenu(QMenu& menu, const SettingsStore& settings)
        : menu_(menu), settings_(settings) {}

    /// Adds the entries that the settings hold and the menu lacks.
    void refresh();

  Q_SIGNALS:
    void chosen(const QString& file);

  private:
    QMenu& menu_;
    const SettingsStore& settings_;
};

}  // namespace nubivane
