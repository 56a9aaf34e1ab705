// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/net/ftp_transfer.h"
#include "fuzz_support.h"
#include "scripted_server.h"

#include <QElapsedTimer>
#include <QSet>

using namespace nubivane;

namespace {

FtpOptions shortLimits() {
    FtpOptions options;
    options.connect = Milliseconds(1000);
    options.response = Milliseconds(1000);
    options.stall = Milliseconds(1000);
    options.farewell = Milliseconds(1000);
    return options;
}

/// Each of the calls below may wait for its replies as long as it is given, and not for ever.
constexpr qint64 LongestMs = 25000;

bool isPrintable(const QString& text) {
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Control) {
            return false;
        }
    }
    return true;
}

void checkFailure(const ftpTransfer& transfer) {
    constexpr qsizetype Longest = 2000;
    fuzz::require(isPrintable(transfer.failure()), "no control character of a server is shown");
    fuzz::require(transfer.failure().size() <= Longest, "what a server says is cut");
}

void checkNames(const QStringList& names) {
    QSet<QString> known;
    for (const QString& name : names) {
        fuzz::require(host_files::isPlainName(name), "a listed name is a plain name");
        fuzz::require(!known.contains(name), "a name is listed once");
        known += name;
    }
}

}  // namespace

/// The input is what a server says, parted by NULs: first the content of a folder, then its replies
/// in their order, "%P" in them being the port for data.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::ScriptedServer server;
    QList<QByteArray> parts = QByteArray(fuzz::inputBytes(data, size)).split('\0');
    const QByteArray listing = parts.takeFirst();
    server.setScript(parts, listing);

    QElapsedTimer clock;
    clock.start();
    ftpTransfer transfer(shortLimits());
    if (!transfer.Connect({"127.0.0.1", server.port(), "user", "secret"})) {
        fuzz::require(!transfer.failure().isEmpty(), "a failure has a reason");
        checkFailure(transfer);
    } else {
        if (!transfer.ChangeDirectory("..\\a")) {
            checkFailure(transfer);
        }
        if (const auto names = transfer.ListDirectory()) {
            checkNames(*names);
        } else {
            checkFailure(transfer);
        }
        const auto file = transfer.ReadFile("b", 100);
        fuzz::require(!file || file->size() <= 100, "no more of a file than asked for");
        checkFailure(transfer);
        transfer.Disconnect();
    }
    fuzz::require(clock.elapsed() < LongestMs, "no server is waited for longer than it is given");
    return 0;
}
