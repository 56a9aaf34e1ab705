// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <type_traits>

namespace nubivane {

/// The values of all members that a font dialog knows.
struct FontValues {
    QString FontName;
    qint32 FontSize = 0;  ///< points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;
    bool FontOverline = false;
    bool FontStrikethourht = false;
    qint32 Forecolor = 0;
};

/// Anything that offers the font members: a Label, a title, a forecast item. It is addressed by
/// the names of its members and must outlive this.
class FontObject {
  public:
    template <class Object>
    explicit FontObject(Object& object)
        : read_([&object] {
              return FontValues{object.FontName,          object.FontSize,      object.FontBold,
                                object.FontItalic,        object.FontUnderline, object.FontOverline,
                                object.FontStrikethourht, object.Forecolor};
          }),
          write_([&object](const FontValues& values) {
              object.FontName = values.FontName;
              object.FontSize =
                  static_cast<std::remove_reference_t<decltype(object.FontSize)>>(values.FontSize);
              object.FontBold = values.FontBold;
              object.FontItalic = values.FontItalic;
              object.FontUnderline = values.FontUnderline;
              object.FontOverline = values.FontOverline;
              object.FontStrikethourht = values.FontStrikethourht;
              object.Forecolor = values.Forecolor;
          }) {}

    FontValues values() const { return read_(); }
    void setValues(const FontValues& values) { write_(values); }

  private:
    std::function<FontValues()> read_;
    std::function<void(const FontValues&)> write_;
};

}  // namespace nubivane
