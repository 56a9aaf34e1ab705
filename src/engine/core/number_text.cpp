// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/number_text.h"

#include <QString>

#include <cmath>
#include <limits>

namespace nubivane {

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// The value of a text of the form [+-]digits[.digits] with white space around.
std::optional<double> parse(QStringView text) {
    text = text.trimmed();
    QStringView rest = text;
    if (rest.startsWith(u'+') || rest.startsWith(u'-')) {
        rest = rest.mid(1);
    }
    qsizetype digits = 0;
    bool point = false;
    for (const QChar c : rest) {
        if (isDigit(c)) {
            ++digits;
        } else if (c == u'.' && !point) {
            point = true;
        } else {
            return std::nullopt;
        }
    }
    if (digits == 0) {
        return std::nullopt;
    }
    // Whole numbers, nearly all there are, need no floating-point reading.
    return point || digits > 15 ? text.toDouble() : static_cast<double>(text.toLongLong());
}

template <class T>
std::optional<T> narrow(std::optional<double> whole) {
    if (!whole || *whole < std::numeric_limits<T>::min() ||
        *whole > std::numeric_limits<T>::max()) {
        return std::nullopt;
    }
    return static_cast<T>(*whole);
}

/// Half to even in the default rounding mode.
std::optional<double> rounded(QStringView text) {
    const std::optional<double> value = parse(text);
    return value ? std::optional(std::nearbyint(*value)) : std::nullopt;
}

}  // namespace

std::optional<double> toNumber(QStringView text) {
    return parse(text);
}

std::optional<qint16> toInt16(QStringView text) {
    return narrow<qint16>(rounded(text));
}

std::optional<qint32> toInt32(QStringView text) {
    return narrow<qint32>(rounded(text));
}

std::optional<qint32> integerPart(QStringView text) {
    const std::optional<double> value = parse(text);
    return narrow<qint32>(value ? std::optional(std::trunc(*value)) : std::nullopt);
}

qint64 roundedQuotient(qint64 numerator, qint64 denominator) {
    qint64 quotient = numerator / denominator;
    qint64 rest = numerator % denominator;
    if (rest < 0) {
        rest += denominator;
        --quotient;
    }
    const qint64 twice = 2 * rest;
    if (twice > denominator || (twice == denominator && quotient % 2 != 0)) {
        ++quotient;
    }
    return quotient;
}

}  // namespace nubivane
