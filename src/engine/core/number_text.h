// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <optional>

namespace nubivane {

/// Numbers as files and windows write them: decimal digits with an optional sign, an optional
/// fraction and blanks around.

/// The number as it stands, or nothing when the text is none.
std::optional<double> toNumber(QStringView text);

/// The number rounded to a whole one (half to even), or nothing when the text is no number or the
/// result lies outside 16 or 32 bits.
std::optional<qint16> toInt16(QStringView text);
std::optional<qint32> toInt32(QStringView text);

/// The number with its fraction cut off.
std::optional<qint32> integerPart(QStringView text);

/// `numerator` / `denominator` rounded to the nearest whole number, half to even. The denominator
/// is positive.
qint64 roundedQuotient(qint64 numerator, qint64 denominator);

}  // namespace nubivane
