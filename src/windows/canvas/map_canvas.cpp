// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/map_canvas.h"

#include "windows/canvas/canvas_clock.h"
#include "windows/widgets/dropped_pictures.h"

#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

const QColor BorderColor(96, 110, 122);

/// Its sides are filled: lines would leave the last pixels of a dense screen unpainted.
void paintFrame(QPainter& painter, const QRect& rect) {
    for (const QRect& side : {QRect(rect.left(), rect.top(), rect.width(), 1),
                              QRect(rect.left(), rect.bottom(), rect.width(), 1),
                              QRect(rect.left(), rect.top(), 1, rect.height()),
                              QRect(rect.right(), rect.top(), 1, rect.height())}) {
        painter.fillRect(side, BorderColor);
    }
}

}  // namespace

MapCanvas::MapCanvas(Workspace& workspace, SpriteStack& sprites, Selection& selection,
                     SpriteMouse& mouse, CanvasClock& clock, std::function<bool()> dropAllowed,
                     QWidget* parent)
    : QWidget(parent),
      workspace_(workspace),
      sprites_(sprites),
      selection_(selection),
      mouse_(mouse),
      clock_(clock),
      dropAllowed_(std::move(dropAllowed)) {
    setObjectName("pctMap");
    setAccessibleName(tr("Map"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
}

void MapCanvas::showPicture() {
    const QSize before = picture_.size();
    picture_ = QPixmap::fromImage(workspace_.pctMap.pixels());
    fitSize();
    update();
    if (picture_.size() != before) {
        Q_EMIT mapResized();
    }
}

void MapCanvas::fitSize() {
    resize(zoom_.toScreen(workspace_.pctMap.ScaleWidth()) + 2,
           zoom_.toScreen(workspace_.pctMap.ScaleHeight()) + 2);
}

void MapCanvas::setZoom(Zoom zoom) {
    zoom_ = zoom;
    selection_.setZoom(zoom);
    mouse_.setZoom(zoom);
    fitSize();
    update();
}

void MapCanvas::setGrid(int distance) {
    if (distance != grid_.distance()) {
        grid_.setDistance(distance);
        update();
    }
}

/// Beside 100 % the edges of what is painted are mixed with their neighbours.
void MapCanvas::updateMap(const QRect& mapRect) {
    const int mixed = zoom_ == Zoom() ? 0 : 1;
    update(toWidget(mapRect).adjusted(-mixed, -mixed, mixed, mixed));
}

bool MapCanvas::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        showToolTip(*static_cast<QHelpEvent*>(event));
        return true;
    }
    return QWidget::event(event);
}

/// The tip of the Symbol under the pointer, as its text stands.
void MapCanvas::showToolTip(const QHelpEvent& event) {
    const auto* symbol = dynamic_cast<const GifSymbol*>(sprites_.at(toMap(event.pos())));
    if (symbol && !symbol->ToolTipText.isEmpty()) {
        QToolTip::showText(event.globalPos(),
                           u"<qt>"_s + symbol->ToolTipText.toHtmlEscaped() + u"</qt>"_s, this,
                           toWidget(symbol->rect));
    } else {
        QToolTip::hideText();
    }
}

void MapCanvas::takeOver(const QRect& mapRect) {
    if (!mapRect.isEmpty() && !picture_.isNull()) {
        QPainter(&picture_).drawImage(mapRect.topLeft(), workspace_.pctMap.pixels(), mapRect);
        updateMap(mapRect);
    }
}

QImage MapCanvas::thumbnail(QSize bounds) const {
    const QSize size = picture_.size().scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1});
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    if (picture_.isNull()) {
        return image;
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(static_cast<double>(size.width()) / picture_.width(),
                  static_cast<double>(size.height()) / picture_.height());
    painter.drawPixmap(0, 0, picture_);
    for (const SpriteControl* control : sprites_.controls()) {
        if (control->visible) {
            control->paint(painter);
        }
    }
    return image;
}

void MapCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    paintFrame(painter, rect());
    painter.save();
    painter.translate(1, 1);
    painter.setClipRect(QRect(0, 0, width() - 2, height() - 2), Qt::IntersectClip);
    // From twice its size on a map is looked at for its pixels.
    constexpr int ShowsPixels = 200;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom_.percent() < ShowsPixels);
    const int mixed = zoom_ == Zoom() ? 0 : 1;
    for (const QRect& part : event->region()) {
        const QRect onMap = part.translated(-1, -1);
        painter.save();
        painter.setClipRect(onMap, Qt::IntersectClip);
        painter.scale(zoom_.factor(), zoom_.factor());
        paintMap(painter, zoom_.toMap(onMap).adjusted(-mixed, -mixed, mixed, mixed) &
                              QRect(QPoint(), picture_.size()));
        mouse_.marks().paintGhosts(painter);
        painter.restore();
        grid_.paint(painter, onMap, picture_.size(), zoom_);
        paintBorder(painter, onMap);
    }
    painter.restore();
    if (overlay_) {
        overlay_->paint(painter, *this);
    }
}

QImage MapCanvas::image() const {
    QImage image(picture_.size() + QSize(2, 2), QImage::Format_RGB32);
    QPainter painter(&image);
    paintFrame(painter, image.rect());
    painter.translate(1, 1);
    painter.setClipRect(picture_.rect());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    paintMap(painter, picture_.rect());
    return image;
}

/// The painter's pixels are those of the map.
void MapCanvas::paintMap(QPainter& painter, const QRect& mapRect) const {
    painter.drawPixmap(mapRect, picture_, mapRect);
    const QRect drawn = mapRect & workspace_.pctMap.scratchArea();
    if (!drawn.isEmpty()) {
        painter.drawImage(drawn, workspace_.pctMap.scratch(), drawn);
    }
    for (const SpriteControl* control : sprites_.controls()) {
        if (control->visible && control->rect.intersects(mapRect)) {
            control->paint(painter);
        }
    }
}

void MapCanvas::paintBorder(QPainter& painter, const QRect& onMap) const {
    const QRect touched = zoom_.toMap(onMap);
    painter.save();
    painter.setClipRect(onMap, Qt::IntersectClip);
    const auto paint = [&](const ShpSelector& border) {
        if (border.paintedRect().intersects(touched)) {
            border.paint(painter);
        }
    };
    for (const ShpSelector& border : selection_.otherBorders()) {
        paint(border);
    }
    if (const ShpSelector* selector = std::as_const(selection_).shpSelector()) {
        paint(*selector);
    }
    mouse_.marks().paintLines(painter, zoom_);
    painter.restore();
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
    const QPoint position = toMap(event->position().toPoint());
    setFocus(Qt::MouseFocusReason);
    keys_ = event->modifiers();
    if (!mouse_.press(position, event->button(), keys_)) {
        Q_EMIT mapPressed(position, event->button());
    }
    Q_EMIT gestureChanged();
}

void MapCanvas::leaveEvent(QEvent*) {
    Q_EMIT left();
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
    const QPoint position = toMap(event->position().toPoint());
    Q_EMIT pointed(position);
    keys_ = event->modifiers();
    if (!mouse_.move(position, event->buttons(), keys_)) {
        Q_EMIT mapMoved(position);
    } else {
        Q_EMIT dragMoved(event->position().toPoint());
    }
}

void MapCanvas::dragTo(QPoint widgetPosition) {
    mouse_.move(toMap(widgetPosition), Qt::LeftButton, keys_);
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event) {
    Q_EMIT dragEnded();
    if (!mouse_.release(event->button())) {
        Q_EMIT mapReleased(event->button());
    }
    Q_EMIT gestureChanged();
}

void MapCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    const SpriteControl* control = sprites_.at(toMap(event->position().toPoint()));
    if (control && event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
        workspace_.Status.CurrentTool == Tool::cursor) {
        Q_EMIT spriteActivated(SpriteId(control->id));
    } else {
        mousePressEvent(event);
    }
}

void MapCanvas::dragEnterEvent(QDragEnterEvent* event) {
    const bool pictures = !droppedPictures(*event->mimeData()).isEmpty();
    if (pictures ? workspace_.Status.CurrentTool == Tool::cursor
                 : event->mimeData()->hasText() && dropAllowed_()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void MapCanvas::dragMoveEvent(QDragMoveEvent* event) {
    if (dropAllowed_() || !droppedPictures(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        Q_EMIT dragMoved(event->position().toPoint());
    } else {
        event->ignore();
    }
}

void MapCanvas::dragLeaveEvent(QDragLeaveEvent*) {
    Q_EMIT dragEnded();
}

void MapCanvas::dropEvent(QDropEvent* event) {
    Q_EMIT dragEnded();
    const QPoint position = toMap(event->position().toPoint());
    const QStringList pictures = droppedPictures(*event->mimeData());
    if (!pictures.isEmpty() && workspace_.Status.CurrentTool == Tool::cursor) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        Q_EMIT picturesDropped(pictures, position);
        return;
    }
    if (!dropAllowed_()) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT dropped(event->mimeData()->text(), position);
}

void MapCanvas::showEvent(QShowEvent*) {
    clock_.setVisible(true);
}

void MapCanvas::hideEvent(QHideEvent*) {
    clock_.setVisible(false);
}

}  // namespace nubivane
