// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QStringList>

#include <type_traits>

namespace nubivane::testing {

namespace detail {

inline QString valueText(const QString& value) {
    return '"' + value + '"';
}

template <class T>
requires std::is_arithmetic_v<T> QString valueText(T value) {
    return QString::number(static_cast<qint64>(value));
}

template <class Record>
void addRecord(QStringList& lines, const QString& where, const Record& record) {
    Record::forEachSlot(record, [&](const Slot& slot, const auto& value) {
        lines << where + QLatin1String(slot.name) + " = " + valueText(value);
    });
}

template <class List>
void addList(QStringList& lines, const QString& where, const List& list) {
    int position = 0;
    for (const auto& item : list) {
        addRecord(lines, where + QString::number(++position) + ' ', item);
    }
}

}  // namespace detail

/// Every value of the Frames, one a line, so that a failed comparison names what differs.
inline QStringList modelText(const Workspace& workspace) {
    QStringList lines;
    for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
        const cFrame& frame = workspace.Frames().Item(i);
        const cForecast& forecast = frame.Texts().Forecast();
        const QString where = QStringLiteral("Frame %1 ").arg(i);
        lines << where + "Label = \"" + frame.Texts().Label + '"';
        detail::addRecord(lines, where + "Div ", forecast.Div());
        detail::addRecord(lines, where + "Title ", static_cast<const TextLine&>(forecast.Title()));
        detail::addRecord(lines, where + "Subtitle ",
                          static_cast<const TextLine&>(forecast.Subtitle()));
        detail::addList(lines, where + "Header ", forecast.Header());
        detail::addList(lines, where + "Body ", forecast.Body());
        detail::addList(lines, where + "Symbol ", frame.Sprites().Symbols());
        detail::addList(lines, where + "Label ", frame.Sprites().Labels());
    }
    return lines;
}

/// Names of the collections that are checked.
inline QStringList checkedCollections(const Workspace& workspace) {
    QStringList names;
    for (const cSymbolsCollection& collection : workspace.Status.SymbolsCollection()) {
        if (collection.Checked) {
            names << collection.Name;
        }
    }
    return names;
}

/// All that an opened project consists of: map, collections, Frames and pictures.
inline QStringList projectText(const Workspace& workspace) {
    QStringList lines = modelText(workspace);
    lines << "map " + workspace.Status.CurrentMap;
    lines << "collections " + checkedCollections(workspace).join(u'|');
    for (qint32 i = 1; i <= workspace.pctPanel.Count(); ++i) {
        lines << QStringLiteral("picture %1 ").arg(i) +
                     QString::fromLatin1(workspace.pctPanel.picture(i).originalBytes().toHex());
    }
    return lines;
}

}  // namespace nubivane::testing
