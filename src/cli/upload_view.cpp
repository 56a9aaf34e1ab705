// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/upload_view.h"

#include "cli/streams.h"
#include "engine/core/shell.h"
#include "engine/upload/site_upload.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

CliUploadView::CliUploadView(Shell& shell, bool json, Encryption encryption)
    : shell_(shell), json_(json), encryption_(encryption) {
    clock_.start();
}

namespace {

/// Control characters beyond those that JSON forbids, as what JSON writes for any character.
QByteArray escaped(const QByteArray& json) {
    QString text;
    for (const QChar c : QString::fromUtf8(json)) {
        const char16_t code = c.unicode();
        if (code >= 0x7F && code < 0xA0) {
            text += u"\\u"_s + QString::number(code, 16).rightJustified(4, u'0');
        } else {
            text += c;
        }
    }
    return text.toUtf8();
}

}  // namespace

void CliUploadView::tell(const QJsonObject& event) {
    streams::writeResult(escaped(QJsonDocument(event).toJson(QJsonDocument::Compact)) + '\n');
}

void CliUploadView::setInfo(const QString& text) {
    if (json_) {
        tell({{u"event"_s, u"step"_s}, {u"text"_s, text}});
    }
}

void CliUploadView::setProgress(int percent) {
    if (json_) {
        tell({{u"event"_s, u"progress"_s}, {u"percent"_s, percent}});
    } else {
        shell_.setProgress(percent);
    }
}

void CliUploadView::setAmount(qint64 sent, qint64 total) {
    if (!json_ || sent == told_ || total == 0) {
        return;
    }
    told_ = sent;
    const double seconds = std::max(static_cast<double>(clock_.elapsed()) / 1000.0, 0.001);
    const double speed = static_cast<double>(sent) / seconds;
    QJsonObject event{{u"event"_s, u"bytes"_s},
                      {u"sent"_s, sent},
                      {u"total"_s, total},
                      {u"bytesPerSecond"_s, qRound64(speed)}};
    if (speed > 0 && total >= sent) {
        event.insert(u"secondsLeft"_s, qRound64(static_cast<double>(total - sent) / speed));
    }
    tell(event);
}

void CliUploadView::showOpenLock() {
    const QString why = encryption_ == Encryption::None ? u"encryption is switched off"_s
                                                        : u"the server offers no encryption"_s;
    shell_.hideProgress();
    streams::printError(u"The password travels in clear: %1."_s.arg(why));
}

void CliUploadView::close() {
    shell_.hideProgress();
}

bool CliUploadView::conclude(const UploadReport& report, bool dryRun) {
    if (json_) {
        tell({{u"event"_s, dryRun ? u"plan"_s : u"done"_s},
              {u"files"_s, QJsonArray::fromStringList(report.sent)},
              {u"bytes"_s, report.bytes},
              {u"removed"_s, QJsonArray::fromStringList(report.removed)},
              {u"refused"_s, QJsonArray::fromStringList(report.refused)},
              {u"unsendable"_s, QJsonArray::fromStringList(report.unsendable)},
              {u"unchanged"_s, report.unchanged}});
    } else if (dryRun) {
        QString lines;
        for (const QString& name : report.sent) {
            lines += u"send\t"_s + name + u'\n';
        }
        for (const QString& name : report.removed) {
            lines += u"remove\t"_s + name + u'\n';
        }
        lines += u"%1 of %2 files, %3 bytes\n"_s.arg(report.sent.size())
                     .arg(report.sent.size() + report.unchanged)
                     .arg(report.bytes);
        if (!streams::writeResult(streams::printable(lines).toUtf8())) {
            return false;
        }
    }
    if (report.inPlace) {
        streams::printError(
            u"The server renames no files: each stood under its name before it was whole."_s);
    }
    if (!report.forgotten.isEmpty()) {
        streams::printError(
            u"What was sent cannot be remembered: the next upload sends more than "
            "has changed."_s,
            report.forgotten);
    }
    for (const QString& refused : report.refused) {
        streams::printError(u"Cannot upload "_s + refused);
    }
    for (const QString& name : report.unsendable) {
        streams::printError(u"Cannot send "_s + name);
    }
    return report.refused.isEmpty() && report.unsendable.isEmpty();
}

}  // namespace nubivane
