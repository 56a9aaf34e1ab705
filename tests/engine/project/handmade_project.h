// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/picture/image_codec.h"
#include "support/fixtures.h"

#include <QList>

namespace nubivane::testing {

/// A project typed by the test, so that opening is judged without the help of saving. As it stands
/// it is sound and has one Frame without texts and sprites.
struct HandmadeProject {
    QString map = "plain.png";
    QByteArray mapBytes = encodePicture(plainImage({8, 6}, Qt::blue), PictureFormat::Png);
    QList<QByteArray> blocks{encodePicture(plainImage({8, 6}, Qt::red), PictureFormat::Png)};
    QString version = "2.0";
    QString collections;      ///< items of `Collection`
    QStringList frameBodies;  ///< what stands in each `Frame` behind `Subtitle`

    static QString textLine(const QString& element) {
        return QStringLiteral(
                   "<%1><Backcolor>-1</Backcolor><Forecolor>0</Forecolor><Border>0</Border>"
                   "<BorderColor>0</BorderColor><FontName>Arial</FontName><FontSize>24</FontSize>"
                   "<FontBold>False</FontBold><FontItalic>False</FontItalic>"
                   "<FontUnderline>False</FontUnderline><FontOverline>False</FontOverline>"
                   "<FontStrikethourht>False</FontStrikethourht><Align>0</Align><Text></Text></%1>")
            .arg(element);
    }

    static QString symbolItem(const QString& file) {
        return QStringLiteral(
                   "<Item Filename=\"%1\" Height=\"11\" Width=\"12\" Left=\"13\" Top=\"14\" "
                   "Link=\"link\" Tooltip=\"tip\" Note=\"note\"/>")
            .arg(file);
    }

    QString frameElement(qsizetype number) const {
        return QStringLiteral(
                   "<Frame Number=\"%1\" Size=\"%2\" Label=\"Day %1\"><Div><Backcolor>-1"
                   "</Backcolor><Border>0</Border><BorderColor>0</BorderColor></Div>%3%4%5</Frame>")
            .arg(number)
            .arg(blocks[number - 1].size())
            .arg(textLine("Title"), textLine("Subtitle"), frameBodies.value(number - 1));
    }

    QByteArray xml() const {
        QString text = QStringLiteral(
                           "<FILE Frames=\"%1\" Map=\"%2\" Size=\"%3\" Version=\"%4\">"
                           "<Collection>%5</Collection><Frames>")
                           .arg(blocks.size())
                           .arg(map)
                           .arg(mapBytes.size())
                           .arg(version, collections);
        for (qsizetype number = 1; number <= blocks.size(); ++number) {
            text += frameElement(number);
        }
        return (text + "</Frames></FILE>").toUtf8();
    }

    QByteArray data() const { return mapBytes + blocks.join(); }

    /// Writes both files; `hostFile` ends in ".nvpf".
    void write(const QString& hostFile) const { writeWith(hostFile, xml()); }
    void writeWith(const QString& hostFile, const QByteArray& document) const {
        writeFile(hostFile, document);
        writeFile(hostFile.chopped(1) + 'x', data());
    }
};

}  // namespace nubivane::testing
