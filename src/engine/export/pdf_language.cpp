// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/pdf_language.h"

#include <QLocale>

#include <optional>

namespace nubivane {

namespace {

constexpr qsizetype EntryBytes = 20;  // of the table of objects

/// The number that stands behind a word, or -1.
qsizetype numberBehind(const QByteArray& text, const QByteArray& word) {
    const qsizetype at = text.lastIndexOf(word);
    if (at < 0) {
        return -1;
    }
    const QByteArray rest = text.mid(at + word.size(), 24).simplified();
    bool isNumber = false;
    const qlonglong number = rest.left(rest.indexOf(' ')).toLongLong(&isNumber);
    return isNumber ? static_cast<qsizetype>(number) : -1;
}

/// What lies between the outer brackets of the first dictionary at or behind a place.
std::optional<QByteArray> dictionary(const QByteArray& pdf, qsizetype from, const QByteArray& end) {
    const qsizetype start = pdf.indexOf("<<", from);
    const qsizetype last = pdf.lastIndexOf(">>", pdf.indexOf(end, from));
    if (start < 0 || last < start) {
        return std::nullopt;
    }
    return pdf.mid(start + 2, last - start - 2).trimmed();
}

/// Where an object begins, from the one table of objects that the file has.
qsizetype placeOf(const QByteArray& pdf, qsizetype table, qsizetype object) {
    const QByteArray head = "xref\n0 ";
    if (pdf.mid(table, head.size()) != head) {
        return -1;
    }
    const qsizetype first = pdf.indexOf('\n', table + head.size()) + 1;
    bool isNumber = false;
    const qlonglong place = pdf.mid(first + object * EntryBytes, 10).toLongLong(&isNumber);
    return isNumber ? static_cast<qsizetype>(place) : -1;
}

QByteArray entry(qsizetype place) {
    return QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n";
}

}  // namespace

QByteArray pdfWithLanguage(const QByteArray& pdf, const QString& language) {
    const qsizetype table = numberBehind(pdf, "startxref");
    const qsizetype trailerAt = pdf.lastIndexOf("trailer");
    if (table < 0 || trailerAt < table) {
        return pdf;
    }
    const std::optional<QByteArray> trailer = dictionary(pdf, trailerAt, "startxref");
    const qsizetype root = trailer ? numberBehind(*trailer, "/Root") : -1;
    const qsizetype catalogAt = root < 0 ? -1 : placeOf(pdf, table, root);
    const QByteArray name = QByteArray::number(root) + " 0 obj";
    if (catalogAt <= 0 || pdf.mid(catalogAt, name.size()) != name) {
        return pdf;
    }
    const std::optional<QByteArray> catalog = dictionary(pdf, catalogAt, "endobj");
    if (!catalog) {
        return pdf;
    }
    QByteArray result = pdf;
    const qsizetype newCatalog = result.size();
    result += name + "\n<<\n" + *catalog + "\n/Lang (" + language.toLatin1() + ")\n>>\nendobj\n";
    const qsizetype newTable = result.size();
    result += "xref\n" + QByteArray::number(root) + " 1\n" + entry(newCatalog) + "trailer\n<<\n" +
              *trailer + "\n/Prev " + QByteArray::number(table) + "\n>>\nstartxref\n" +
              QByteArray::number(newTable) + "\n%%EOF\n";
    return result;
}

QString systemLanguage() {
    const QLocale language = QLocale::system();
    return language.language() == QLocale::C ? QStringLiteral("en") : language.bcp47Name();
}

}  // namespace nubivane
