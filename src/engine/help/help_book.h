// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/help/chm_file.h"
#include "engine/help/site_map.h"

#include <vector>

namespace nubivane {

/// A page on which all words looked for occur.
struct HelpHit {
    QString title;
    QString page;
    QString excerpt;  ///< what stands around the first of the words
};

/// The help as a reader sees it: pages, contents, index, and a search through all pages.
class HelpBook {
  public:
    /// Reads a compiled help file (host path). Raises `Error` when there is none or it is damaged.
    explicit HelpBook(const QString& hostFile);

    const std::vector<HelpEntry>& contents() const { return contents_; }
    const std::vector<HelpEntry>& index() const { return index_; }  ///< in the order of its words

    /// Names of all pages, in the archive's order.
    const QStringList& pages() const { return pages_; }
    bool hasPage(const QString& name) const { return pages_.contains(name, Qt::CaseInsensitive); }
    bool contains(const QString& name) const { return file_.contains(name); }
    QByteArray read(const QString& name) const { return file_.read(name); }

    /// The pages on which words begin with each of those in `words`; those first that tell most
    /// about them.
    std::vector<HelpHit> search(const QString& words) const;

  private:
    struct PageText {
        QString name;
        QString title;
        QString text;
    };
    const std::vector<PageText>& texts() const;

    ChmFile file_;
    QStringList pages_;
    std::vector<HelpEntry> contents_;
    std::vector<HelpEntry> index_;
    mutable std::vector<PageText> texts_;  ///< made by the first search
};

/// The words of a text that somebody looks for, in lower case.
QStringList searchWords(const QString& text);

/// What a page says below its heading, without its markup, and its title.
QString pageText(const QString& html);
QString pageTitle(const QString& html);

}  // namespace nubivane
