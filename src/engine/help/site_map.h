// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace nubivane {

/// A line of the contents or of the index.
struct HelpEntry {
    QString title;
    QString page;   ///< may be empty, for a heading, and may end in "#" and a place on the page
    int depth = 0;  ///< 0 for the outermost
};

/// The lines of a contents or index file of a help project, as far as there are any.
std::vector<HelpEntry> readSiteMap(const QString& html);

/// A text with its character references replaced by what they stand for.
QString withoutReferences(const QString& html);

}  // namespace nubivane
