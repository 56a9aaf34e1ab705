// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"

namespace nubivane::testing {

/// A shell for tests to which the messages are a result: takes any message, gives one answer to
/// all, and writes down in what state the window was when each appeared.
class MessageLog : public ScriptedShell {
  public:
    explicit MessageLog(const RecordingView& view, Answer answer = Answer::Ok)
        : view_(view), answer_(answer) {}

    Answer messageBox(const Message& message) override {
        texts << message.text;
        causes << message.cause;
        pointers << pointer;
        windowEnabled << !isDisabled();
        barVisible << progressVisible;
        return answer_;
    }

    QStringList texts;
    QList<Pointer> pointers;
    QList<bool> windowEnabled;
    QList<bool> barVisible;

  private:
    bool isDisabled() const {
        return view_.calls.lastIndexOf("disable") > view_.calls.lastIndexOf("enable");
    }

    const RecordingView& view_;
    Answer answer_;
};

}  // namespace nubivane::testing
