// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>
#include <QUrl>

namespace nubivane {

class HelpBook;

/// Shows pages of the help. Everything a page refers to comes out of the help file: nothing on disk
/// or on the net is looked at.
class HelpPage : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpPage(QWidget* parent);

    /// Pages come from another book; the way back forgets the old one's.
    void setBook(const HelpBook* book);

    void open(const QString& page);
    /// The page shown, without the place on it.
    QString page() const;

    /// Marks where words begin with one of these, on this page until another comes.
    void mark(const QStringList& words);

    QVariant loadResource(int type, const QUrl& name) override;

  Q_SIGNALS:
    /// A link that leads out of the help was clicked.
    void addressFollowed(const QString& url);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void follow(const QUrl& link);
    QImage picture(QByteArray bytes);
    /// Colours and letters that suit the window.
    QByteArray themeSheet() const;

    const HelpBook* book_ = nullptr;
    qint64 pixelsLeft_ = 0;  ///< that pictures of this page may still have
    QUrl base_;  ///< of the page shown; `source` is still that of the page before while one loads
};

}  // namespace nubivane
