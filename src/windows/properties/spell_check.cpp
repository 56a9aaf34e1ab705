// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/spell_check.h"

#include "engine/core/error.h"
#include "engine/core/shell.h"
#include "engine/spelling/spelling.h"
#include "windows/widgets/spell_highlighter.h"
#include "windows/widgets/wrapped_field.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QLocale>
#include <QMenu>
#include <QTextBlock>

#include <memory>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// "British English (en_GB)".
QString captionOf(const QString& language) {
    return u"%1 (%2)"_s.arg(QLocale(language).nativeLanguageName(), language);
}

}  // namespace

SpellCheck::SpellCheck(Spelling& spelling, Shell& shell, QObject* parent)
    : QObject(parent), spelling_(spelling), shell_(shell) {}

void SpellCheck::watch(WrappedField& field) {
    highlighters_.push_back(new SpellHighlighter(*field.document(), spelling_));
    // The mouse's way leads over the viewport, the keyboard's does not.
    field.installEventFilter(this);
    field.viewport()->installEventFilter(this);
}

bool SpellCheck::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu && !spelling_.languages().isEmpty()) {
        auto* field = qobject_cast<WrappedField*>(watched);
        if (!field) {
            field = qobject_cast<WrappedField*>(watched->parent());
        }
        if (field) {
            showMenu(*field, static_cast<const QContextMenuEvent&>(*event));
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void SpellCheck::showMenu(WrappedField& field, const QContextMenuEvent& event) {
    const bool byMouse = event.reason() == QContextMenuEvent::Mouse;
    const QTextCursor place = byMouse ? field.cursorForPosition(event.pos()) : field.textCursor();
    QMenu* menu = field.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addWords(*menu, misspeltAt(place));
    addLanguages(*menu);
    menu->popup(byMouse ? event.globalPos()
                        : field.viewport()->mapToGlobal(field.cursorRect().bottomLeft()));
}

QTextCursor SpellCheck::misspeltAt(const QTextCursor& place) const {
    QTextCursor word(place);
    word.clearSelection();
    const QTextBlock block = place.block();
    for (const WordPlace& each : spelling_.misspelt(block.text())) {
        if (each.start <= place.positionInBlock() && place.positionInBlock() <= each.end()) {
            word.setPosition(block.position() + static_cast<int>(each.start));
            word.setPosition(block.position() + static_cast<int>(each.end()),
                             QTextCursor::KeepAnchor);
            break;
        }
    }
    return word;
}

/// Above all else in the menu: for them it was opened.
void SpellCheck::addWords(QMenu& menu, const QTextCursor& word) {
    if (!word.hasSelection()) {
        return;
    }
    QAction* const first = menu.actions().value(0);
    const auto add = [&](const QString& caption, const auto& chosen) {
        auto* action = new QAction(QString(caption).replace(u'&', "&&"_L1), &menu);
        connect(action, &QAction::triggered, this, chosen);
        menu.insertAction(first, action);
        return action;
    };
    const QStringList suggestions = spelling_.suggestions(word.selectedText());
    for (const QString& suggestion : suggestions) {
        QAction* action =
            add(suggestion, [word, suggestion] { QTextCursor(word).insertText(suggestion); });
        QFont font = action->font();
        font.setBold(true);
        action->setFont(font);
    }
    if (suggestions.isEmpty()) {
        add(tr("No other word is known"), [] {})->setEnabled(false);
    }
    add(tr("Add to dictionary"), [this, text = word.selectedText()] { learn(text); });
    menu.insertSeparator(first);
}

void SpellCheck::addLanguages(QMenu& menu) {
    menu.addSeparator();
    QMenu* languages = menu.addMenu(tr("Spelling"));
    auto* group = new QActionGroup(languages);
    const auto add = [&](const QString& caption, const QString& language, bool used) {
        QAction* action = group->addAction(languages->addAction(caption));
        action->setCheckable(true);
        action->setChecked(used);
        connect(action, &QAction::triggered, this, [this, language] {
            spelling_.setLanguage(language);
            checkAnew();
        });
    };
    const QString used = spelling_.language();
    for (const QString& language : spelling_.languages()) {
        add(captionOf(language), language, language == used);
    }
    add(tr("Off"), Spelling::none(), used.isEmpty());
}

void SpellCheck::learn(const QString& word) {
    try {
        spelling_.add(word);
    } catch (const Error& error) {
        shell_.messageBox({tr("The word could not be added to the dictionary."), Icon::Critical,
                           Buttons::Ok, error.cause()});
    }
    checkAnew();
}

void SpellCheck::checkAnew() {
    for (SpellHighlighter* highlighter : highlighters_) {
        highlighter->rehighlight();
    }
}

}  // namespace nubivane
