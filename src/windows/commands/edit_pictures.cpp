// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/edit_pictures.h"

#include "engine/model/edits/project_edits.h"

#include <QBuffer>

#include <utility>

namespace nubivane {

EditPictures::EditPictures(const ProjectEdits& edits, std::function<QImage(QSize)> take)
    : edits_(edits), takePicture_(std::move(take)) {
    timer_.setSingleShot(true);
    timer_.setInterval(0);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { this->take(); });
}

void EditPictures::takeSoon() {
    timer_.start();
}

void EditPictures::take() {
    const int index = edits_.index();
    const quint64 state = edits_.stateAfter(index);
    if (!pictures_.contains(state)) {
        order_.push_back(state);
    }
    QByteArray encoded;
    QBuffer buffer(&encoded);
    takePicture_(Bounds).save(&buffer, "PNG");
    pictures_.insert(state, encoded);
    while (order_.size() > Most) {
        pictures_.remove(order_.front());
        order_.pop_front();
    }
    Q_EMIT taken(index);
}

QPixmap EditPictures::picture(int index) const {
    QPixmap pixmap;
    pixmap.loadFromData(pictures_.value(edits_.stateAfter(index)), "PNG");
    return pixmap;
}

}  // namespace nubivane
