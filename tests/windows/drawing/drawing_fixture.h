// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/canvas_fixture.h"
#include "windows/widgets/scrspn.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace nubivane::testing {

/// The editor with a map of one colour, a tool chosen by its button, and the picture that the text
/// of the rules asks for, to compare the map with.
class DrawingFixture : public CanvasFixture {
  protected:
    static constexpr qint32 Red = 255;  // red in the low byte

    /// Starts with red as the drawing colour.
    void startDrawing() {
        settings.set(Setting::DrawColor, QString::number(Red));
        start();
        expected = workspace.pctMap.pixels().convertToFormat(QImage::Format_RGB32);
    }

    MapDrawing& drawing() { return window().canvas().drawing(); }
    DrawStrip& strip() { return window().pctTlbDraw(); }

    /// Presses the button of a tool.
    void choose(const QString& tool) {
        for (int i = 0; i < 8; ++i) {
            if (QLatin1String(toolTable[static_cast<std::size_t>(i)].name) == tool) {
                QTest::mouseClick(strip().btnDraw(i), Qt::LeftButton);
            }
        }
        ASSERT_EQ(toolTable[static_cast<std::size_t>(workspace.Status.CurrentTool)].name, tool);
    }
    void setWidth(const QString& text) { strip().txtValue()->setText(text); }

    /// A move without any button.
    void hover(QPoint mapPosition) {
        const QPoint position = mapPosition + QPoint(1, 1);
        QMouseEvent event(QEvent::MouseMove, position, canvas().mapToGlobal(position), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas(), &event);
    }

    /// A round pen, smooth at its edges where it is wider than a pixel, in whose middle an odd one
    /// is centred.
    static void use(QPainter& painter, int width, QColor color = Qt::red) {
        painter.setPen(
            {color, static_cast<qreal>(width), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        if (width > 1) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.translate(width % 2 / 2.0, width % 2 / 2.0);
        }
    }
    /// Whether two pictures are alike but for what layers round differently at smooth edges.
    static bool same(const QImage& a, const QImage& b) {
        if (a.size() != b.size()) {
            return false;
        }
        const auto alike = [](int left, int right) { return std::abs(left - right) <= 3; };
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                const QRgb left = a.pixel(x, y);
                const QRgb right = b.pixel(x, y);
                if (!alike(qRed(left), qRed(right)) || !alike(qGreen(left), qGreen(right)) ||
                    !alike(qBlue(left), qBlue(right))) {
                    return false;
                }
            }
        }
        return true;
    }
    /// Draws on the expected picture.
    void expect(const std::function<void(QPainter&)>& draw) {
        QPainter painter(&expected);
        draw(painter);
    }
    void expectLine(QPoint from, QPoint to, int width, QColor color = Qt::red) {
        expect([&](QPainter& painter) {
            use(painter, width, color);
            painter.drawLine(from, to);
        });
    }
    /// A stroke as `drag` makes it: a dot at its beginning, then a line to each position.
    void expectDrag(QPoint from, QPoint to, int width, QColor color = Qt::red) {
        expect([&](QPainter& painter) {
            use(painter, width, color);
            painter.drawPoint(from);
        });
        expectLine(from, (from + to) / 2, width, color);
        expectLine((from + to) / 2, to, width, color);
    }
    /// A black outline five pixels from the middle, filled with white squares.
    void expectHandle(QPoint centre) {
        for (int y = -5; y <= 5; ++y) {
            for (int x = -5; x <= 5; ++x) {
                const bool outline = std::max(std::abs(x), std::abs(y)) == 5;
                if (expected.valid(centre + QPoint(x, y))) {
                    expected.setPixelColor(centre + QPoint(x, y), outline ? Qt::black : Qt::white);
                }
            }
        }
    }
    void expectDotted(QPoint from, QPoint to) {
        expect([&](QPainter& painter) {
            painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
            painter.drawLine(from, to);
        });
    }

    /// The map with all that is drawn on it, committed or not.
    QImage drawn() { return workspace.pctMap.composite().convertToFormat(QImage::Format_RGB32); }
    /// What is committed alone.
    QImage committed() { return workspace.pctMap.pixels().convertToFormat(QImage::Format_RGB32); }
    /// The map as the window shows it.
    QImage onScreen() {
        return canvas()
            .grab(QRect(1, 1, workspace.pctMap.ScaleWidth(), workspace.pctMap.ScaleHeight()))
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }

    /// The model, the screen and the rules agree on every pixel.
    void compare() {
        EXPECT_TRUE(same(drawn(), expected));
        EXPECT_TRUE(same(onScreen(), expected));
    }

    bool actionLoaded() {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::any_of(windows.begin(), windows.end(), [](const QWidget* each) {
            return each->objectName() == "frmDrawAction";
        });
    }
    frmDrawAction* action() { return window().findChild<frmDrawAction*>("frmDrawAction"); }
    void pressActionButton(const char* name) {
        ASSERT_TRUE(action());
        QTest::mouseClick(action()->findChild<QPushButton*>(name), Qt::LeftButton);
    }
    void apply() { pressActionButton("cmdDrawApply"); }

    QImage expected;
};

}  // namespace nubivane::testing
