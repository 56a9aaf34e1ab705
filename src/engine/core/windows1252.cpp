// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/windows1252.h"

#include <array>

namespace nubivane {

namespace {

/// Unicode values of the bytes 0x80 to 0x9F. The five bytes that the code page leaves open stand
/// for the control characters of their own number.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The byte of a character, or -1 when the code page lacks it.
int byteOf(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
        return unit;
    }
    for (std::size_t i = 0; i < upperControls.size(); ++i) {
        if (upperControls[i] == unit) {
            return 0x80 + static_cast<int>(i);
        }
    }
    return -1;
}

/// Encodes `text`; `escape(bytes, position)` appends what stands for the character at `position`
/// that the code page lacks and returns how many UTF-16 units it has used.
template <class Escape>
QByteArray encode(const QString& text, Escape escape) {
    QByteArray bytes;
    bytes.reserve(text.size() + text.size() / 16);
    const char16_t* const units = reinterpret_cast<const char16_t*>(text.utf16());
    for (qsizetype i = 0; i < text.size();) {
        // Nearly all of a page is ASCII: such runs are copied by the library.
        qsizetype end = i;
        while (end < text.size() && units[end] < 0x80) {
            ++end;
        }
        if (end > i) {
            bytes += QStringView(text).mid(i, end - i).toLatin1();
            i = end;
            continue;
        }
        const int byte = byteOf(units[i]);
        if (byte >= 0) {
            bytes += static_cast<char>(byte);
            ++i;
        } else {
            i += escape(bytes, i);
        }
    }
    return bytes;
}

}  // namespace

QByteArray toWindows1252Html(const QString& text) {
    return encode(text, [&text](QByteArray& bytes, qsizetype i) {
        const bool pair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t code = pair ? QChar::surrogateToUcs4(text[i], text[i + 1])
                                   : static_cast<char32_t>(text[i].unicode());
        bytes += "&#" + QByteArray::number(static_cast<uint>(code)) + ';';
        return pair ? 2 : 1;
    });
}

QByteArray toWindows1252Script(const QString& text) {
    return encode(text, [&text](QByteArray& bytes, qsizetype i) {
        bytes += "\\u" + QByteArray::number(text[i].unicode(), 16).toUpper().rightJustified(4, '0');
        return 1;
    });
}

}  // namespace nubivane
