// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/help/help_error.h"

#include <QByteArrayView>

namespace nubivane {

/// Takes numbers, low byte first, and texts off the front of bytes. Raises `Error` when there are
/// not enough.
class ByteReader {
  public:
    explicit ByteReader(QByteArrayView bytes) : rest_(bytes) {}

    QByteArrayView take(qint64 count) {
        if (count < 0 || count > rest_.size()) {
            throw damagedHelp("it ends too soon");
        }
        const QByteArrayView taken = rest_.first(static_cast<qsizetype>(count));
        rest_ = rest_.sliced(static_cast<qsizetype>(count));
        return taken;
    }

    void skip(qint64 count) { take(count); }

    void expect(const char* signature) {
        if (take(static_cast<qint64>(qstrlen(signature))) != QByteArrayView(signature)) {
            throw damagedHelp("a part does not begin with its name");
        }
    }

    quint32 number32() { return static_cast<quint32>(little(4)); }

    /// A size or position. None of a file in memory comes near the sign bit.
    qint64 number64() {
        const quint64 value = little(8);
        if (value > static_cast<quint64>(MaxNumber)) {
            throw damagedHelp("a number without bounds");
        }
        return static_cast<qint64>(value);
    }

  private:
    static constexpr qint64 MaxNumber = Q_INT64_C(1) << 48;

    quint64 little(int count) {
        const QByteArrayView taken = take(count);
        quint64 value = 0;
        for (int i = count - 1; i >= 0; --i) {
            value = value << 8 | static_cast<quint8>(taken[i]);
        }
        return value;
    }

    QByteArrayView rest_;
};

}  // namespace nubivane
