// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"
#include "support/modal.h"
#include "windows/publish/frm_ftp.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

namespace nubivane::testing {

inline constexpr char Absent[] = "(absent)";

inline const QList<Setting> AllSettings{Setting::FtpUrl,          Setting::FtpPort,
                                        Setting::FtpUserName,     Setting::FtpPassword,
                                        Setting::FtpRemoteFolder, Setting::FtpNubivaneFolder,
                                        Setting::FtpLoginType,    Setting::UploadSymbols,
                                        Setting::UploadMaps,      Setting::UploadHtmlPage};

/// "Ftp settings", worked as a person does, with the settings that it leaves.
class FtpDialog : public WorkspaceFixture {
  protected:
    /// Opens the dialog at a tab, takes the steps in it, and closes it if they did not.
    void run(const std::function<void()>& steps, FtpTab tab = FtpTab::Server) {
        frmFtp dialog(workspace, shell, nullptr);
        QObject::connect(&dialog, &frmFtp::helpAsked, &dialog,
                         [this](const QString& topic) { topics << topic; });
        dialog_ = &dialog;
        withModal([&] { dialog.Init(tab); }, [&](QWidget&) { steps(); });
        dialog_ = nullptr;
    }

    QLineEdit& box(const char* name) { return partOf<QLineEdit>(*dialog_, name); }
    QAbstractButton& button(const char* name) { return partOf<QAbstractButton>(*dialog_, name); }
    QComboBox& protocols() { return partOf<QComboBox>(*dialog_, "cboProtocol"); }
    QTabWidget& tabs() { return partOf<QTabWidget>(*dialog_, "tabFtp"); }
    void press(const char* name) {
        // Boxes to check are wider than what can be clicked of them.
        QTest::mouseClick(&button(name), Qt::LeftButton, {}, {9, button(name).height() / 2});
    }
    /// A click on a tab.
    void choose(FtpTab tab) {
        QTabBar& bar = *tabs().tabBar();
        const QPoint middle = bar.tabRect(static_cast<int>(tab) - 1).center();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, middle);
    }
    bool isOpen() const { return dialog_->isVisible(); }
    bool canApply() { return button("cmdApply").isEnabled(); }

    /// What the store itself holds.
    QString stored(Setting setting) const {
        const SettingRow& row = rowOf(setting);
        return settings.GetSetting(row.section, row.group, row.key, Absent);
    }
    void expectNothingStored() const {
        for (const Setting setting : AllSettings) {
            EXPECT_EQ(stored(setting), Absent) << rowOf(setting).key;
        }
    }
    QStringList checks() {
        QStringList checked;
        for (const char* name : {"chkUpload0", "chkUpload1", "chkUpload2"}) {
            checked << (button(name).isChecked() ? "1" : "0");
        }
        return checked;
    }

    QStringList topics;
    frmFtp* dialog_ = nullptr;
};

}  // namespace nubivane::testing
