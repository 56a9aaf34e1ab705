// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_differences.h"

#include "engine/core/path_text.h"
#include "engine/model/frames.h"
#include "engine/project/value_text.h"

#include <QStringList>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// What a project file holds of a record, as one text.
template <class Record>
QString textOf(const Record& record) {
    QString text;
    forEachValueInFile<Record>(record, &Slot::place, [&text](const Slot&, const auto& value) {
        text += valueText(value) + u'\x1f';
    });
    return text;
}

/// A symbol stands for its picture wherever the collections lie.
QString textOf(cSymbol symbol) {
    const QString& path = symbol.PathFileGif;
    symbol.PathFileGif = getLastFolder(path) + u'\\' + getFileName(path);
    return textOf<cSymbol>(symbol);
}

template <class List>
QStringList textsOf(const List& list) {
    QStringList texts;
    for (const auto& record : list) {
        texts += textOf(record);
    }
    return texts;
}

SpriteDifference compare(QStringList earlier, QStringList now) {
    earlier.sort();
    now.sort();
    QStringList both;
    std::set_intersection(earlier.begin(), earlier.end(), now.begin(), now.end(),
                          std::back_inserter(both));
    return {static_cast<int>(earlier.size() - both.size()),
            static_cast<int>(now.size() - both.size())};
}

QStringList titleOf(const cForecast& forecast) {
    return {textOf<TextLine>(forecast.Title()), textOf<TextLine>(forecast.Subtitle())};
}

QStringList bodyOf(const cForecast& forecast) {
    return QStringList{textOf(forecast.Div())} + textsOf(forecast.Header()) +
           textsOf(forecast.Body());
}

FrameDifference compare(qint32 number, const cFrame& earlier, const cFrame& now) {
    const cForecast& before = earlier.Texts().Forecast();
    const cForecast& after = now.Texts().Forecast();
    return {
        .number = number,
        .labelEarlier = earlier.Texts().Label,
        .labelNow = now.Texts().Label,
        .symbols = compare(textsOf(earlier.Sprites().Symbols()), textsOf(now.Sprites().Symbols())),
        .labels = compare(textsOf(earlier.Sprites().Labels()), textsOf(now.Sprites().Labels())),
        .title = titleOf(before) != titleOf(after),
        .text = bodyOf(before) != bodyOf(after)};
}

}  // namespace

ProjectDifferences differencesOf(const cFrames& earlier, const cFrames& now) {
    ProjectDifferences differences{earlier.Count(), now.Count(), {}};
    for (qint32 i = 1; i <= std::min(earlier.Count(), now.Count()); ++i) {
        const FrameDifference one = compare(i, earlier.Item(i), now.Item(i));
        if (one.labelEarlier != one.labelNow || one.symbols.any() || one.labels.any() ||
            one.title || one.text) {
            differences.frames.push_back(one);
        }
    }
    return differences;
}

}  // namespace nubivane
