// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"

#include <QList>

#include <ostream>

namespace nubivane::testing {

/// A line of the list of damaged projects.
struct Defect {
    QString name;
    QString expected;  ///< "-100", "-200" or "opens"

    QString file() const { return testFile("engine/project/defects/" + name + ".nvpf"); }
};

inline void PrintTo(const Defect& defect, std::ostream* out) {
    *out << defect.name.toStdString() << " -> " << defect.expected.toStdString();
}

inline QList<Defect> allDefects() {
    QList<Defect> defects;
    for (const QByteArray& line :
         readFile(testFile("engine/project/defects/expected.txt")).split('\n')) {
        const QString text = QString::fromUtf8(line);
        if (text.contains(u'\t')) {
            defects.append({text.section(u'\t', 0, 0), text.section(u'\t', 1)});
        }
    }
    return defects;
}

}  // namespace nubivane::testing
