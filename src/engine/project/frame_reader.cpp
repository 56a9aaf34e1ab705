// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/frame_reader.h"

#include "engine/core/host_files.h"
#include "engine/core/number_text.h"
#include "engine/core/picture_limits.h"
#include "engine/core/program_folder.h"
#include "engine/project/project_error.h"

#include <QXmlStreamReader>

#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Values of one element by position, converted to what their slots hold. Works on the attributes
/// of an element or on the texts of its children. Raises `Error`.
template <class Values>
class Slots {
  public:
    Slots(const Values& values, QStringView element) : values_(values), element_(element) {}

    QString text(qsizetype i) const { return value(i).toString(); }
    qint32 int32(qsizetype i) const { return converted(i, toInt32(value(i)), "32-bit number"); }
    qint32 whole(qsizetype i) const { return converted(i, integerPart(value(i)), "32-bit number"); }

    /// Fills the slots of a record that stand in files, in the order of the values: what stands
    /// before a value that is wrong is taken over.
    template <class Record>
    void readInto(Record& record) const {
        forEachValueInFile<Record>(record, &Slot::readFrom,
                                   [this](const Slot& slot, auto& member) { read(slot, member); });
    }

  private:
    void read(const Slot& slot, QString& member) const { member = text(slot.readFrom); }
    void read(const Slot& slot, bool& member) const { member = flag(slot.readFrom); }
    void read(const Slot& slot, qint16& member) const { member = int16(slot.readFrom); }
    void read(const Slot& slot, qint32& member) const {
        member = slot.narrow ? int16(slot.readFrom) : int32(slot.readFrom);
    }

    qint16 int16(qsizetype i) const { return converted(i, toInt16(value(i)), "16-bit number"); }

    bool flag(qsizetype i) const {
        const QStringView text = value(i).trimmed();
        if (text.compare(u"True", Qt::CaseInsensitive) == 0) {
            return true;
        }
        if (text.compare(u"False", Qt::CaseInsensitive) == 0) {
            return false;
        }
        return converted(i, toInt32(text), "truth value") != 0;
    }

    QStringView value(qsizetype i) const {
        if (i >= values_.size()) {
            throw damagedProject(QStringLiteral("%1 lacks its value %2").arg(element_).arg(i + 1));
        }
        if constexpr (std::is_same_v<Values, QXmlStreamAttributes>) {
            return values_[i].value();
        } else {
            return values_[i];
        }
    }

    template <class T>
    T converted(qsizetype i, std::optional<T> number, const char* kind) const {
        if (!number) {
            throw damagedProject(QStringLiteral("value %1 of %2 is no %3: \"%4\"")
                                     .arg(i + 1)
                                     .arg(element_, QLatin1String(kind), value(i).left(40)));
        }
        return *number;
    }

    const Values& values_;
    QStringView element_;
};

/// `Number` reaches sprites as their 16-bit `Frame`.
qint16 spriteFrame(qint32 number) {
    if (number > std::numeric_limits<qint16>::max()) {
        throw damagedProject(u"the Frame's number is too large for its sprites"_s);
    }
    return static_cast<qint16>(number);
}

}  // namespace

FrameReader::FrameReader(QXmlStreamReader& xml, const ProgramFolder& folder,
                         ProjectDocument& document)
    : xml_(xml), folder_(folder), document_(document) {}

qint32 FrameReader::read() {
    cFrame& frame = document_.model->Frames().Add();
    {
        const QXmlStreamAttributes attributes = xml_.attributes();
        const Slots values(attributes, u"Frame");
        number_ = values.whole(0);
        if (number_ < 0 || number_ > document_.frames) {
            throw damagedProject(
                QStringLiteral("a Frame's number is %1 of %2").arg(number_).arg(document_.frames));
        }
        const qint32 size = values.int32(1);
        if (size < 0) {
            throw damagedProject(u"a Frame's size is negative"_s);
        }
        document_.sizes.insert(number_, size);
        frame.Texts().Label = values.text(2);
    }

    cForecast& forecast = frame.Texts().Forecast();
    bool hasDiv = false;
    bool hasTitle = false;
    bool hasSubtitle = false;
    while (xml_.readNextStartElement()) {
        const auto name = xml_.qualifiedName();
        if (name == u"Div" && !std::exchange(hasDiv, true)) {
            readChildren(forecast.Div(), u"Div");
        } else if (name == u"Title" && !std::exchange(hasTitle, true)) {
            readChildren(forecast.Title(), u"Title or Subtitle");
        } else if (name == u"Subtitle" && !std::exchange(hasSubtitle, true)) {
            readChildren(forecast.Subtitle(), u"Title or Subtitle");
        } else if (name == u"Header") {
            readTextItems(forecast.Header());
        } else if (name == u"Body") {
            readTextItems(forecast.Body());
        } else if (name == u"Symbol") {
            readSymbols(frame.Sprites().Symbols());
        } else if (name == u"Label") {
            readLabels(frame.Sprites().Labels());
        } else {
            xml_.skipCurrentElement();
        }
    }
    return number_;
}

template <class Record>
void FrameReader::readChildren(Record& record, QStringView element) {
    const QStringList texts = readChildTexts(valuesInFile(record));
    Slots(texts, element).readInto(record);
}

template <class Items>
void FrameReader::readTextItems(Items& items) {
    while (xml_.readNextStartElement()) {
        typename Items::Record item{{.IndexFontSize = 1}};
        const QXmlStreamAttributes attributes = xml_.attributes();
        Slots(attributes, u"Header or Body").readInto(item);
        items.add(item);
        xml_.skipCurrentElement();
    }
}

void FrameReader::readSymbols(cSymbols& symbols) {
    const qint16 frame = spriteFrame(number_);
    qint32 index = symbols.Count() + 1;
    while (xml_.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml_.attributes();
        const Slots values(attributes, u"Symbol");
        // A Symbol without its file is passed over, whatever its other values are.
        const QString path = findSymbol(values.text(0));
        if (path.isEmpty()) {
            document_.missingSymbols = true;
        } else {
            cSymbol symbol{.Name = u"gifSymbol"_s, .Frame = frame, .Index = index};
            values.readInto(symbol);
            symbol.FileGif = path;
            symbol.PathFileGif = path;
            symbols.add(std::move(symbol));
            ++index;
        }
        xml_.skipCurrentElement();
    }
}

void FrameReader::readLabels(cLabels& labels) {
    const qint16 frame = spriteFrame(number_);
    qint32 index = labels.Count() + 1;
    while (xml_.readNextStartElement()) {
        cLabel label{.Name = u"lblTesto"_s, .Index = index, .Frame = frame};
        const QXmlStreamAttributes attributes = xml_.attributes();
        Slots(attributes, u"Label").readInto(label);
        labels.add(std::move(label));
        ++index;
        xml_.skipCurrentElement();
    }
}

QStringList FrameReader::readChildTexts(qsizetype needed) {
    QStringList texts;
    while (xml_.readNextStartElement()) {
        if (texts.size() < needed) {
            texts += readText();
        } else {
            xml_.skipCurrentElement();
        }
    }
    return texts;
}

/// All text inside the current element, that of nested elements included. Not recursive: nesting
/// is the file's choice.
QString FrameReader::readText() {
    QString text;
    for (int depth = 1; depth > 0 && !xml_.atEnd();) {
        switch (xml_.readNext()) {
            case QXmlStreamReader::StartElement:
                ++depth;
                break;
            case QXmlStreamReader::EndElement:
                --depth;
                break;
            case QXmlStreamReader::Characters:
                text += xml_.text();
                break;
            case QXmlStreamReader::EntityReference:
                throw damagedProject(u"the XML document uses the unknown entity \""_s +
                                     xml_.name().toString() + u'"');
            default:
                break;
        }
    }
    return text;
}

QString FrameReader::findSymbol(const QString& relative) {
    const auto known = symbolPaths_.constFind(relative);
    if (known != symbolPaths_.cend()) {
        return *known;
    }
    const auto path = host_files::pathInside(folder_.symbols(), relative);
    return *symbolPaths_.insert(
        relative, path && host_files::fileWithin(*path, MaxPictureBytes) ? *path : QString());
}

}  // namespace nubivane
