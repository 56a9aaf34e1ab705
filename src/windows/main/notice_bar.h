// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolBar>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace nubivane {

/// A sentence in the bar, with buttons of what can be done about it.
class Notice : public QWidget {
    Q_OBJECT

  public:
    Notice(const QString& sentence, QWidget* parent);

    QString text() const;
    void setText(const QString& sentence);
    QPushButton* addButton(const QString& name, const QString& caption, const QString& hint);

  private:
    QLabel* sentence_;
    QHBoxLayout* row_;
};

/// A bar above the map that tells without a box, each thing on a line of its own. Hidden while
/// there is nothing.
class NoticeBar : public QToolBar {
    Q_OBJECT

  public:
    explicit NoticeBar(QWidget* parent);

    /// A line of its own, which stands until it is taken away.
    Notice* tell(const QString& sentence);
    /// The same with a button that closes it.
    Notice* tellClosable(const QString& sentence);
    /// Null is no notice.
    void remove(Notice* notice);

  private:
    void fit();

    QWidget* lines_;
    QVBoxLayout* column_;
};

}  // namespace nubivane
