// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/color_schemes.h"
#include "engine/web/page_content.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace nubivane {

/// The style sheet of a responsive page, since its elements may not carry style themselves. Each
/// function answers the classes that an element of the page gets; what looks alike shares one.
class PageStyle {
  public:
    explicit PageStyle(const PageContent& content);

    QString ofText(const TextLook& look, const BoxLook* box = nullptr);
    QString ofBox(const BoxLook& box);
    QString ofSymbol(const QRect& place, bool hasTooltip);
    QString ofLabel(const LabelContent& label);

    /// The whole sheet, once all classes have been asked for.
    QString sheet() const;

    bool hasDarkScheme() const { return rules_.size() > 1 && rules_[1].scheme.isDark; }
    bool isDark() const { return rules_.front().scheme.isDark; }

  private:
    /// Rules of one class: its declarations in the first scheme, and what differs in each other.
    struct Declarations {
        QString first;
        QStringList others;
    };

    QString classOf(const QString& prefix, const Declarations& declarations);
    QString place(const QRect& box) const;
    QString share(double pixels) const;
    QRgb inkOf(const TextLook& look, const BoxLook* box, const ColorScheme& scheme) const;
    QString rootOf(const ColorScheme& scheme) const;

    const PageContent& content_;
    std::vector<SchemeRule> rules_;
    QHash<QString, QString> classes_;    ///< by their declarations
    QString sheet_;                      ///< rules without a media query
    std::vector<QString> schemeSheets_;  ///< rules of each other scheme
    int sprites_ = 0;
};

}  // namespace nubivane
