// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace nubivane {

enum class Icon { None, Critical, Question, Exclamation, Information };
enum class Buttons {
    Ok,
    YesNo,
    YesNoCancel,
    YesNoSaveAs,  ///< under another name is the third way out
};
enum class Answer { Ok, Yes, No, Cancel, SaveAs };
enum class Pointer { Default, Hourglass, ArrowWithHourglass };

/// What a message box shows. `cause` is for reports and the command line; a window need not show
/// it.
struct Message {
    QString text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    QString cause;
    bool destroys = false;  ///< Yes loses work for good: No is what Enter presses
};

/// What a file dialog is asked for. Paths have backslashes.
struct FileRequest {
    QString title;
    QString folder;
    QString filter;  ///< captions and patterns in turn, each ended by "|"
    bool confirmOverwrite = false;
    bool peoplesOwn = false;  ///< for files that people keep: a hidden folder is no place for them
};

/// The person in front of the engine: the only road by which it asks or tells anything. Windows,
/// the command line and tests each have a shell of their own.
class Shell {
  public:
    Shell() = default;
    virtual ~Shell() = default;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    virtual Answer messageBox(const Message& message) = 0;

    /// The path chosen, with backslashes; empty after Cancel.
    virtual QString openFileName(const FileRequest& request) = 0;
    virtual QString saveFileName(const FileRequest& request) = 0;
    /// The folder chosen, there or new; `filter` means nothing.
    virtual QString chooseFolder(const FileRequest& request) = 0;

    /// The colour chosen, red in the low byte, by a dialog that starts with `initial` (-1: with
    /// none in particular); nothing after Cancel.
    virtual std::optional<qint32> chooseColor(qint32 initial) = 0;

    /// The progress bar of the main window, 0 to 100, shown by the first call.
    virtual void setProgress(int percent) = 0;
    virtual void hideProgress() = 0;

    virtual void setPointer(Pointer pointer) = 0;
    /// Lets pending events run.
    virtual void processEvents() = 0;
    /// Waits, letting events run.
    virtual void wait(int milliseconds) = 0;

    /// Asks the system to open a file (host path) with the program meant for it.
    virtual void openInBrowser(const QString& hostFile) = 0;
    /// Shows a topic of a compiled help file (host path). False, with nothing shown, when there is
    /// no such file or it has no such topic.
    virtual bool openHelp(const QString& hostFile, const QString& topic) = 0;
    /// Asks the system to open an address of the web.
    virtual void openAddress(const QString& url) = 0;
    /// Whether the machine has any network beyond itself.
    virtual bool networkPresent() = 0;

  private:
    friend class HourglassGuard;
    int hourglasses_ = 0;
};

/// Shows the progress bar while it lives.
class ProgressGuard {
  public:
    ProgressGuard(Shell& shell, int percent) : shell_(shell) { shell_.setProgress(percent); }
    ~ProgressGuard() { shell_.hideProgress(); }
    ProgressGuard(const ProgressGuard&) = delete;
    ProgressGuard& operator=(const ProgressGuard&) = delete;

  private:
    Shell& shell_;
};

/// Shows the hourglass while it lives. A command may call others that show it themselves: the
/// outermost one takes it away.
class HourglassGuard {
  public:
    explicit HourglassGuard(Shell& shell) : shell_(shell) {
        if (shell_.hourglasses_++ == 0) {
            shell_.setPointer(Pointer::Hourglass);
        }
    }
    ~HourglassGuard() {
        if (--shell_.hourglasses_ == 0) {
            shell_.setPointer(Pointer::Default);
        }
    }
    HourglassGuard(const HourglassGuard&) = delete;
    HourglassGuard& operator=(const HourglassGuard&) = delete;

  private:
    Shell& shell_;
};

}  // namespace nubivane
