// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// The line end of pages and scripts.
inline constexpr QLatin1String LineEnd("\r\n");

/// A text built line by line.
class TextLines {
  public:
    /// Appends a line, or an empty one.
    template <class Text>
    TextLines& operator<<(const Text& line) {
        text_ += line;
        text_ += QLatin1String(LineEnd);
        return *this;
    }
    TextLines& operator<<(const char* line) { return *this << QLatin1String(line); }

    /// Appends text that already has its line ends.
    void append(const QString& text) { text_ += text; }

    const QString& text() const { return text_; }

  private:
    QString text_;
};

/// A number as pages and scripts hold it.
inline QString num(qint64 number) {
    return QString::number(number);
}

/// Says "an empty line here".
inline constexpr QLatin1String EmptyLine("");

}  // namespace nubivane
