// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>
#include <QString>

namespace nubivane {

/// The few words that the responsive page says itself.
struct PageWords {
    QString periods;  ///< what the tabs choose from
    QString previous;
    QString next;
    QString play;
    QString pause;
    QString map;
    bool foreign;  ///< English, for want of the page's own language
};

/// The words in the language of a tag (BCP 47).
PageWords pageWords(const QString& language);

}  // namespace nubivane
