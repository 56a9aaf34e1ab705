// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/symbol_index.h"

#include "engine/collections/picture_check.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"

#include <algorithm>

namespace nubivane {

namespace {

QString wordsOf(const QString& name) {
    return name.toLower().replace(u'-', u' ').replace(u'_', u' ');
}

}  // namespace

void SymbolIndex::read(const QStringList& collections) {
    symbols_.clear();
    for (const QString& folder : collections) {
        const QString collection = wordsOf(getFileName(folder));
        for (const QString& name : host_files::fileNames(folder)) {
            if (hasPictureExtension(name)) {
                symbols_.push_back(
                    {folder + u'\\' + name, wordsOf(stripExtension(name)), collection});
            }
        }
    }
}

QStringList SymbolIndex::find(const QString& words) const {
    const QStringList wanted = wordsOf(words).split(u' ', Qt::SkipEmptyParts);
    QStringList byName;
    QStringList byCollection;
    if (wanted.isEmpty()) {
        return {};
    }
    for (const Symbol& symbol : symbols_) {
        bool inName = true;
        const bool found = std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
            const bool here = symbol.name.contains(word);
            inName = inName && here;
            return here || symbol.collection.contains(word);
        });
        if (found) {
            (inName ? byName : byCollection) << symbol.path;
        }
    }
    return byName + byCollection;
}

}  // namespace nubivane
