// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include "engine/core/host_files.h"
#include "engine/picture/image_codec.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>

namespace nubivane::testing {

EditorFixture::EditorFixture() {
    writeFile(host("Maps/europe.jpg"),
              encodePicture(plainImage({500, 400}, Qt::cyan), PictureFormat::Jpeg));
}

EditorFixture::~EditorFixture() = default;

frmMap& EditorFixture::start(const QString& projectFile) {
    window_ = std::make_unique<frmMap>(workspace, shell);
    window_->Init(projectFile);
    window_->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    return *window_;
}

void EditorFixture::press(QPoint mapPosition, Qt::MouseButton button) {
    QTest::mousePress(&canvas(), button, {}, mapPosition + QPoint(1, 1));
}

void EditorFixture::move(QPoint mapPosition) {
    // QTest::mouseMove bears no buttons; a drag needs them.
    const QPoint position = mapPosition + QPoint(1, 1);
    QMouseEvent event(QEvent::MouseMove, position, canvas().mapToGlobal(position), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas(), &event);
}

void EditorFixture::release(QPoint mapPosition, Qt::MouseButton button) {
    QTest::mouseRelease(&canvas(), button, {}, mapPosition + QPoint(1, 1));
}

void EditorFixture::click(QPoint mapPosition, Qt::MouseButton button) {
    press(mapPosition, button);
    release(mapPosition, button);
}

void EditorFixture::drag(QPoint from, QPoint to) {
    press(from);
    move((from + to) / 2);
    move(to);
    release(to);
}

void EditorFixture::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* target = QApplication::focusWidget();
    QTest::keyClick(target ? target : window_.get(), key, modifiers);
}

void EditorFixture::drop(const QString& payload, QPoint mapPosition) {
    QMimeData data;
    data.setText(payload);
    window_->palette().allowDrop(true);
    const QPoint position = mapPosition + QPoint(1, 1);
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas(), &enter);
    QDragMoveEvent over(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas(), &over);
    QDropEvent dropped(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas(), &dropped);
    window_->palette().allowDrop(false);
}

QString EditorFixture::placeSymbol(QPoint centre, const QString& file) {
    drop("symbol|" + model("Symbols/set-1/" + file), centre);
    return workspace.Status.CurrentShapeControlKey;
}

QString EditorFixture::placeLabel(QPoint centre) {
    drop("text", centre);
    return workspace.Status.CurrentShapeControlKey;
}

}  // namespace nubivane::testing
