// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"
#include "engine/upload/upload_view.h"

#include <QElapsedTimer>

class QJsonObject;

namespace nubivane {

class Shell;
struct UploadReport;

/// An upload on the command line: a bar on a terminal, or one JSON object a line on stdout.
class CliUploadView : public UploadView {
  public:
    CliUploadView(Shell& shell, bool json, Encryption encryption);

    void setInfo(const QString& text) override;
    void setProgress(int percent) override;
    void setAmount(qint64 sent, qint64 total) override;
    void showOpenLock() override;
    void close() override;

    /// Tells what was done, or would be done; true when nothing is wrong with it.
    bool conclude(const UploadReport& report, bool dryRun);

  private:
    void tell(const QJsonObject& event);

    Shell& shell_;
    const bool json_;
    const Encryption encryption_;
    QElapsedTimer clock_;
    qint64 told_ = -1;
};

}  // namespace nubivane
