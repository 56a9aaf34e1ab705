// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_transfer.h"

#include <QString>
#include <QStringList>

namespace nubivane {

class Error;
class ProgramFolder;
class Shell;

/// What the packs' window shows, in the names of its controls. As it stands it shows nothing.
class PackView {
  public:
    virtual ~PackView() = default;

    virtual void setLblInfo(const QString&) {}
    virtual void setTxtInfo(const QString&) {}  ///< lines are parted by CR and LF
    virtual void setLblProgress(const QString&) {}
    virtual void setProgress(int /*percent*/) {}
    virtual void showProgress(bool) {}  ///< `lblProgress` and `ProgressBar`
    virtual void enableStart(bool) {}
    virtual void setCancelCloseCaption(const QString&) {}
};

/// Fetches further collections of symbols from the publisher's server, each of its folders as one
/// folder of "\symbols".
///
/// What the server calls its packs and files is checked before it becomes a name on this disk, and
/// each file is put in place as a whole.
class SymbolPacks {
  public:
    SymbolPacks(const ProgramFolder& folder, const FtpServer& server, Shell& shell, PackView& view,
                FtpOptions options = {});

    /// Lists the packs, as the window opens.
    void open();
    /// Downloads them all.
    void start();
    /// The button under the list: true when the window should close. While packs are being
    /// downloaded it stops that instead.
    bool cancelClose();

    /// True while events of this window run inside `open` or `start`: it must stay for that long.
    bool running() const { return running_; }

  private:
    void connect();
    void download();
    void downloadPack(const QString& pack);
    void downloadFile(const QString& pack, const QString& file, qsizetype i, qsizetype n);
    void complete();
    void interrupt(const Error& error);
    void throwIfCancelled();

    const ProgramFolder& folder_;
    const FtpServer server_;
    Shell& shell_;
    PackView& view_;
    ftpTransfer transfer_;
    QStringList packs_;
    bool running_ = false;
    bool downloading_ = false;
    bool cancelled_ = false;
};

}  // namespace nubivane
