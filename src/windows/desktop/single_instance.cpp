// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/single_instance.h"

#include "engine/core/error.h"
#include "engine/core/user_folders.h"

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QLockFile>

#include <sys/socket.h>
#include <unistd.h>

namespace nubivane {

namespace {

constexpr int AnswerMs = 500;

/// Where instances meet: a folder that nobody else can put a socket into. Empty where there is
/// none.
QString meetingPlace() {
    try {
        return user_folders::runtime();
    } catch (const Error&) {
        return {};
    }
}

/// True when a program of this user is at the other end.
bool isOwn(const QLocalSocket& socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer,
                        &size) == 0 &&
           peer.uid == ::geteuid();
}

}  // namespace

SingleInstance::SingleInstance(const QString& programFolder) {
    const QByteArray hash =
        QCryptographicHash::hash(programFolder.toUtf8(), QCryptographicHash::Sha256);
    const QString folder = meetingPlace();
    if (!folder.isEmpty()) {
        name_ = folder + u'/' + QString::fromLatin1(hash.toHex().left(24));
    }
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        delete server_.nextPendingConnection();
        Q_EMIT raised();
    });
}

bool SingleInstance::raiseOther() {
    QLocalSocket socket;
    socket.connectToServer(name_);
    return socket.waitForConnected(AnswerMs) && isOwn(socket);
}

bool SingleInstance::isFirst() {
    // Without a place to meet two may run, which is better than none.
    if (name_.isEmpty()) {
        return true;
    }
    // Of two that start at once the second looks when the first can be found.
    QLockFile starting(name_ + QStringLiteral(".lock"));
    starting.tryLock(2 * AnswerMs);
    if (raiseOther()) {
        return false;
    }
    // What a crashed instance left behind answers nobody and would be in the way.
    QLocalServer::removeServer(name_);
    server_.listen(name_);
    return true;
}

}  // namespace nubivane
