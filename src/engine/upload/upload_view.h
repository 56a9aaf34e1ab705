// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/ftp_settings.h"

#include <QString>
#include <QStringList>

namespace nubivane {

struct Untrusted;

/// What an upload shows: the window of a run, and the dialog to which a missing setting leads. As
/// it stands it shows nothing.
class UploadView {
  public:
    virtual ~UploadView() = default;

    /// Opens the dialog of the FTP settings at a tab; returns when it is closed.
    virtual void openFtpSettings(FtpTab) {}

    /// Opens the run's window, its progress at 0. Its Cancel button calls `UploadRun::cancel`.
    virtual void Init(const QString& /*caption*/) {}
    virtual void setInfo(const QString& /*text*/) {}
    virtual void setProgress(int /*percent*/) {}
    /// Bytes of files sent so far, and all that have to be sent.
    virtual void setAmount(qint64 /*sent*/, qint64 /*total*/) {}
    /// What has to be sent: so many files of all, and their bytes.
    virtual void setChosen(qsizetype /*files*/, qsizetype /*all*/, qint64 /*bytes*/) {}
    /// A line of the conversation with the server, the password left out.
    virtual void addLine(const QString& /*line*/) {}
    /// All these lines, where the view keeps them.
    virtual QString conversation() const { return {}; }
    /// What the run has left out because of its names.
    virtual void showUnsendable(const QStringList& /*names*/) {}
    /// Name and password have gone out in clear.
    virtual void showOpenLock() {}
    /// Whether a certificate or host key that does not verify is trusted from now on.
    virtual bool trust(const Untrusted& /*untrusted*/) { return false; }
    virtual void disableCancel() {}
    /// Closes the run's window if it is open.
    virtual void close() {}
};

}  // namespace nubivane
