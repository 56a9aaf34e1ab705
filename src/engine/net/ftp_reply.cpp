// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_reply.h"

#include "engine/net/clean_text.h"
#include "engine/net/transfer_error.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype CodeDigits = 3;
constexpr qsizetype MaxShownReply = 200;

/// The code that a line begins with, 0 for none.
int codeOf(const QByteArray& line) {
    if (line.size() < CodeDigits || line.at(0) < '1' || line.at(0) > '5') {
        return 0;
    }
    int code = 0;
    for (qsizetype i = 0; i < CodeDigits; ++i) {
        if (line.at(i) < '0' || line.at(i) > '9') {
            return 0;
        }
        code = 10 * code + (line.at(i) - '0');
    }
    return code;
}

}  // namespace

QString FtpReply::text() const {
    const qsizetype last = lines.lastIndexOf('\n') + 1;
    return cleanText(
        QByteArrayView(lines).sliced(last).first(std::min(lines.size() - last, MaxShownReply)));
}

TransferError FtpReply::refusal() const {
    return {TransferError::Kind::Refused, text(), code};
}

void FtpReplyReader::clear() {
    waiting_.clear();
    searched_ = 0;
    reply_ = {};
}

std::optional<QByteArray> FtpReplyReader::nextLine() {
    const qsizetype end = waiting_.indexOf('\n', searched_);
    if (end < 0) {
        searched_ = waiting_.size();
        return std::nullopt;
    }
    QByteArray line = waiting_.first(end);
    waiting_.remove(0, end + 1);
    searched_ = 0;
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    return line;
}

std::optional<FtpReply> FtpReplyReader::next(qsizetype maxBytes) {
    while (const auto line = nextLine()) {
        const int code = codeOf(*line);
        const char mark = line->size() > CodeDigits ? line->at(CodeDigits) : ' ';
        if (reply_.code == 0) {
            if (code == 0 || (mark != ' ' && mark != '-')) {
                throw TransferError(TransferError::Kind::Lost, u"what the server says is no FTP"_s);
            }
            reply_ = {code, *line};
        } else {
            reply_.lines += '\n' + *line;
        }
        if (code == reply_.code && mark == ' ') {
            return std::exchange(reply_, {});
        }
        if (reply_.lines.size() > maxBytes) {
            break;
        }
    }
    if (reply_.lines.size() + waiting_.size() > maxBytes) {
        throw TransferError(TransferError::Kind::Lost, u"a reply of the server has no end"_s);
    }
    return std::nullopt;
}

}  // namespace nubivane
