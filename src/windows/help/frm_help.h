// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTabWidget;
class QTreeWidget;

namespace nubivane {

class HelpBook;
class HelpPage;

/// The help's window: contents, index and search at the left, the page at the right. It belongs to
/// no other window and can be read while a dialog waits.
class frmHelp : public QMainWindow {
    Q_OBJECT

  public:
    frmHelp();
    ~frmHelp() override;

    /// Shows a topic of a help file (host path), such as "index.htm", in front of other windows.
    /// False, with nothing shown, when the file cannot be read or has no such topic.
    bool openTopic(const QString& hostFile, const QString& topic);

  Q_SIGNALS:
    /// A link that leads out of the help was clicked.
    void addressFollowed(const QString& url);

  protected:
    bool event(QEvent* event) override;

  private:
    void buildTools();
    QWidget* buildContents();
    QWidget* buildIndex();
    QWidget* buildSearch();
    void buildKeys();

    bool load(const QString& hostFile);
    bool isReadable(const QString& topic) const;
    void fillContents();
    void fillIndex();
    void search(const QString& words);
    void openItem(const QListWidgetItem* item);
    void openHit(const QListWidgetItem* item);
    void pageChanged();
    void zoom(int points);
    void setLetterSize(double points);
    /// Goes with the dialog that waits, if one does, so that this window is not shut with the
    /// others.
    void followModal();

    QTabWidget* tabs_;
    HelpPage* page_;
    QTreeWidget* contents_;
    QLineEdit* indexWord_;
    QListWidget* index_;
    QLineEdit* searchWords_;
    QListWidget* hits_;
    QLabel* noHits_;
    double usualSize_;  ///< of the page's letters, points

    std::unique_ptr<HelpBook> book_;
    QString file_;
    QDateTime fileTime_;
    QPointer<QWindow> modal_;
    QTimer following_;  ///< fires once what is going on with dialogs has been done
};

}  // namespace nubivane
