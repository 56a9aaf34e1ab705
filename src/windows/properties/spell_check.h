// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTextCursor>

#include <vector>

class QContextMenuEvent;
class QMenu;

namespace nubivane {

class Shell;
class SpellHighlighter;
class Spelling;
class WrappedField;

/// Checks the spelling in the fields of a window: waves under misspelt words, and in the menus of
/// the fields other words for one, a way to add it to the dictionary, and the language.
class SpellCheck : public QObject {
    Q_OBJECT

  public:
    SpellCheck(Spelling& spelling, Shell& shell, QObject* parent);

    void watch(WrappedField& field);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showMenu(WrappedField& field, const QContextMenuEvent& event);
    void addWords(QMenu& menu, const QTextCursor& word);
    void addLanguages(QMenu& menu);
    /// Selects the misspelt word in which a cursor stands; selects nothing where there is none.
    QTextCursor misspeltAt(const QTextCursor& place) const;
    void learn(const QString& word);
    void checkAnew();

    Spelling& spelling_;
    Shell& shell_;
    std::vector<SpellHighlighter*> highlighters_;
};

}  // namespace nubivane
