// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/help/frm_help.h"

#include "engine/core/error.h"
#include "engine/help/help_book.h"
#include "windows/help/frm_help_hits.h"
#include "windows/help/frm_help_page.h"
#include "windows/widgets/dialog_tools.h"
#include "windows/widgets/icons.h"
#include "windows/widgets/one_line.h"
#include "windows/widgets/quiet_color.h"
#include "windows/widgets/screen_room.h"

#include <QFileInfo>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize UsualSize(1080, 740);
constexpr int ListWidth = 270;
constexpr double MostSmaller = 4;  // than the usual letters; points
constexpr double MostLarger = 16;
constexpr QLatin1String HomePage("index.htm");
constexpr int PageRole = Qt::UserRole;

QListWidget* makeList(const char* name, const QString& title, QWidget* parent) {
    auto* list = new QListWidget(parent);
    list->setObjectName(name);
    list->setAccessibleName(title);
    list->setWordWrap(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setUniformItemSizes(false);
    return list;
}

QLineEdit* makeField(const char* name, const QString& hint, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setPlaceholderText(hint);
    field->setAccessibleName(hint);
    field->setClearButtonEnabled(true);
    keepOneLine(*field);
    QPalette colors = field->palette();
    colors.setColor(QPalette::PlaceholderText, quietColor(colors, QPalette::Text, QPalette::Base));
    field->setPalette(colors);
    return field;
}

QWidget* pane(QWidget* field, QWidget* list, QWidget* note = nullptr) {
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(field);
    if (note) {
        column->addWidget(note);
    }
    column->addWidget(list, 1);
    return box;
}

/// The size of letters, also of those given in pixels.
double pointsOf(const QFont& font) {
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

QString withoutPlace(const QString& page) {
    return page.section(u'#', 0, 0);
}

}  // namespace

frmHelp::frmHelp()
    : tabs_(new QTabWidget(this)),
      page_(new HelpPage(this)),
      contents_(new QTreeWidget),
      indexWord_(makeField("indexWord", tr("Word in the index"), this)),
      index_(makeList("index", tr("Index"), this)),
      searchWords_(makeField("searchWords", tr("Words to look for"), this)),
      hits_(makeList("hits", tr("Pages found"), this)),
      noHits_(new QLabel(tr("No page holds all of these words."))),
      usualSize_(pointsOf(page_->font())) {
    setObjectName("frmHelp");
    setWindowTitle(tr("Nubivane Help"));
    setWindowIcon(programIcon(u"help"_s));
    setAttribute(Qt::WA_QuitOnClose, false);  // the program ends with its main window
    tabs_->setObjectName("tabs");
    tabs_->setDocumentMode(true);
    tabs_->addTab(buildContents(), tr("&Contents"));
    tabs_->addTab(buildIndex(), tr("&Index"));
    tabs_->addTab(buildSearch(), tr("&Search"));
    auto* halves = new QSplitter(this);
    halves->addWidget(tabs_);
    halves->addWidget(page_);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    halves->setSizes({ListWidth, UsualSize.width() - ListWidth});
    setCentralWidget(halves);
    buildTools();
    buildKeys();
    connect(page_, &QTextBrowser::sourceChanged, this, [this] { pageChanged(); });
    connect(page_, &HelpPage::addressFollowed, this, &frmHelp::addressFollowed);
    following_.setSingleShot(true);
    connect(&following_, &QTimer::timeout, this, &frmHelp::followModal);
    resize(withinScreen(*this, UsualSize));
}

frmHelp::~frmHelp() {
    page_->setBook(nullptr);
}

void frmHelp::buildTools() {
    auto* tools = new DialogTools("tools", tr("Help"), this);
    tools->setMovable(false);
    QAction* back = tools->add(
        {"btnBack", "help-back", tr("Back"), tr("The page before"), QKeySequence(u"Alt+Left"_s)},
        [this] { page_->backward(); });
    QAction* forward = tools->add({"btnForward", "help-forward", tr("Forward"),
                                   tr("The page after"), QKeySequence(u"Alt+Right"_s)},
                                  [this] { page_->forward(); });
    tools->add(
        {"btnHome", "help-home", tr("Home"), tr("The first page"), QKeySequence(u"Alt+Home"_s)},
        [this] { page_->open(HomePage); });
    tools->addSeparator();
    tools->add({"btnZoomIn", "zoom-in", tr("Larger"), tr("Larger text"), QKeySequence::ZoomIn},
               [this] { zoom(1); });
    tools->add({"btnZoomOut", "zoom-out", tr("Smaller"), tr("Smaller text"), QKeySequence::ZoomOut},
               [this] { zoom(-1); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    addToolBar(tools);
}

QWidget* frmHelp::buildContents() {
    contents_->setObjectName("contents");
    contents_->setAccessibleName(tr("Contents"));
    contents_->setHeaderHidden(true);
    contents_->setFrameShape(QFrame::NoFrame);
    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const QString page = item ? item->data(0, PageRole).toString() : QString();
        if (!page.isEmpty()) {
            page_->open(page);
        }
    });
    return contents_;
}

QWidget* frmHelp::buildIndex() {
    connect(indexWord_, &QLineEdit::textChanged, this, [this] { fillIndex(); });
    connect(indexWord_, &QLineEdit::returnPressed, this, [this] { openItem(index_->item(0)); });
    connect(index_, &QListWidget::itemActivated, this, &frmHelp::openItem);
    connect(index_, &QListWidget::itemClicked, this, &frmHelp::openItem);
    return pane(indexWord_, index_);
}

QWidget* frmHelp::buildSearch() {
    noHits_->setObjectName("noHits");
    noHits_->setWordWrap(true);
    noHits_->hide();
    hits_->setItemDelegate(new HelpHitDelegate(hits_));
    hits_->setResizeMode(QListView::Adjust);  // excerpts are broken anew at another width
    connect(searchWords_, &QLineEdit::textChanged, this, &frmHelp::search);
    connect(searchWords_, &QLineEdit::returnPressed, this, [this] { openHit(hits_->item(0)); });
    connect(hits_, &QListWidget::itemActivated, this, &frmHelp::openHit);
    connect(hits_, &QListWidget::itemClicked, this, &frmHelp::openHit);
    return pane(searchWords_, hits_, noHits_);
}

void frmHelp::buildKeys() {
    const auto key = [this](const QKeySequence& keys, auto handler) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, handler);
    };
    key(QKeySequence::Find, [this] {
        tabs_->setCurrentIndex(2);
        searchWords_->setFocus();
        searchWords_->selectAll();
    });
    key(QKeySequence(u"Ctrl+0"_s), [this] { setLetterSize(usualSize_); });
    key(QKeySequence(u"Ctrl+="_s), [this] { zoom(1); });  // plus without Shift
    key(QKeySequence::Close, [this] { close(); });
    key(QKeySequence(Qt::Key_Escape), [this] { close(); });
}

bool frmHelp::openTopic(const QString& hostFile, const QString& topic) {
    if (!load(hostFile) || !isReadable(topic)) {
        return false;
    }
    page_->open(topic);
    show();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    followModal();
    raise();
    activateWindow();
    page_->setFocus();
    return true;
}

bool frmHelp::isReadable(const QString& topic) const {
    const QString page = withoutPlace(topic);
    try {
        return book_->hasPage(page) && !book_->read(page).isEmpty();
    } catch (const Error&) {
        return false;
    }
}

/// Reads the file unless it is the one that is open.
bool frmHelp::load(const QString& hostFile) {
    const QDateTime time = QFileInfo(hostFile).lastModified();
    if (book_ && hostFile == file_ && time == fileTime_) {
        return true;
    }
    std::unique_ptr<HelpBook> book;
    try {
        book = std::make_unique<HelpBook>(hostFile);
    } catch (const Error&) {
        return false;
    }
    page_->setBook(book.get());
    book_ = std::move(book);
    file_ = hostFile;
    fileTime_ = time;
    fillContents();
    fillIndex();
    searchWords_->clear();
    return true;
}

void frmHelp::fillContents() {
    const QSignalBlocker quiet(contents_);
    contents_->clear();
    std::vector<QTreeWidgetItem*> path;
    for (const HelpEntry& entry : book_->contents()) {
        path.resize(std::min(path.size(), static_cast<std::size_t>(entry.depth)));
        auto* item =
            path.empty() ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(path.back());
        item->setText(0, entry.title);
        item->setData(0, PageRole, entry.page);
        path.push_back(item);
    }
    contents_->expandAll();
}

void frmHelp::fillIndex() {
    index_->clear();
    if (!book_) {
        return;
    }
    const QString word = indexWord_->text().trimmed();
    for (const HelpEntry& entry : book_->index()) {
        if (entry.title.contains(word, Qt::CaseInsensitive)) {
            auto* item = new QListWidgetItem(entry.title, index_);
            item->setData(PageRole, entry.page);
        }
    }
}

void frmHelp::search(const QString& words) {
    hits_->clear();
    if (book_) {
        for (const HelpHit& hit : book_->search(words)) {
            auto* item = new QListWidgetItem(hit.title, hits_);
            item->setData(PageRole, hit.page);
            item->setData(HelpHitDelegate::ExcerptRole, hit.excerpt);
        }
    }
    noHits_->setVisible(hits_->count() == 0 && !searchWords(words).isEmpty());
}

void frmHelp::openItem(const QListWidgetItem* item) {
    if (item) {
        page_->open(item->data(PageRole).toString());
    }
}

void frmHelp::openHit(const QListWidgetItem* item) {
    openItem(item);
    if (item) {
        page_->mark(searchWords(searchWords_->text()));
    }
}

void frmHelp::pageChanged() {
    const QString title = page_->documentTitle();
    setWindowTitle(title.isEmpty() ? tr("Nubivane Help") : title + tr(" - Nubivane Help"));
    const QSignalBlocker quiet(contents_);
    QTreeWidgetItemIterator each(contents_);
    for (; *each; ++each) {
        const QString page = withoutPlace((*each)->data(0, PageRole).toString());
        if (page.compare(page_->page(), Qt::CaseInsensitive) == 0) {
            contents_->setCurrentItem(*each);
            contents_->scrollToItem(*each);
            return;
        }
    }
    contents_->setCurrentItem(nullptr);
}

/// The size is asked of the page, whose letters the wheel with Ctrl changes too.
void frmHelp::zoom(int points) {
    setLetterSize(pointsOf(page_->font()) + points);
}

void frmHelp::setLetterSize(double points) {
    QFont font = page_->font();
    font.setPointSizeF(std::clamp(points, usualSize_ - MostSmaller, usualSize_ + MostLarger));
    page_->setFont(font);
}

bool frmHelp::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) {
        // Only after the dialog has become the window that all others wait for.
        following_.start();
    }
    return QMainWindow::event(event);
}

void frmHelp::followModal() {
    QWindow* modal = QGuiApplication::modalWindow();
    if (!windowHandle() || modal == modal_) {
        return;
    }
    if (modal_) {
        disconnect(modal_, nullptr, this, nullptr);
    }
    modal_ = modal;
    windowHandle()->setTransientParent(modal);
    if (modal) {
        const auto again = [this] { following_.start(); };
        connect(modal, &QWindow::visibleChanged, this, again);
        connect(modal, &QObject::destroyed, this, again);
    }
}

}  // namespace nubivane
