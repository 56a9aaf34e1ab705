// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QElapsedTimer>

class QBoxLayout;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace nubivane {

class GifAnimator;
class PathLabel;
class Workspace;

/// The small window in front of an upload: what it is doing, how far it is, and a button to stop
/// it. It goes only when the run lets it go.
class frmWait : public QDialog {
    Q_OBJECT

  public:
    frmWait(const Workspace& workspace, QWidget* owner);

    /// Shows the window; the program goes on meanwhile.
    void Init(const QString& caption);
    void setInfo(const QString& text);
    void setProgress(int percent);
    /// Bytes sent so far, and all that have to be sent.
    void setAmount(qint64 sent, qint64 total);
    /// What has to be sent: so many files of all, and their bytes.
    void setChosen(qsizetype files, qsizetype all, qint64 bytes);
    /// A line of the conversation with the server, shown among the details.
    void addLine(const QString& line);
    /// The last of these lines.
    QString conversation() const;
    /// Says that the password has travelled in clear.
    void showOpenLock();
    void disableCancel();

    void reject() override {}  // an upload under way is left by its button alone

  Q_SIGNALS:
    /// The Cancel button was pressed.
    void cancelled();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QBoxLayout* makeWarning();
    void makeDetails();

    const Workspace& workspace_;
    GifAnimator* pctUpload_;
    PathLabel* lblInfo_;
    QProgressBar* ProgressBar_;
    QLabel* lblAmount_;  ///< bytes, speed and time left
    QLabel* lblChosen_;
    QLabel* imgLock_ = nullptr;
    QLabel* lblInClear_;
    QPlainTextEdit* txtConversation_;
    QPushButton* cmdDetails_;
    QElapsedTimer clock_;
    QPushButton* cmdCancel_;
};

}  // namespace nubivane
