// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QtEndian>

/// A strict look at an AVI file: sizes, padding, counts, index.
namespace nubivane::testing {

class RiffCheck {
  public:
    explicit RiffCheck(const QByteArray& bytes) : bytes_(bytes) {}

    QStringList run() {
        if (name(0) != "RIFF" || name(8) != "AVI ") {
            return {"no AVI file"};
        }
        expect(number(4) + 8 == static_cast<quint32>(bytes_.size()), "size of the file");
        walk(12, number(4) + 8);
        expect(frames_ == headerFrames_, "frames in avih");
        expect(frames_ == streamFrames_, "frames in strh");
        expect(frames_ == indexed_, "frames in idx1");
        expect(frames_ > 0, "no frame");
        return complaints_;
    }

  private:
    QByteArray name(qsizetype at) const { return bytes_.mid(at, 4); }
    quint32 number(qsizetype at) const {
        return at + 4 <= bytes_.size() ? qFromLittleEndian<quint32>(bytes_.constData() + at) : 0;
    }

    void expect(bool holds, const char* what) {
        if (!holds) {
            complaints_ += what;
        }
    }

    void walk(qsizetype at, qsizetype end) {
        while (at + 8 <= end) {
            const QByteArray id = name(at);
            const qsizetype size = number(at + 4);
            const qsizetype next = at + 8 + size + size % 2;
            if (next > end) {
                complaints_ += QString::fromLatin1("a chunk reaches beyond its list: " + id);
                return;
            }
            if (id == "LIST") {
                if (name(at + 8) == "movi") {
                    movi_ = at + 8;
                }
                walk(at + 12, at + 8 + size);
            } else {
                look(id, at, size);
            }
            at = next;
        }
        expect(at == end, "odd bytes at the end of a list");
    }

    void look(const QByteArray& id, qsizetype at, qsizetype size) {
        if (id == "avih") {
            headerFrames_ = number(at + 8 + 16);
        } else if (id == "strh") {
            streamFrames_ = number(at + 8 + 32);
        } else if (id == "strf") {
            expect(static_cast<qint32>(number(at + 8 + 8)) > 0, "height of the picture");
        } else if (id == "00dc") {
            ++frames_;
        } else if (id == "idx1") {
            lookAtIndex(at + 8, size);
        }
    }

    void lookAtIndex(qsizetype at, qsizetype size) {
        for (qsizetype entry = at; entry + 16 <= at + size; entry += 16) {
            ++indexed_;
            const qsizetype chunk = movi_ + number(entry + 8);
            expect(name(chunk) == "00dc" && number(chunk + 4) == number(entry + 12),
                   "place of a frame in the index");
        }
    }

    const QByteArray& bytes_;
    QStringList complaints_;
    qsizetype movi_ = 0;
    quint32 headerFrames_ = 0;
    quint32 streamFrames_ = 0;
    quint32 frames_ = 0;
    quint32 indexed_ = 0;
};

inline QStringList complaintsOfRiff(const QByteArray& avi) {
    return RiffCheck(avi).run();
}

}  // namespace nubivane::testing
