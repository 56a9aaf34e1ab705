// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QLatin1String>
#include <QString>

#include <span>

namespace nubivane {

/// The colours that pages can show: 32-bit integers (red in the low byte) with the web colour each
/// stands for. The first row, -1, is "none" and gives "-1".
class ColorTable {
  public:
    struct Row {
        qint32 color;
        const char* webColor;  ///< "#RRGGBB"
    };

    ColorTable();

    /// All rows in their order.
    std::span<const Row> rows() const;

    /// The web colour of a key such as "K255". Raises `Error` (InvalidArgument) for a key that is
    /// not in the table.
    QString Item(const QString& key) const;
    /// The same for the number.
    QString webColor(qint32 color) const;

    /// "K" and the decimal number.
    static QString keyOf(qint32 color);

  private:
    QHash<qint32, QLatin1String> byColor_;
};

}  // namespace nubivane
