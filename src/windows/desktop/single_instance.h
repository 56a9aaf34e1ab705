// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocalServer>
#include <QObject>

namespace nubivane {

/// Sees to it that a user runs one editor on a program folder: a second one raises the first one's
/// window and ends. They meet at a socket in a folder that only this user can write, so that no
/// other user's program is ever taken for the editor.
class SingleInstance : public QObject {
    Q_OBJECT

  public:
    explicit SingleInstance(const QString& programFolder);

    /// True when no other instance runs; others find this one from now on. Otherwise the other one
    /// has been asked to come to the front.
    bool isFirst();

  Q_SIGNALS:
    void raised();  ///< another instance has been started

  private:
    bool raiseOther();

    QString name_;  ///< the socket's host path; empty where there is no such folder
    QLocalServer server_;
};

}  // namespace nubivane
