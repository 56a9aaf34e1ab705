// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/shell.h"

#include <QStringList>

#include <deque>

namespace nubivane::testing {

/// A shell that knows beforehand what will be shown and what is answered. A message or file dialog
/// that was not expected fails the test, and so does one that was expected and did not come.
class ScriptedShell : public Shell {
  public:
    ~ScriptedShell() override;

    void expectMessage(const QString& text, Icon icon, Buttons buttons = Buttons::Ok,
                       Answer answer = Answer::Ok);
    /// `chosen` is what the dialog returns; empty is Cancel.
    void expectSaveDialog(const QString& title, const QString& chosen);
    void expectOpenDialog(const QString& title, const QString& chosen);
    void expectFolderDialog(const QString& title, const QString& chosen);

    /// `chosen` is what the dialog returns; nothing is Cancel.
    void expectColorDialog(qint32 initial, std::optional<qint32> chosen);

    Answer messageBox(const Message& message) override;
    QString openFileName(const FileRequest& request) override;
    QString saveFileName(const FileRequest& request) override;
    QString chooseFolder(const FileRequest& request) override;
    std::optional<qint32> chooseColor(qint32 initial) override;
    void setProgress(int percent) override;
    void hideProgress() override { progressVisible = false; }
    void setPointer(Pointer shape) override { pointer = shape; }
    void processEvents() override { ++eventRounds; }
    void wait(int milliseconds) override { waits << milliseconds; }
    void openInBrowser(const QString& hostFile) override { opened << hostFile; }
    bool openHelp(const QString& hostFile, const QString& topic) override;
    void openAddress(const QString& url) override { openedAddresses << url; }
    bool networkPresent() override { return network; }

    Pointer pointer = Pointer::Default;
    bool progressVisible = false;
    QList<int> progress;  ///< every value shown
    int eventRounds = 0;
    QList<int> waits;  ///< milliseconds, as asked; none of them is waited
    bool network = true;
    QStringList opened;  ///< files given to the browser
    QStringList openedAddresses;
    QStringList helpTopics;  ///< shown out of a help file that is there
    QStringList causes;      ///< causes of the messages shown
    QStringList destroying;  ///< questions whose Yes loses work
    FileRequest lastFileRequest;

  private:
    struct Expected {
        Message message;
        Answer answer;
    };
    struct ExpectedDialog {
        QString title;
        QString chosen;
    };
    QString answerDialog(std::deque<ExpectedDialog>& expected, const FileRequest& request);

    struct ExpectedColor {
        qint32 initial;
        std::optional<qint32> chosen;
    };

    std::deque<Expected> messages_;
    std::deque<ExpectedColor> colors_;
    std::deque<ExpectedDialog> saveDialogs_;
    std::deque<ExpectedDialog> openDialogs_;
    std::deque<ExpectedDialog> folderDialogs_;
};

}  // namespace nubivane::testing
