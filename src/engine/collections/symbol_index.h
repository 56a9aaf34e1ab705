// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace nubivane {

/// Every symbol of every collection by its words, to be found by parts of them. It holds names
/// alone: no picture is opened.
class SymbolIndex {
  public:
    /// Reads the names anew from the folders of collections (paths with backslashes).
    void read(const QStringList& collections);

    /// The paths of the symbols in whose name, or whose collection's name, each word occurs,
    /// without regard to case; those whose own name holds all of them first, then by collection and
    /// name.
    QStringList find(const QString& words) const;

    qsizetype count() const { return static_cast<qsizetype>(symbols_.size()); }

  private:
    struct Symbol {
        QString path;
        QString name;        ///< lower case, words parted by blanks
        QString collection;  ///< the same
    };
    std::vector<Symbol> symbols_;
};

}  // namespace nubivane
