// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/scripted_shell.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace nubivane::testing {

ScriptedShell::~ScriptedShell() {
    for (const Expected& left : messages_) {
        ADD_FAILURE() << "a message did not come: " << left.message.text.toStdString();
    }
    if (!colors_.empty()) {
        ADD_FAILURE() << "a colour dialog did not come";
    }
    for (const auto* dialogs : {&saveDialogs_, &openDialogs_, &folderDialogs_}) {
        for (const ExpectedDialog& left : *dialogs) {
            ADD_FAILURE() << "a file dialog did not come: " << left.title.toStdString();
        }
    }
}

void ScriptedShell::expectMessage(const QString& text, Icon icon, Buttons buttons, Answer answer) {
    messages_.push_back({{text, icon, buttons, {}}, answer});
}

void ScriptedShell::expectSaveDialog(const QString& title, const QString& chosen) {
    saveDialogs_.push_back({title, chosen});
}

void ScriptedShell::expectOpenDialog(const QString& title, const QString& chosen) {
    openDialogs_.push_back({title, chosen});
}

void ScriptedShell::expectFolderDialog(const QString& title, const QString& chosen) {
    folderDialogs_.push_back({title, chosen});
}

void ScriptedShell::expectColorDialog(qint32 initial, std::optional<qint32> chosen) {
    colors_.push_back({initial, chosen});
}

Answer ScriptedShell::messageBox(const Message& message) {
    if (message.destroys) {
        destroying << message.text;
    }
    causes << message.cause;
    if (messages_.empty()) {
        ADD_FAILURE() << "unexpected message: " << message.text.toStdString() << "\n"
                      << message.cause.toStdString();
        return Answer::Cancel;
    }
    const Expected expected = messages_.front();
    messages_.pop_front();
    EXPECT_EQ(message.text.toStdString(), expected.message.text.toStdString());
    EXPECT_EQ(message.icon, expected.message.icon);
    EXPECT_EQ(message.buttons, expected.message.buttons);
    return expected.answer;
}

QString ScriptedShell::openFileName(const FileRequest& request) {
    return answerDialog(openDialogs_, request);
}

QString ScriptedShell::saveFileName(const FileRequest& request) {
    return answerDialog(saveDialogs_, request);
}

QString ScriptedShell::chooseFolder(const FileRequest& request) {
    return answerDialog(folderDialogs_, request);
}

QString ScriptedShell::answerDialog(std::deque<ExpectedDialog>& expected,
                                    const FileRequest& request) {
    lastFileRequest = request;
    if (expected.empty()) {
        ADD_FAILURE() << "unexpected file dialog: " << request.title.toStdString();
        return {};
    }
    const ExpectedDialog dialog = expected.front();
    expected.pop_front();
    EXPECT_EQ(request.title.toStdString(), dialog.title.toStdString());
    return dialog.chosen;
}

std::optional<qint32> ScriptedShell::chooseColor(qint32 initial) {
    if (colors_.empty()) {
        ADD_FAILURE() << "unexpected colour dialog";
        return std::nullopt;
    }
    const ExpectedColor expected = colors_.front();
    colors_.pop_front();
    EXPECT_EQ(initial, expected.initial);
    return expected.chosen;
}

void ScriptedShell::setProgress(int percent) {
    progressVisible = true;
    progress << percent;
}

bool ScriptedShell::openHelp(const QString& hostFile, const QString& topic) {
    if (!QFileInfo::exists(hostFile)) {
        return false;
    }
    opened << hostFile;
    helpTopics << topic;
    return true;
}

}  // namespace nubivane::testing
