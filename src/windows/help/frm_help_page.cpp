// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/help/frm_help_page.h"

#include "engine/core/error.h"
#include "engine/help/help_book.h"
#include "engine/help/page_guard.h"

#include <QBuffer>
#include <QEvent>
#include <QImageReader>
#include <QTextCursor>

namespace nubivane {

namespace {

constexpr qint64 MostPixels = 32 << 20;      // of all pictures on a page
constexpr qsizetype LongestSheet = 1 << 16;  // bytes
constexpr int MostMarks = 500;

QUrl urlOf(const QString& page) {
    QUrl url = QUrl(page);
    url.setScheme(QStringLiteral("help"));
    url.setPath(u'/' + url.path());
    return url;
}

QColor mixed(const QColor& first, const QColor& second, double share) {
    const auto between = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return QColor(between(first.red(), second.red()), between(first.green(), second.green()),
                  between(first.blue(), second.blue()));
}

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
    setObjectName("page");
    setAccessibleName(tr("Page"));
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpPage::follow);
    connect(this, &QTextBrowser::sourceChanged, this, [this] { setExtraSelections({}); });
}

void HelpPage::setBook(const HelpBook* book) {
    book_ = book;
    base_.clear();
    setSource({});
    clear();
    clearHistory();
}

void HelpPage::open(const QString& page) {
    setSource(urlOf(page));
}

QString HelpPage::page() const {
    return base_.path().mid(1);
}

void HelpPage::follow(const QUrl& link) {
    const QUrl target = base_.resolved(link);
    if (target.scheme() == u"help") {
        if (book_ && book_->hasPage(target.path().mid(1))) {
            setSource(target);
        }
    } else if (target.scheme() == u"https" || target.scheme() == u"http" ||
               target.scheme() == u"mailto") {
        Q_EMIT addressFollowed(target.toString());
    }
}

QVariant HelpPage::loadResource(int type, const QUrl& name) {
    const QUrl target = base_.resolved(name);
    const QString file = target.path().mid(1);
    if (!book_ || target.scheme() != u"help" || !book_->contains(file)) {
        return {};
    }
    try {
        switch (type) {
            case QTextDocument::ImageResource:
                return picture(book_->read(file));
            case QTextDocument::StyleSheetResource:
                return QByteArray(book_->read(file).left(LongestSheet) + themeSheet());
            case QTextDocument::HtmlResource: {
                const QByteArray html = book_->read(file);
                if (!isHarmlessPage(html)) {
                    return {};
                }
                pixelsLeft_ = MostPixels;
                base_ = target.adjusted(QUrl::RemoveFragment);
                return html;
            }
            default:
                return {};
        }
    } catch (const Error&) {
        return {};  // a page or picture that cannot be read stays empty
    }
}

/// A picture, unless those of the page are too large together.
QImage HelpPage::picture(QByteArray bytes) {
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    const qint64 pixels = static_cast<qint64>(size.width()) * size.height();
    if (!size.isValid() || pixels > pixelsLeft_) {
        return {};
    }
    pixelsLeft_ -= pixels;
    return reader.read();
}

QByteArray HelpPage::themeSheet() const {
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    const QColor accent = palette().color(QPalette::Link);
    return QStringLiteral(
               "\nbody, p, li, td { color: %1 } a { color: %2 } h1, h2, h3 { color: %3 }"
               "\nth { background-color: %4; color: %1 } .note { background-color: %5 }"
               "\ncode, .key { background-color: %4; color: %1 } .faint { color: %6 }"
               "\ntd, th { border: 1px solid %7 } .note td { border: 0 }"
               "\nbody, p, li, td, th, h1, h2, h3 { font-family: \"%8\" }")
        .arg(text.name(), accent.name(), mixed(text, accent, 0.55).name(),
             mixed(base, text, 0.10).name(), mixed(base, accent, 0.13).name(),
             mixed(text, base, 0.35).name(), mixed(base, text, 0.30).name(), font().family())
        .toUtf8();
}

void HelpPage::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && book_ && !source().isEmpty()) {
        reload();
    }
}

void HelpPage::mark(const QStringList& words) {
    QList<ExtraSelection> marks;
    for (const QString& word : words) {
        for (QTextCursor at = document()->find(word); !at.isNull() && marks.size() < MostMarks;
             at = document()->find(word, at)) {
            const QChar before = document()->characterAt(at.selectionStart() - 1);
            if (!before.isLetterOrNumber()) {
                ExtraSelection mark;
                mark.cursor = at;
                mark.format.setBackground(QColor(0xff, 0xd8, 0x66));
                mark.format.setForeground(Qt::black);
                marks << mark;
            }
        }
    }
    setExtraSelections(marks);
}

}  // namespace nubivane
