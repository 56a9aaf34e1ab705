// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/ftp_settings.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;
class QTreeWidget;

namespace nubivane {

class Workspace;

/// The tab "Upload list": the groups of files to send, and a look at what that would be.
class UploadList : public QWidget {
    Q_OBJECT

  public:
    explicit UploadList(const Workspace& workspace);

    void setGroups(const UploadGroups& groups, bool everything);
    UploadGroups groups() const;
    bool everything() const;
    /// What has the focus first.
    QWidget* firstField() const;

  Q_SIGNALS:
    void changed();

  private:
    void showOutlook();
    void forgetOutlook();

    const Workspace& workspace_;
    std::array<QCheckBox*, 3> chkUpload_{};  ///< symbols, maps, page
    QCheckBox* chkEverything_;
    QTreeWidget* lstOutlook_;
    QLabel* lblOutlook_;
};

}  // namespace nubivane
